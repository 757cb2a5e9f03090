#include <afxwin.h>

#include "mfc/src/MapSearch.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace
{
/// A command as the maps know it.
struct CCommand
{
    UINT message;
    UINT code;
    UINT id;

    bool Fits(const AFX_MSGMAP_ENTRY& entry) const
    {
        return entry.nMessage == message && entry.nCode == code && entry.nID <= id &&
               id <= entry.nLastID;
    }
};

CCommand Decode(UINT id, int code)
{
    const UINT message = HIWORD(static_cast<DWORD>(code));
    return {message ? message : WM_COMMAND, LOWORD(static_cast<DWORD>(code)), id};
}

BOOL Call(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra)
{
    const auto* notify = static_cast<const AFX_NOTIFY*>(extra);
    switch (entry.nSig)
    {
    case AfxSigCmd_v:
        (target.*AfxTypedHandler<AfxSigCmd_v>(entry.pfn))();
        return TRUE;
    case AfxSigCmd_b:
        return (target.*AfxTypedHandler<AfxSigCmd_b>(entry.pfn))();
    case AfxSigCmd_v_u:
        (target.*AfxTypedHandler<AfxSigCmd_v_u>(entry.pfn))(id);
        return TRUE;
    case AfxSigCmd_b_u:
        return (target.*AfxTypedHandler<AfxSigCmd_b_u>(entry.pfn))(id);
    case AfxSigNotify_v:
        (target.*AfxTypedHandler<AfxSigNotify_v>(entry.pfn))(notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSigNotify_b:
        return (target.*AfxTypedHandler<AfxSigNotify_b>(entry.pfn))(notify->pNMHDR,
                                                                    notify->pResult);
    case AfxSigNotify_v_u:
        (target.*AfxTypedHandler<AfxSigNotify_v_u>(entry.pfn))(id, notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSigNotify_b_u:
        return (target.*AfxTypedHandler<AfxSigNotify_b_u>(entry.pfn))(id, notify->pNMHDR,
                                                                      notify->pResult);
    default:
        ASSERT(FALSE);
        return FALSE;
    }
}
} // namespace

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{}};
    static const AFX_MSGMAP messageMap = {nullptr, entries};
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const CCommand command = Decode(nID, nCode);
    const AFX_MSGMAP_ENTRY* entry =
        FindMapEntry(GetMessageMap(), [&command](const AFX_MSGMAP_ENTRY& candidate)
                     { return command.Fits(candidate); });
    if (!entry)
    {
        return FALSE;
    }
    if (pHandlerInfo)
    {
        *pHandlerInfo = {this, entry->pfn};
        return TRUE;
    }
    return Call(*this, *entry, nID, pExtra);
}
