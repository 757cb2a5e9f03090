#include "skin/BlackButton.h"

#include "skin/SkinDraw.h"

#include <commctrl.h>

namespace
{

constexpr int kCaptionHeight = 13;
constexpr COLORREF kHighestColor = 0xFFFFFF;

TRIVERTEX Corner(LONG x, LONG y, COLORREF color)
{
    // A channel has 16 bits here.
    const auto channel = [](BYTE value)
    {
        return static_cast<COLOR16>(value << 8);
    };
    return {x, y, channel(GetRValue(color)), channel(GetGValue(color)), channel(GetBValue(color)),
            0};
}

void FillGradient(HDC dc, const RECT& area, COLORREF top, COLORREF bottom)
{
    TRIVERTEX corners[] = {Corner(area.left, area.top, top),
                           Corner(area.right, area.bottom, bottom)};
    GRADIENT_RECT ends = {0, 1};
    GradientFill(dc, corners, 2, &ends, 1, GRADIENT_FILL_RECT_V);
}

} // namespace

BEGIN_MESSAGE_MAP(CBlackButton, CButton)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_KILLFOCUS()
ON_WM_KEYDOWN()
ON_WM_ERASEBKGND()
ON_WM_GETDLGCODE()
ON_MESSAGE(BM_SETSTYLE, OnSetStyle)
END_MESSAGE_MAP()

CBlackButton::CBlackButton()
    : spareColors{kBlackText, kDarkButtonSpare, GetSysColor(COLOR_GRAYTEXT)}
{
}

void CBlackButton::SetGradient(COLORREF top, COLORREF bottom, COLORREF newPressedTop,
                               COLORREF newPressedBottom, COLORREF newThirdTop,
                               COLORREF newThirdBottom)
{
    normalTop = top;
    normalBottom = bottom;
    pressedTop = newPressedTop;
    pressedBottom = newPressedBottom;
    thirdTop = newThirdTop;
    thirdBottom = newThirdBottom;
    Redraw();
}

void CBlackButton::SetCaptionColor(COLORREF color)
{
    captionColor = color;
    Redraw();
}

void CBlackButton::SetEnabledLook(bool disabled)
{
    Advance(disabled ? ButtonEvent::LookDisabled : ButtonEvent::LookEnabled);
}

void CBlackButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW);
}

void CBlackButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    rect = item->rcItem;
    GetWindowText(text);
    const CPoint centre = CRect(rect).CenterPoint();

    const HDC dc = item->hDC;
    const int saved = SaveDC(dc);
    COLORREF color = kDarkButtonDisabledText;
    if (GetStyle() & WS_DISABLED)
    {
        const ButtonState kept = state;
        state = ButtonState::Third;
        DrawButtonFace(dc);
        state = kept;
    }
    else
    {
        DrawButtonFace(dc);
        color = captionColor <= kHighestColor ? captionColor
                                              : CaptionColorOn(GetPixel(dc, centre.x, centre.y));
    }
    DrawCaption(dc, centre.x, centre.y, text, color);
    RestoreDC(dc, saved);
}

void CBlackButton::DrawButtonFace(HDC dc)
{
    if (HasFocus())
        state = NextButtonState(state, ButtonEvent::FocusShown);

    CRect face;
    GetClientRect(&face);
    if (state == ButtonState::Pressed)
        FillGradient(dc, face, pressedTop, pressedBottom);
    else if (state == ButtonState::Third)
        FillGradient(dc, face, thirdTop, thirdBottom);
    else
        FillGradient(dc, face, normalTop, normalBottom);

    CBrush edge(kDarkButtonEdge);
    FrameRect(dc, &face, static_cast<HBRUSH>(edge.GetSafeHandle()));
}

void CBlackButton::DrawCaption(HDC dc, int x, int y, const char* caption, COLORREF color)
{
    const HFONT font =
        CreateFontA(kCaptionHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, FF_SWISS, "Tahoma");
    DrawCentredText(dc, {x, y}, caption, font, color);
    DeleteObject(font);
}

void CBlackButton::OnLButtonDown(UINT flags, CPoint point)
{
    if (state == ButtonState::Disabled)
        return;
    Advance(ButtonEvent::Down);
    TakeFocus();
    CButton::OnLButtonDown(flags, point);
    Redraw();
}

void CBlackButton::OnLButtonUp(UINT flags, CPoint point)
{
    if (state == ButtonState::Disabled)
        return;
    Advance(ButtonEvent::Up);
    TakeFocus();
    // The click's command may end the dialog, and this object with it.
    const HWND window = m_hWnd;
    CButton::OnLButtonUp(flags, point);
    if (::IsWindow(window))
        ::InvalidateRect(window, nullptr, FALSE);
}

// An owner-drawn button would tell its parent of a double click and miss the second press.
void CBlackButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

void CBlackButton::OnMouseMove(UINT flags, CPoint point)
{
    CButton::OnMouseMove(flags, point);
    if (tracking)
        return;
    tracking = true;
    TRACKMOUSEEVENT request{sizeof(request), TME_HOVER | TME_LEAVE, m_hWnd, HOVER_DEFAULT};
    _TrackMouseEvent(&request);
    Advance(ButtonEvent::MouseEnters);
}

void CBlackButton::OnMouseLeave()
{
    if (!tracking)
        return;
    tracking = false;
    Advance(ButtonEvent::MouseLeaves);
}

void CBlackButton::OnKillFocus(CWnd* wnd)
{
    CButton::OnKillFocus(wnd);
    Advance(ButtonEvent::FocusLost);
}

void CBlackButton::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (state != ButtonState::Disabled)
        CButton::OnKeyDown(key, repeats, flags);
}

BOOL CBlackButton::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

// To the dialog an owner-drawn button is no push button, and Return would press the dialog's default
// button in place of the one that has the focus.
UINT CBlackButton::OnGetDlgCode()
{
    const bool isDefault = GetFocus() == this && state != ButtonState::Disabled;
    return DLGC_BUTTON | (isDefault ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
}

// The dialog makes the push button with the focus its default one by another style, with which the
// stock control would draw it.
LRESULT CBlackButton::OnSetStyle(WPARAM, LPARAM redraw)
{
    return DefWindowProc(BM_SETSTYLE, BS_OWNERDRAW, redraw);
}

bool CBlackButton::HasFocus() const
{
    return (::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0) & BST_FOCUS) != 0;
}

void CBlackButton::Advance(ButtonEvent event)
{
    state = NextButtonState(state, event);
    Redraw();
}

void CBlackButton::TakeFocus()
{
    if (GetFocus() != this)
        SetFocus();
}

void CBlackButton::Redraw()
{
    if (m_hWnd)
        Invalidate(FALSE);
}
