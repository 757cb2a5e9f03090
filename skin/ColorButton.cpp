#include "skin/ColorButton.h"

#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"
#include "skin/SkinLayout.h"

namespace
{

constexpr int kCaptionCapacity = 64;

} // namespace

CColorButton::CColorButton()
{
    SetBackColors(kOkButton, kOkButtonHover, kOkButtonPressed);
    SetTextColors(kDialogButtonText, kDialogButtonText, kDialogButtonText);
}

void CColorButton::SetBackColors(COLORREF normal, COLORREF hover, COLORREF pressed)
{
    backColors[0] = normal;
    backColors[1] = hover;
    backColors[2] = pressed;
    Redraw();
}

void CColorButton::SetTextColors(COLORREF normal, COLORREF pressed, COLORREF hover)
{
    textColors2[0] = normal;
    textColors2[1] = pressed;
    textColors2[2] = hover;
    Redraw();
}

void CColorButton::SetFace(const char* name, int height, int weight)
{
    CopyCut(faceName, name);
    fontHeight = height;
    fontWeight = weight;
    Redraw();
}

void CColorButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    COLORREF back = backColors[0];
    COLORREF front = textColors2[0];
    if (state == ButtonState::Hover)
    {
        back = backColors[1];
        front = textColors2[2];
    }
    else if (state == ButtonState::Pressed)
    {
        back = backColors[2];
        front = textColors2[1];
    }
    if (SendMessage(BM_GETSTATE, 0, 0) & BST_INDETERMINATE)
        back = kUndecidedButton;

    // Not from the cache, which keeps what it makes: a page may choose any colours.
    CBrush brush(back);
    FillRect(item->hDC, &item->rcItem, static_cast<HBRUSH>(brush.GetSafeHandle()));

    CString text;
    GetWindowText(text);
    char caption[kCaptionCapacity];
    CopyCut(caption, text);
    const HFONT made = MakeFont();
    const auto parentFont =
        reinterpret_cast<HFONT>(::SendMessageA(::GetParent(m_hWnd), WM_GETFONT, 0, 0));
    DrawCentredText(item->hDC, CRect(item->rcItem).CenterPoint(), caption, made ? made : parentFont,
                    front);
    if (made)
        DeleteObject(made);
}

HFONT CColorButton::MakeFont() const
{
    if (!faceName[0])
        return nullptr;
    return CreateFontA(Scaled(fontHeight), 0, 0, 0, fontWeight, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                       FF_SWISS, faceName);
}
