// A window with drawn scroll bars.
#pragma once

#include "skin/scroll/CoolSBWrapper.h"

#include <afxwin.h>

/// Its scroll operations mean the drawn bars, once Init has put them there. It draws them itself: its
/// parent must be a window of the framework, which hands notifications back to their sender.
class CoolSBWnd : public CWnd, public CoolSBWrapper
{
public:
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
