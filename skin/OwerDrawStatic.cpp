#include "skin/OwerDrawStatic.h"

#include "core/Gbk.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <cstring>

namespace
{
constexpr char kDefaultFace[] = "宋体";
constexpr int kDefaultHeight = 12;
constexpr int kDefaultWeight = 400;
} // namespace

BEGIN_MESSAGE_MAP(COwerDrawStatic, CStatic)
ON_WM_PAINT()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

// A label never fills its background, so the colour of it is of no use.
COwerDrawStatic::COwerDrawStatic(COLORREF textColor, COLORREF, UINT format)
    : COwerDrawStatic(kDefaultFace, kDefaultHeight, kDefaultWeight, textColor, FALSE, format)
{
}

COwerDrawStatic::COwerDrawStatic(const char* face, int fontHeight, int fontWeight,
                                 COLORREF textColor, BOOL underline, UINT format)
    : textColor(textColor)
    , fontHeight(fontHeight)
    , fontWeight(fontWeight)
    , faceName(face)
    , underline(underline)
    , format(format)
{
}

COwerDrawStatic::COwerDrawStatic(CWnd* parent, UINT format)
    : COwerDrawStatic(parent, kDefaultFace, kDefaultHeight, kDefaultWeight, kBlackText, FALSE,
                      format)
{
}

// Nothing of the parent is needed before the label is created in it.
COwerDrawStatic::COwerDrawStatic(CWnd*, const char* face, int fontHeight, int fontWeight,
                                 COLORREF textColor, BOOL underline, UINT format)
    : COwerDrawStatic(face, fontHeight, fontWeight, textColor, underline, format)
{
}

BOOL COwerDrawStatic::Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    const BOOL created = CStatic::Create(caption, style, rect, parent, id);
    text = caption ? caption : "";
    return created;
}

void COwerDrawStatic::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    CString windowText;
    GetWindowText(windowText);
    text = windowText;
}

/// The label's text is its own, apart from the window's, which the stock static would draw.
LRESULT COwerDrawStatic::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETTEXT:
        StoreText(reinterpret_cast<const char*>(lParam));
        return TRUE;
    case WM_GETTEXT:
        return CopyText(reinterpret_cast<char*>(lParam), wParam);
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(text.size());
    default:
        return CStatic::DefWindowProc(message, wParam, lParam);
    }
}

void COwerDrawStatic::StoreText(const char* newText)
{
    text = newText ? newText : "";
    // The old text is only gone once the parent has drawn over it.
    CRect place;
    GetWindowRect(&place);
    CWnd* parent = GetParent();
    parent->ScreenToClient(&place);
    parent->InvalidateRect(&place);
}

/// @return bytes copied, without the NUL
LRESULT COwerDrawStatic::CopyText(char* buffer, size_t capacity) const
{
    if (capacity == 0)
        return 0;
    const size_t length = GbkPrefixLength(text.c_str(), capacity - 1);
    memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

void COwerDrawStatic::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const float scale = GetUIScale();
    const HFONT font = CreateFontA(static_cast<int>(fontHeight * scale), 0, 0, 0, fontWeight, FALSE,
                                   static_cast<DWORD>(underline * scale), FALSE, DEFAULT_CHARSET,
                                   OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                   DEFAULT_PITCH | FF_DONTCARE, faceName.c_str());
    const HGDIOBJ oldFont = SelectObject(dc, font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(textColor);
    WrapIfTooWide(dc, client.Width());
    DrawTextA(dc, text.c_str(), -1, &client, format);
    SelectObject(dc, oldFont);
    DeleteObject(font);
}

/// A label that was once too narrow goes on wrapping, also for a shorter text; that is meant.
void COwerDrawStatic::WrapIfTooWide(CDC& dc, int width)
{
    SIZE extent = {};
    GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size()), &extent);
    if (extent.cx > width)
        format = (format & ~(DT_VCENTER | DT_SINGLELINE)) | DT_WORDBREAK;
}

void COwerDrawStatic::OnMouseMove(UINT flags, CPoint point)
{
    if (!hover)
    {
        hover = true;
        TRACKMOUSEEVENT leaving = {sizeof(leaving), TME_HOVER | TME_LEAVE, m_hWnd, HOVER_DEFAULT};
        _TrackMouseEvent(&leaving);
    }
    ::SetCursor(::LoadCursor(nullptr, IDC_HAND));
    CStatic::OnMouseMove(flags, point);
}

void COwerDrawStatic::OnMouseLeave()
{
    hover = false;
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
}

HBRUSH COwerDrawStatic::OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
{
    if (kind != CTLCOLOR_STATIC)
        return CStatic::OnCtlColor(dc, wnd, kind);
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(kControlText);
    return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
}
