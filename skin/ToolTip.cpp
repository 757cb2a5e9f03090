#include "skin/ToolTip.h"

#include "core/Gbk.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <oleacc.h>

namespace
{

// A page's template has the same number, so the tip never loads it: its own, an empty window, is
// made here.
constexpr UINT kTemplateId = 6022;

struct EmptyTemplate
{
    DLGTEMPLATE dialog;
    WORD menu;
    WORD windowClass;
    WORD title;
};

alignas(DWORD) constexpr EmptyTemplate kTemplate = {
    {WS_POPUP, WS_EX_TOOLWINDOW, 0, 0, 0, 0, 0}, 0, 0, 0};

constexpr size_t kTextBytes = 4095;
constexpr int kBelowPoint = 20;
constexpr int kAlignLeft = 2;
constexpr int kLeftOfPoint = 2;
constexpr int kTextLeft = 3;
constexpr int kTextTop = 1;

} // namespace

BEGIN_MESSAGE_MAP(CToolTip, CDialog)
ON_WM_SIZE()
END_MESSAGE_MAP()

CToolTip::CToolTip()
    : CDialog(kTemplateId)
    , font(GetCachedFont("Tahoma", 15, 400))
    , clientRect(0, 0, 0, 0)
{
}

BOOL CToolTip::Create(CWnd* parent)
{
    return CreateIndirect(&kTemplate.dialog, parent);
}

void CToolTip::ShowAt(const char* newText, POINT* pt, int screenRight)
{
    if (!TakeText(newText))
        return;
    const TipSize size = MeasureText();
    if (screenRight > 0 && pt->x + size.width > screenRight)
        pt->x = screenRight - size.width;
    Place(*pt, size);
}

void CToolTip::ShowAligned(const char* newText, POINT* pt, int align)
{
    if (!TakeText(newText))
        return;
    const TipSize size = MeasureText();
    if (align == kAlignLeft)
        pt->x -= size.width + kLeftOfPoint;
    Place(*pt, size);
}

/// @return whether there is a new text to show
bool CToolTip::TakeText(const char* newText)
{
    if (!newText || *newText == '\0')
    {
        Hide();
        return false;
    }
    if (!m_hWnd || text == newText)
        return false;
    text.assign(newText, GbkPrefixLength(newText, kTextBytes));
    return true;
}

TipSize CToolTip::MeasureText()
{
    CClientDC screen(nullptr);
    const HGDIOBJ oldFont = SelectObject(screen, font);
    const TipMeasure measure = MeasureTip(
        TipLines(text.c_str()),
        [&](const std::string& line)
        {
            SIZE extent = {};
            GetTextExtentPoint32A(screen, line.data(), static_cast<int>(line.size()), &extent);
            return TipSize{extent.cx, extent.cy};
        });
    SelectObject(screen, oldFont);
    lineHeight = measure.lineHeight;
    return measure.window;
}

void CToolTip::Place(const POINT& pt, const TipSize& size)
{
    SetWindowPos(&wndTop, pt.x, pt.y + kBelowPoint, size.width, size.height,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate();
    visible = true;
}

void CToolTip::Hide()
{
    if (!visible)
        return;
    text.clear();
    visible = false;
    if (m_hWnd)
        ShowWindow(SW_HIDE);
}

LRESULT CToolTip::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_ERASEBKGND:
        return 1;
    case WM_SETFOCUS:
        ::SetFocus(reinterpret_cast<HWND>(wParam));
        return 0;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_MOUSEMOVE:
        Hide();
        break;
    case WM_GETOBJECT:
        if (const LRESULT answer = accessible.Answer(wParam, lParam))
            return answer;
        break;
    }
    return CDialog::WindowProc(message, wParam, lParam);
}

AccessibleKind CToolTip::Kind() const
{
    return {ROLE_SYSTEM_TOOLTIP};
}

/// The lines that are shown, without their ends.
std::string CToolTip::SpokenName() const
{
    std::string name;
    for (const std::string& line : TipLines(text.c_str()))
        name += (name.empty() ? "" : " ") + line;
    return name;
}

void CToolTip::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    GetClientRect(&clientRect);
}

void CToolTip::Paint()
{
    CPaintDC dc(this);
    const int width = clientRect.Width();
    const int height = clientRect.Height();
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, width, height);
    const HDC memory = GetSharedMemDC(dc);
    const int saved = SaveDC(memory);
    SelectObject(memory, bitmap);
    DrawLines(memory);
    BitBlt(dc, 0, 0, width, height, memory, 0, 0, SRCCOPY);
    RestoreDC(memory, saved);
    DeleteObject(bitmap);
}

void CToolTip::DrawLines(HDC dc) const
{
    FillRect(dc, &clientRect, GetCachedBrush(kTipBack));
    FrameRect(dc, &clientRect, GetCachedBrush(kTipFrame));
    SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    int y = kTextTop;
    for (const std::string& line : TipLines(text.c_str()))
    {
        TextOutA(dc, kTextLeft, y, line.data(), static_cast<int>(line.size()));
        y += lineHeight;
    }
}
