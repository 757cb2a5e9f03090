// A dialog with drawn scroll bars.
#pragma once

#include "skin/scroll/CoolSBWrapper.h"

#include <afxwin.h>

/// As CoolSBWnd is to a window.
class CoolSBDialog : public CDialog, public CoolSBWrapper
{
public:
    CoolSBDialog() = default;
    explicit CoolSBDialog(UINT id, CWnd* parent = nullptr);

    /// Makes the modeless dialog of a template.
    BOOL Create(UINT id, CWnd* parent = nullptr) override;
    using CDialog::Create;

    using CoolSBWrapper::GetScrollInfo;
    using CoolSBWrapper::GetScrollPos;
    using CoolSBWrapper::GetScrollRange;
    using CoolSBWrapper::SetScrollInfo;
    using CoolSBWrapper::SetScrollPos;
    using CoolSBWrapper::SetScrollRange;
    using CoolSBWrapper::ShowScrollBar;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    DECLARE_MESSAGE_MAP()
};
