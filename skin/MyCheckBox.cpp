#include "skin/MyCheckBox.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"
#include "skin/SkinLayout.h"

namespace
{

constexpr int kTextCapacity = 512;

// At these the stock button draws its own look at once, past WM_PAINT.
bool MakesStockButtonDraw(UINT message)
{
    switch (message)
    {
    case BM_SETCHECK:
    case BM_SETSTATE:
    case BM_SETSTYLE:
    case BM_SETIMAGE:
    case WM_SETTEXT:
    case WM_SETFONT:
    case WM_ENABLE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
        return true;
    default:
        return false;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CMyCheckBox_MyCtrl, CButton)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CMyCheckBox_MyCtrl::CMyCheckBox_MyCtrl()
    : backColor(GetSysColor(COLOR_WINDOW))
    , textColor(kControlText)
{
    SetBitmap(GetSkinBitmap(".\\skin\\Ctrl\\Check.bmp"));
}

void CMyCheckBox_MyCtrl::SetCheck(int check)
{
    CButton::SetCheck(check);
    Redraw();
}

void CMyCheckBox_MyCtrl::SetBitmap(HBITMAP newBitmap)
{
    bitmap = newBitmap;
    const SIZE size = GetBitmapSize(bitmap);
    cellWidth = size.cx / kCheckCells;
    cellHeight = size.cy;
    Redraw();
}

void CMyCheckBox_MyCtrl::SetTextGap(int gap)
{
    textGap = gap;
    Redraw();
}

void CMyCheckBox_MyCtrl::SetBackColor(COLORREF color)
{
    backColor = color;
    Redraw();
}

void CMyCheckBox_MyCtrl::SetTextColor(COLORREF color)
{
    textColor = color;
    Redraw();
}

void CMyCheckBox_MyCtrl::SetDrawFrame(bool draw)
{
    drawFrame = draw;
    Redraw();
}

LRESULT CMyCheckBox_MyCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!MakesStockButtonDraw(message))
        return CButton::WindowProc(message, wParam, lParam);

    const bool visible = (GetStyle() & WS_VISIBLE) != 0;
    if (visible)
        SetRedraw(FALSE);
    const LRESULT result = CButton::WindowProc(message, wParam, lParam);
    if (visible)
        SetRedraw(TRUE);
    Redraw();
    return result;
}

void CMyCheckBox_MyCtrl::OnPaint()
{
    CPaintDC dc(this);
    DrawBackground(dc.m_hDC);
    DrawCell(dc.m_hDC);
    DrawCaption(dc.m_hDC);
}

BOOL CMyCheckBox_MyCtrl::OnEraseBkgnd(CDC* dc)
{
    DrawBackground(dc->m_hDC);
    return TRUE;
}

void CMyCheckBox_MyCtrl::DrawBackground(HDC dc)
{
    CRect client;
    GetClientRect(&client);
    FillRect(dc, &client, GetCachedBrush(backColor));
    if (drawFrame)
        FrameRect(dc, &client, GetCachedBrush(kThinFrame));
}

void CMyCheckBox_MyCtrl::DrawCell(HDC dc)
{
    CRect client;
    GetClientRect(&client);
    const bool enabled = (GetStyle() & WS_DISABLED) == 0;
    const int cell = CheckBoxCell(GetCheck() == BST_CHECKED, enabled, pressed);
    DrawBitmapPart(dc, bitmap, CheckBoxPart(cell, cellWidth, cellHeight, client.Height()));
}

void CMyCheckBox_MyCtrl::DrawCaption(HDC dc)
{
    CString caption;
    GetWindowText(caption);
    char text[kTextCapacity];
    CopyCut(text, caption);
    CRect area;
    GetClientRect(&area);
    area.left += CheckBoxTextLeft(cellWidth, textGap);
    const auto font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT, 0, 0));
    DrawTextLine(dc, text, area, font, textColor);
}

void CMyCheckBox_MyCtrl::OnLButtonDown(UINT, CPoint)
{
    // As a stock check box does: the keyboard goes on from where the mouse was.
    if (GetFocus() != this)
        SetFocus();
    SetCapture();
    pressed = true;
    Redraw();
}

void CMyCheckBox_MyCtrl::OnLButtonUp(UINT, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    // The left up of a double click has no left down of its own.
    const bool clicked = pressed && HitsClientArea(point.x, point.y, client.right, client.bottom);
    pressed = false;
    if (clicked)
        Toggle();
    Redraw();
    ReleaseCapture();
}

void CMyCheckBox_MyCtrl::OnLButtonDblClk(UINT, CPoint)
{
    // Meant: the second press of a quick double click does not toggle.
}

void CMyCheckBox_MyCtrl::OnCaptureChanged(CWnd* wnd)
{
    // Taken away in the middle of a click, whose left up will not come.
    pressed = false;
    Redraw();
    CButton::OnCaptureChanged(wnd);
}

void CMyCheckBox_MyCtrl::Toggle()
{
    SetCheck(!GetCheck());
    ::PostMessageA(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

void CMyCheckBox_MyCtrl::Redraw()
{
    if (m_hWnd)
        Invalidate(FALSE);
}
