#include "frame/SubMainDlg.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace
{

bool Holds(HWND control, HWND focus)
{
    return control == focus || IsChild(control, focus);
}

/// What Tab leads to below a window, in its order. The control that holds the focus stands among it in
/// any case.
void CollectTabStops(HWND parent, HWND focus, std::vector<HWND>& stops)
{
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        const bool isUsable = (style & WS_VISIBLE) && !(style & WS_DISABLED);
        if (isUsable && (GetWindowLongA(child, GWL_EXSTYLE) & WS_EX_CONTROLPARENT))
            CollectTabStops(child, focus, stops);
        else if ((isUsable && (style & WS_TABSTOP)) || Holds(child, focus))
            stops.push_back(child);
    }
}

/// Walks on from the control that has the focus. The system's own walk does the same, but there are
/// systems where it goes round in a child dialog whose last child is a label.
void WalkByTab(HWND window, bool back)
{
    const HWND focus = GetFocus();
    std::vector<HWND> stops;
    CollectTabStops(window, focus, stops);
    const auto at =
        std::find_if(stops.begin(), stops.end(), [focus](HWND stop) { return Holds(stop, focus); });
    if (at == stops.end())
        return;
    const size_t step = back ? stops.size() - 1 : 1;
    const HWND next = stops[(std::distance(stops.begin(), at) + step) % stops.size()];
    SendMessageA(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}

} // namespace

CChildDlg::CChildDlg(UINT templateId, CWnd* parent)
    : CDialogEx(templateId, parent)
{
}

void CChildDlg::EnsureWindow(CWnd* parent)
{
    if (GetSafeHwnd())
        return;
    // A new dialog takes the focus. Who walks the list by keyboard must not lose it to a page that
    // is made on the way.
    const HWND focus = ::GetFocus();
    Create(m_lpszTemplateName, parent);
    ::SetFocus(focus);
}

BOOL CChildDlg::PreTranslateMessage(MSG* message)
{
    if (message->message != WM_KEYDOWN || message->wParam != VK_TAB)
        return CDialogEx::PreTranslateMessage(message);
    if (::GetKeyState(VK_CONTROL) < 0)
        return FALSE; // a host's, which may have tabs
    WalkByTab(::GetAncestor(m_hWnd, GA_ROOT), ::GetKeyState(VK_SHIFT) < 0);
    return TRUE;
}

void CChildDlg::OnOK() {}

void CChildDlg::OnCancel() {}

CSubMainDlg::CSubMainDlg(UINT templateId, CWnd* parent)
    : CChildDlg(templateId, parent)
{
}

void CSubMainDlg::RestoreCurrentPage() {}

void CSubMainDlg::SelectPage(int) {}

void CSubMainDlg::SavePages() {}
