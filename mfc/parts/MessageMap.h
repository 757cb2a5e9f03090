#pragma once

#include "mfc/parts/Wnd.h"

#include <cstring>

// The lines of a message map. Each names the handler's exact type, so that a handler of another
// signature does not compile.

/// The type of a handler of this signature.
template <AfxSig sig>
struct AfxSigTraits;

#define AFX_SIGNATURE(sig, ...)                                                                    \
    template <>                                                                                    \
    struct AfxSigTraits<sig>                                                                       \
    {                                                                                              \
        using Handler = __VA_ARGS__;                                                               \
    };

// clang-format off
AFX_SIGNATURE(AfxSigCmd_v, void (CCmdTarget::*)())
AFX_SIGNATURE(AfxSigCmd_b, BOOL (CCmdTarget::*)())
AFX_SIGNATURE(AfxSigCmd_v_u, void (CCmdTarget::*)(UINT))
AFX_SIGNATURE(AfxSigCmd_b_u, BOOL (CCmdTarget::*)(UINT))
AFX_SIGNATURE(AfxSigNotify_v, void (CCmdTarget::*)(NMHDR*, LRESULT*))
AFX_SIGNATURE(AfxSigNotify_b, BOOL (CCmdTarget::*)(NMHDR*, LRESULT*))
AFX_SIGNATURE(AfxSigNotify_v_u, void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*))
AFX_SIGNATURE(AfxSigNotify_b_u, BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*))
AFX_SIGNATURE(AfxSig_l_wl, LRESULT (CWnd::*)(WPARAM, LPARAM))
AFX_SIGNATURE(AfxSig_v, void (CWnd::*)())
AFX_SIGNATURE(AfxSig_u, UINT (CWnd::*)())
AFX_SIGNATURE(AfxSig_v_b, void (CWnd::*)(BOOL))
AFX_SIGNATURE(AfxSig_b_b, BOOL (CWnd::*)(BOOL))
AFX_SIGNATURE(AfxSig_b_D, BOOL (CWnd::*)(CDC*))
AFX_SIGNATURE(AfxSig_i_create, int (CWnd::*)(LPCREATESTRUCT))
AFX_SIGNATURE(AfxSig_v_uii, void (CWnd::*)(UINT, int, int))
AFX_SIGNATURE(AfxSig_v_ii, void (CWnd::*)(int, int))
AFX_SIGNATURE(AfxSig_h_DWu, HBRUSH (CWnd::*)(CDC*, CWnd*, UINT))
AFX_SIGNATURE(AfxSig_h_Du, HBRUSH (CWnd::*)(CDC*, UINT))
AFX_SIGNATURE(AfxSig_v_bu, void (CWnd::*)(BOOL, UINT))
AFX_SIGNATURE(AfxSig_v_bl, void (CWnd::*)(BOOL, DWORD))
AFX_SIGNATURE(AfxSig_v_W, void (CWnd::*)(CWnd*))
AFX_SIGNATURE(AfxSig_v_W_lparam, void (CWnd::*)(CWnd*))
AFX_SIGNATURE(AfxSig_v_uWb, void (CWnd::*)(UINT, CWnd*, BOOL))
AFX_SIGNATURE(AfxSig_v_up, void (CWnd::*)(UINT, CPoint))
AFX_SIGNATURE(AfxSig_b_usp, BOOL (CWnd::*)(UINT, short, CPoint))
AFX_SIGNATURE(AfxSig_b_Wuu, BOOL (CWnd::*)(CWnd*, UINT, UINT))
AFX_SIGNATURE(AfxSig_v_bs_calc, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*))
AFX_SIGNATURE(AfxSig_v_s_minmax, void (CWnd::*)(MINMAXINFO*))
AFX_SIGNATURE(AfxSig_l_p, LRESULT (CWnd::*)(CPoint))
AFX_SIGNATURE(AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT))
AFX_SIGNATURE(AfxSig_v_timer, void (CWnd::*)(UINT_PTR))
AFX_SIGNATURE(AfxSig_v_uuS, void (CWnd::*)(UINT, UINT, CScrollBar*))
AFX_SIGNATURE(AfxSig_v_uu, void (CWnd::*)(UINT, UINT))
AFX_SIGNATURE(AfxSig_v_is_draw, void (CWnd::*)(int, LPDRAWITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_is_measure, void (CWnd::*)(int, LPMEASUREITEMSTRUCT))
AFX_SIGNATURE(AfxSig_i_is_compare, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_is_delete, void (CWnd::*)(int, LPDELETEITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_s_draw, void (CWnd::*)(LPDRAWITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_s_measure, void (CWnd::*)(LPMEASUREITEMSTRUCT))
AFX_SIGNATURE(AfxSig_i_s_compare, int (CWnd::*)(LPCOMPAREITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_s_delete, void (CWnd::*)(LPDELETEITEMSTRUCT))
AFX_SIGNATURE(AfxSig_v_ul, void (CWnd::*)(UINT, LPARAM))
AFX_SIGNATURE(AfxSig_v_Wp, void (CWnd::*)(CWnd*, CPoint))
AFX_SIGNATURE(AfxSig_v_s_pos, void (CWnd::*)(WINDOWPOS*))
AFX_SIGNATURE(AfxSig_v_is_style, void (CWnd::*)(int, LPSTYLESTRUCT))
AFX_SIGNATURE(AfxSig_v_us_setting, void (CWnd::*)(UINT, LPCTSTR))
// clang-format on
#undef AFX_SIGNATURE

template <AfxSig sig>
using AfxHandler = typename AfxSigTraits<sig>::Handler;

/// Takes the type of a handler away, and gives it back. Every pointer to a member function has one
/// layout here, and CCmdTarget stands first in every class, so the bits are all there is.
template <AfxSig sig>
AFX_PMSG AfxEraseHandler(AfxHandler<sig> handler)
{
    static_assert(sizeof(AFX_PMSG) == sizeof(handler), "pointers to members differ in size");
    AFX_PMSG erased;
    std::memcpy(&erased, &handler, sizeof(erased));
    return erased;
}

template <AfxSig sig>
AfxHandler<sig> AfxTypedHandler(AFX_PMSG erased)
{
    AfxHandler<sig> handler;
    std::memcpy(&handler, &erased, sizeof(handler));
    return handler;
}

#define AFX_ENTRY(message, code, id, lastId, sig, memberFxn)                                       \
    {message,                                                                                      \
     static_cast<WORD>(code),                                                                      \
     static_cast<WORD>(id),                                                                        \
     static_cast<WORD>(lastId),                                                                    \
     sig,                                                                                          \
     AfxEraseHandler<sig>(static_cast<AfxHandler<sig>>(memberFxn))},
#define AFX_MESSAGE_ENTRY(message, sig, memberFxn) AFX_ENTRY(message, 0, 0, 0, sig, memberFxn)

/// Reflected messages: the message plus this base, offered to the control that sent it.
#define WM_REFLECT_BASE 0xBC00
/// All WM_CTLCOLOR... messages under one number.
#define WM_CTLCOLOR 0x0019

// Any message.
#define ON_MESSAGE(message, memberFxn) AFX_MESSAGE_ENTRY(message, AfxSig_l_wl, memberFxn)
#define ON_MESSAGE_REFLECT(message, memberFxn)                                                     \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + (message), AfxSig_l_wl, memberFxn)
/// A message from RegisterWindowMessage, kept in a static UINT.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                         \
    {0xC000,                                                                                       \
     0,                                                                                            \
     0,                                                                                            \
     0,                                                                                            \
     reinterpret_cast<UINT_PTR>(&(nMessageVariable)),                                              \
     AfxEraseHandler<AfxSig_l_wl>(static_cast<AfxHandler<AfxSig_l_wl>>(memberFxn))},

// Commands and control notifications.
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                     \
    AFX_ENTRY(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                       \
    AFX_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_v_u, memberFxn)
#define ON_COMMAND(id, memberFxn) ON_CONTROL(CN_COMMAND, id, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) ON_CONTROL_RANGE(CN_COMMAND, id, idLast, memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                               \
    AFX_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_b_u, memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                 \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_v, memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                              \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_b, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                      \
    AFX_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                   \
    AFX_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_b_u, memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                        \
    AFX_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_v_u, memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                  \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_v, memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                               \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_b, memberFxn)

// Control notifications by name.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)

// Messages of windows; each goes to the handler of the customary name.
#define ON_WM_CREATE() AFX_MESSAGE_ENTRY(WM_CREATE, AfxSig_i_create, &ThisClass::OnCreate)
#define ON_WM_NCCREATE() AFX_MESSAGE_ENTRY(WM_NCCREATE, AfxSig_i_create, &ThisClass::OnNcCreate)
#define ON_WM_DESTROY() AFX_MESSAGE_ENTRY(WM_DESTROY, AfxSig_v, &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_MESSAGE_ENTRY(WM_NCDESTROY, AfxSig_v, &ThisClass::OnNcDestroy)
#define ON_WM_CLOSE() AFX_MESSAGE_ENTRY(WM_CLOSE, AfxSig_v, &ThisClass::OnClose)
#define ON_WM_SIZE() AFX_MESSAGE_ENTRY(WM_SIZE, AfxSig_v_uii, &ThisClass::OnSize)
#define ON_WM_MOVE() AFX_MESSAGE_ENTRY(WM_MOVE, AfxSig_v_ii, &ThisClass::OnMove)
#define ON_WM_GETMINMAXINFO()                                                                      \
    AFX_MESSAGE_ENTRY(WM_GETMINMAXINFO, AfxSig_v_s_minmax, &ThisClass::OnGetMinMaxInfo)
#define ON_WM_PAINT() AFX_MESSAGE_ENTRY(WM_PAINT, AfxSig_v, &ThisClass::OnPaint)
#define ON_WM_ERASEBKGND() AFX_MESSAGE_ENTRY(WM_ERASEBKGND, AfxSig_b_D, &ThisClass::OnEraseBkgnd)
#define ON_WM_CTLCOLOR() AFX_MESSAGE_ENTRY(WM_CTLCOLOR, AfxSig_h_DWu, &ThisClass::OnCtlColor)
#define ON_WM_SHOWWINDOW() AFX_MESSAGE_ENTRY(WM_SHOWWINDOW, AfxSig_v_bu, &ThisClass::OnShowWindow)
#define ON_WM_ENABLE() AFX_MESSAGE_ENTRY(WM_ENABLE, AfxSig_v_b, &ThisClass::OnEnable)
#define ON_WM_SETFOCUS() AFX_MESSAGE_ENTRY(WM_SETFOCUS, AfxSig_v_W, &ThisClass::OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_MESSAGE_ENTRY(WM_KILLFOCUS, AfxSig_v_W, &ThisClass::OnKillFocus)
#define ON_WM_ACTIVATE() AFX_MESSAGE_ENTRY(WM_ACTIVATE, AfxSig_v_uWb, &ThisClass::OnActivate)
#define ON_WM_ACTIVATEAPP()                                                                        \
    AFX_MESSAGE_ENTRY(WM_ACTIVATEAPP, AfxSig_v_bl, &ThisClass::OnActivateApp)
#define ON_WM_MOUSEACTIVATE()                                                                      \
    AFX_MESSAGE_ENTRY(WM_MOUSEACTIVATE, AfxSig_b_Wuu, &ThisClass::OnMouseActivate)
#define ON_WM_CANCELMODE() AFX_MESSAGE_ENTRY(WM_CANCELMODE, AfxSig_v, &ThisClass::OnCancelMode)
#define ON_WM_CAPTURECHANGED()                                                                     \
    AFX_MESSAGE_ENTRY(WM_CAPTURECHANGED, AfxSig_v_W_lparam, &ThisClass::OnCaptureChanged)
#define ON_WM_LBUTTONDOWN()                                                                        \
    AFX_MESSAGE_ENTRY(WM_LBUTTONDOWN, AfxSig_v_up, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MESSAGE_ENTRY(WM_LBUTTONUP, AfxSig_v_up, &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK()                                                                      \
    AFX_MESSAGE_ENTRY(WM_LBUTTONDBLCLK, AfxSig_v_up, &ThisClass::OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN()                                                                        \
    AFX_MESSAGE_ENTRY(WM_RBUTTONDOWN, AfxSig_v_up, &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MESSAGE_ENTRY(WM_RBUTTONUP, AfxSig_v_up, &ThisClass::OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK()                                                                      \
    AFX_MESSAGE_ENTRY(WM_RBUTTONDBLCLK, AfxSig_v_up, &ThisClass::OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN()                                                                        \
    AFX_MESSAGE_ENTRY(WM_MBUTTONDOWN, AfxSig_v_up, &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_MESSAGE_ENTRY(WM_MBUTTONUP, AfxSig_v_up, &ThisClass::OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK()                                                                      \
    AFX_MESSAGE_ENTRY(WM_MBUTTONDBLCLK, AfxSig_v_up, &ThisClass::OnMButtonDblClk)
#define ON_WM_MOUSEMOVE() AFX_MESSAGE_ENTRY(WM_MOUSEMOVE, AfxSig_v_up, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEHOVER() AFX_MESSAGE_ENTRY(WM_MOUSEHOVER, AfxSig_v_up, &ThisClass::OnMouseHover)
#define ON_WM_MOUSELEAVE() AFX_MESSAGE_ENTRY(WM_MOUSELEAVE, AfxSig_v, &ThisClass::OnMouseLeave)
#define ON_WM_MOUSEWHEEL() AFX_MESSAGE_ENTRY(WM_MOUSEWHEEL, AfxSig_b_usp, &ThisClass::OnMouseWheel)
#define ON_WM_SETCURSOR() AFX_MESSAGE_ENTRY(WM_SETCURSOR, AfxSig_b_Wuu, &ThisClass::OnSetCursor)
#define ON_WM_NCCALCSIZE()                                                                         \
    AFX_MESSAGE_ENTRY(WM_NCCALCSIZE, AfxSig_v_bs_calc, &ThisClass::OnNcCalcSize)
#define ON_WM_NCPAINT() AFX_MESSAGE_ENTRY(WM_NCPAINT, AfxSig_v, &ThisClass::OnNcPaint)
#define ON_WM_NCHITTEST() AFX_MESSAGE_ENTRY(WM_NCHITTEST, AfxSig_l_p, &ThisClass::OnNcHitTest)
#define ON_WM_NCACTIVATE() AFX_MESSAGE_ENTRY(WM_NCACTIVATE, AfxSig_b_b, &ThisClass::OnNcActivate)
#define ON_WM_NCLBUTTONDOWN()                                                                      \
    AFX_MESSAGE_ENTRY(WM_NCLBUTTONDOWN, AfxSig_v_up, &ThisClass::OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP()                                                                        \
    AFX_MESSAGE_ENTRY(WM_NCLBUTTONUP, AfxSig_v_up, &ThisClass::OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK()                                                                    \
    AFX_MESSAGE_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_v_up, &ThisClass::OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN()                                                                      \
    AFX_MESSAGE_ENTRY(WM_NCRBUTTONDOWN, AfxSig_v_up, &ThisClass::OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP()                                                                        \
    AFX_MESSAGE_ENTRY(WM_NCRBUTTONUP, AfxSig_v_up, &ThisClass::OnNcRButtonUp)
#define ON_WM_NCMOUSEMOVE()                                                                        \
    AFX_MESSAGE_ENTRY(WM_NCMOUSEMOVE, AfxSig_v_up, &ThisClass::OnNcMouseMove)
#define ON_WM_KEYDOWN() AFX_MESSAGE_ENTRY(WM_KEYDOWN, AfxSig_v_uuu, &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFX_MESSAGE_ENTRY(WM_KEYUP, AfxSig_v_uuu, &ThisClass::OnKeyUp)
#define ON_WM_CHAR() AFX_MESSAGE_ENTRY(WM_CHAR, AfxSig_v_uuu, &ThisClass::OnChar)
#define ON_WM_SYSKEYDOWN() AFX_MESSAGE_ENTRY(WM_SYSKEYDOWN, AfxSig_v_uuu, &ThisClass::OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_MESSAGE_ENTRY(WM_SYSKEYUP, AfxSig_v_uuu, &ThisClass::OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_MESSAGE_ENTRY(WM_SYSCHAR, AfxSig_v_uuu, &ThisClass::OnSysChar)
#define ON_WM_TIMER() AFX_MESSAGE_ENTRY(WM_TIMER, AfxSig_v_timer, &ThisClass::OnTimer)
#define ON_WM_HSCROLL() AFX_MESSAGE_ENTRY(WM_HSCROLL, AfxSig_v_uuS, &ThisClass::OnHScroll)
#define ON_WM_VSCROLL() AFX_MESSAGE_ENTRY(WM_VSCROLL, AfxSig_v_uuS, &ThisClass::OnVScroll)
#define ON_WM_DRAWITEM() AFX_MESSAGE_ENTRY(WM_DRAWITEM, AfxSig_v_is_draw, &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                        \
    AFX_MESSAGE_ENTRY(WM_MEASUREITEM, AfxSig_v_is_measure, &ThisClass::OnMeasureItem)
#define ON_WM_COMPAREITEM()                                                                        \
    AFX_MESSAGE_ENTRY(WM_COMPAREITEM, AfxSig_i_is_compare, &ThisClass::OnCompareItem)
#define ON_WM_DELETEITEM()                                                                         \
    AFX_MESSAGE_ENTRY(WM_DELETEITEM, AfxSig_v_is_delete, &ThisClass::OnDeleteItem)
#define ON_WM_GETDLGCODE() AFX_MESSAGE_ENTRY(WM_GETDLGCODE, AfxSig_u, &ThisClass::OnGetDlgCode)
#define ON_WM_SYSCOMMAND() AFX_MESSAGE_ENTRY(WM_SYSCOMMAND, AfxSig_v_ul, &ThisClass::OnSysCommand)
#define ON_WM_PARENTNOTIFY()                                                                       \
    AFX_MESSAGE_ENTRY(WM_PARENTNOTIFY, AfxSig_v_ul, &ThisClass::OnParentNotify)
#define ON_WM_CONTEXTMENU()                                                                        \
    AFX_MESSAGE_ENTRY(WM_CONTEXTMENU, AfxSig_v_Wp, &ThisClass::OnContextMenu)
#define ON_WM_WINDOWPOSCHANGING()                                                                  \
    AFX_MESSAGE_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_v_s_pos, &ThisClass::OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED()                                                                   \
    AFX_MESSAGE_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_s_pos, &ThisClass::OnWindowPosChanged)
#define ON_WM_STYLECHANGING()                                                                      \
    AFX_MESSAGE_ENTRY(WM_STYLECHANGING, AfxSig_v_is_style, &ThisClass::OnStyleChanging)
#define ON_WM_STYLECHANGED()                                                                       \
    AFX_MESSAGE_ENTRY(WM_STYLECHANGED, AfxSig_v_is_style, &ThisClass::OnStyleChanged)
#define ON_WM_SETTINGCHANGE()                                                                      \
    AFX_MESSAGE_ENTRY(WM_SETTINGCHANGE, AfxSig_v_us_setting, &ThisClass::OnSettingChange)
#define ON_WM_SYSCOLORCHANGE()                                                                     \
    AFX_MESSAGE_ENTRY(WM_SYSCOLORCHANGE, AfxSig_v, &ThisClass::OnSysColorChange)

// Messages to the parent, handled by the control that caused them.
#define ON_WM_CTLCOLOR_REFLECT()                                                                   \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_h_Du, &ThisClass::CtlColor)
#define ON_WM_DRAWITEM_REFLECT()                                                                   \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_v_s_draw, &ThisClass::DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_v_s_measure, &ThisClass::MeasureItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_i_s_compare, &ThisClass::CompareItem)
#define ON_WM_DELETEITEM_REFLECT()                                                                 \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_v_s_delete, &ThisClass::DeleteItem)
#define ON_WM_HSCROLL_REFLECT()                                                                    \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_v_uu, &ThisClass::HScroll)
#define ON_WM_VSCROLL_REFLECT()                                                                    \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_v_uu, &ThisClass::VScroll)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                               \
    AFX_MESSAGE_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_v_ul, &ThisClass::ParentNotify)
