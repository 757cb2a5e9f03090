// How a message finds its handler: the message maps, the default, the way of a notification to
// the control that sent it.

#include <afxwin.h>

#include "mfc/src/MapSearch.h"

namespace
{
bool IsCtlColor(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

/// The kind of control, as OnCtlColor gets it.
UINT CtlColorKind(UINT message)
{
    return message - WM_CTLCOLORMSGBOX;
}

bool Fits(const AFX_MSGMAP_ENTRY& entry, UINT message)
{
    constexpr UINT kRegistered = 0xC000;
    if (entry.nMessage == kRegistered)
    {
        return *reinterpret_cast<const UINT*>(entry.nSig) == message;
    }
    // Entries of commands have handlers that no message can call.
    return entry.nMessage == message && entry.nSig >= AfxSig_l_wl;
}

CWnd* WindowOf(WPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CWnd* WindowOf(LPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CDC* ContextOf(WPARAM handle)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(handle));
}

template <typename T>
T PointerOf(LPARAM lParam)
{
    return reinterpret_cast<T>(lParam);
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()
// clang-format on

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
    {
        result = DefWindowProc(message, wParam, lParam);
    }
    return result;
}

LRESULT CWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC super = *GetSuperWndProcAddr();
    return super ? ::CallWindowProc(super, m_hWnd, nMsg, wParam, lParam)
                 : ::DefWindowProc(m_hWnd, nMsg, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& message = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* CWnd::GetCurrentMessage()
{
    return &AfxGetThreadState()->m_lastSentMsg;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT ignored = 0;
    LRESULT* result = pResult ? pResult : &ignored;
    if (message == WM_COMMAND)
    {
        const BOOL handled = OnCommand(wParam, lParam);
        *result = handled;
        return handled;
    }
    if (message == WM_NOTIFY)
    {
        return PointerOf<NMHDR*>(lParam)->hwndFrom && OnNotify(wParam, lParam, result);
    }
    return HandleByMap(IsCtlColor(message) ? WM_CTLCOLOR : message, message, wParam, lParam,
                       result);
}

/// Looks under a key, which is the message unless that was gathered or reflected.
BOOL CWnd::HandleByMap(UINT key, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const AFX_MSGMAP_ENTRY* entry = FindMapEntry(
        GetMessageMap(), [key](const AFX_MSGMAP_ENTRY& candidate) { return Fits(candidate, key); });
    return entry && CallHandler(*entry, message, wParam, lParam, pResult);
}

/// Takes the message apart for the handler. The object may be gone when this returns.
BOOL CWnd::CallHandler(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam,
                       LRESULT* pResult)
{
// Calls the handler of a signature.
#define AFX_CALL(sig) (this->*AfxTypedHandler<sig>(entry.pfn))

    const UINT low = LOWORD(lParam);
    const UINT high = HIWORD(lParam);
    const UINT code = static_cast<UINT>(wParam);
    LRESULT& result = *pResult;
    result = 0;

    switch (entry.nSig)
    {
    case AfxSig_v:
        AFX_CALL(AfxSig_v)();
        break;
    case AfxSig_u:
        result = static_cast<LRESULT>(AFX_CALL(AfxSig_u)());
        break;
    case AfxSig_v_b:
        AFX_CALL(AfxSig_v_b)(static_cast<BOOL>(wParam));
        break;
    case AfxSig_b_b:
        result = AFX_CALL(AfxSig_b_b)(static_cast<BOOL>(wParam));
        break;
    case AfxSig_b_D:
        result = AFX_CALL(AfxSig_b_D)(ContextOf(wParam));
        break;
    case AfxSig_i_create:
        result = AFX_CALL(AfxSig_i_create)(PointerOf<LPCREATESTRUCT>(lParam));
        break;
    case AfxSig_v_uii:
        AFX_CALL(AfxSig_v_uii)(code, static_cast<int>(low), static_cast<int>(high));
        break;
    case AfxSig_v_ii:
        AFX_CALL(AfxSig_v_ii)(static_cast<short>(low), static_cast<short>(high));
        break;
    case AfxSig_h_DWu:
        result = reinterpret_cast<LRESULT>(
            AFX_CALL(AfxSig_h_DWu)(ContextOf(wParam), WindowOf(lParam), CtlColorKind(message)));
        break;
    case AfxSig_h_Du:
        result = reinterpret_cast<LRESULT>(
            AFX_CALL(AfxSig_h_Du)(ContextOf(wParam), CtlColorKind(message)));
        // Without a brush the parent's colours count.
        return result != 0;
    case AfxSig_v_bu:
        AFX_CALL(AfxSig_v_bu)(static_cast<BOOL>(wParam), static_cast<UINT>(lParam));
        break;
    case AfxSig_v_bl:
        AFX_CALL(AfxSig_v_bl)(static_cast<BOOL>(wParam), static_cast<DWORD>(lParam));
        break;
    case AfxSig_v_W:
        AFX_CALL(AfxSig_v_W)(WindowOf(wParam));
        break;
    case AfxSig_v_W_lparam:
        AFX_CALL(AfxSig_v_W_lparam)(WindowOf(lParam));
        break;
    case AfxSig_v_uWb:
        AFX_CALL(AfxSig_v_uWb)(LOWORD(wParam), WindowOf(lParam), HIWORD(wParam));
        break;
    case AfxSig_v_up:
        AFX_CALL(AfxSig_v_up)(code, CPoint(lParam));
        break;
    case AfxSig_b_usp:
        // A wheel that isn't wanted goes on to the parent, by the default.
        result = AFX_CALL(AfxSig_b_usp)(LOWORD(wParam), static_cast<short>(HIWORD(wParam)),
                                        CPoint(lParam));
        return result != 0;
    case AfxSig_b_Wuu:
        result = AFX_CALL(AfxSig_b_Wuu)(WindowOf(wParam), low, high);
        break;
    case AfxSig_v_bs_calc:
        AFX_CALL(AfxSig_v_bs_calc)
        (static_cast<BOOL>(wParam), PointerOf<NCCALCSIZE_PARAMS*>(lParam));
        break;
    case AfxSig_v_s_minmax:
        AFX_CALL(AfxSig_v_s_minmax)(PointerOf<MINMAXINFO*>(lParam));
        break;
    case AfxSig_l_p:
        result = AFX_CALL(AfxSig_l_p)(CPoint(lParam));
        break;
    case AfxSig_v_uuu:
        AFX_CALL(AfxSig_v_uuu)(code, low, high);
        break;
    case AfxSig_v_timer:
        AFX_CALL(AfxSig_v_timer)(wParam);
        break;
    case AfxSig_v_uuS:
        AFX_CALL(AfxSig_v_uuS)
        (LOWORD(wParam), HIWORD(wParam), static_cast<CScrollBar*>(WindowOf(lParam)));
        break;
    case AfxSig_v_uu:
        AFX_CALL(AfxSig_v_uu)(LOWORD(wParam), HIWORD(wParam));
        break;
    case AfxSig_v_is_draw:
        AFX_CALL(AfxSig_v_is_draw)(static_cast<int>(wParam), PointerOf<LPDRAWITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_v_is_measure:
        AFX_CALL(AfxSig_v_is_measure)
        (static_cast<int>(wParam), PointerOf<LPMEASUREITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_i_is_compare:
        result = AFX_CALL(AfxSig_i_is_compare)(static_cast<int>(wParam),
                                               PointerOf<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case AfxSig_v_is_delete:
        AFX_CALL(AfxSig_v_is_delete)
        (static_cast<int>(wParam), PointerOf<LPDELETEITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_v_s_draw:
        AFX_CALL(AfxSig_v_s_draw)(PointerOf<LPDRAWITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_v_s_measure:
        AFX_CALL(AfxSig_v_s_measure)(PointerOf<LPMEASUREITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_i_s_compare:
        result = AFX_CALL(AfxSig_i_s_compare)(PointerOf<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case AfxSig_v_s_delete:
        AFX_CALL(AfxSig_v_s_delete)(PointerOf<LPDELETEITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case AfxSig_v_ul:
        AFX_CALL(AfxSig_v_ul)(code, lParam);
        break;
    case AfxSig_v_Wp:
        AFX_CALL(AfxSig_v_Wp)(WindowOf(wParam), CPoint(lParam));
        break;
    case AfxSig_v_s_pos:
        AFX_CALL(AfxSig_v_s_pos)(PointerOf<WINDOWPOS*>(lParam));
        break;
    case AfxSig_v_is_style:
        AFX_CALL(AfxSig_v_is_style)(static_cast<int>(wParam), PointerOf<LPSTYLESTRUCT>(lParam));
        break;
    case AfxSig_v_us_setting:
        AFX_CALL(AfxSig_v_us_setting)(code, PointerOf<LPCTSTR>(lParam));
        break;
    default:
        // ON_MESSAGE; the entry of a registered message has an address where the others have
        // their signature.
        result = AFX_CALL(AfxSig_l_wl)(wParam, lParam);
        break;
    }
    return TRUE;
#undef AFX_CALL
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = PointerOf<HWND>(lParam);
    if (!control)
    {
        // From a menu or an accelerator; the high word only tells which.
        return id != 0 && OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd)
    {
        return TRUE;
    }
    if (ReflectLastMsg(control))
    {
        return TRUE;
    }
    return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* header = PointerOf<NMHDR*>(lParam);
    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd)
    {
        return TRUE;
    }
    if (ReflectLastMsg(header->hwndFrom, pResult))
    {
        return TRUE;
    }
    AFX_NOTIFY notify = {pResult, header};
    const UINT id = static_cast<WORD>(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG& message = AfxGetThreadState()->m_lastSentMsg;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* child = FromHandlePermanent(hWndChild);
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT ignored = 0;
    LRESULT* result = pResult ? pResult : &ignored;
    if (IsCtlColor(message))
    {
        return HandleByMap(WM_REFLECT_BASE + WM_CTLCOLOR, message, wParam, lParam, result);
    }
    switch (message)
    {
    case WM_COMMAND:
        return OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr,
                        nullptr);
    case WM_NOTIFY:
    {
        NMHDR* header = PointerOf<NMHDR*>(lParam);
        AFX_NOTIFY notify = {result, header};
        return OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_COMPAREITEM:
    case WM_DELETEITEM:
    case WM_PARENTNOTIFY:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return HandleByMap(WM_REFLECT_BASE + message, message, wParam, lParam, result);
    default:
        return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT brush = 0;
    if (ReflectLastMsg(HandleOf(pWnd), &brush))
    {
        return reinterpret_cast<HBRUSH>(brush);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(lpDrawItemStruct->hwndItem))
    {
        Default();
    }
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    const int id = static_cast<int>(lpMeasureItemStruct->CtlID);
    if (lpMeasureItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(::GetDlgItem(m_hWnd, id)))
    {
        Default();
    }
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &result) ? result
                                                                                   : Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
    {
        Default();
    }
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (!pScrollBar || !ReflectLastMsg(pScrollBar->m_hWnd))
    {
        Default();
    }
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    OnHScroll(nSBCode, nPos, pScrollBar);
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const UINT event = LOWORD(message);
    const bool ofChild = event == WM_CREATE || event == WM_DESTROY;
    if (!ofChild || !ReflectLastMsg(PointerOf<HWND>(lParam)))
    {
        Default();
    }
}
