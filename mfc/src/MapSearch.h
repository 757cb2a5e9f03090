#pragma once

#include "mfc/parts/CmdTarget.h"

/// The first entry that fits, in the map of a class and then in those of its bases; null for none.
template <typename Fits>
const AFX_MSGMAP_ENTRY* FindMapEntry(const AFX_MSGMAP* map, Fits fits)
{
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        {
            if (fits(*entry))
            {
                return entry;
            }
        }
    }
    return nullptr;
}
