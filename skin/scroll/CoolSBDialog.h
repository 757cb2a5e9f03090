// A dialog with drawn scroll bars.
#pragma once

#include "skin/scroll/CoolSBRouting.h"

/// As CoolSBWnd is to a window.
/// @tparam TDialog the dialog class that gets the bars
template <typename TDialog = CDialog>
class CoolSBDialog : public CoolSBRouting<TDialog>
{
public:
    using CoolSBRouting<TDialog>::CoolSBRouting;
    using TDialog::Create;

    /// Makes the modeless dialog of a template.
    BOOL Create(UINT id, CWnd* parent = nullptr) override { return TDialog::Create(id, parent); }
};
