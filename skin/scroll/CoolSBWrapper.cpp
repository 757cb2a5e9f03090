#include "skin/scroll/CoolSBWrapper.h"

#include "skin/SkinCache.h"
#include "skin/scroll/CoolSBWindow.h"

namespace
{

CoolSBColorColumn ColumnOf(UINT state)
{
    switch (state)
    {
    case CDIS_HOT:
        return kCoolSBUnderMouse;
    case CDIS_SELECTED:
        return kCoolSBPressed;
    default:
        return kCoolSBNormal;
    }
}

void FillFramed(HDC dc, const RECT& rect, COLORREF inside, COLORREF frame)
{
    FillRect(dc, &rect, GetCachedBrush(inside));
    FrameRect(dc, &rect, GetCachedBrush(frame));
}

void FillTriangle(HDC dc, const std::array<ScrollPoint, 3>& corners, COLORREF color)
{
    POINT points[3];
    for (int i = 0; i < 3; ++i)
        points[i] = {corners[i].x, corners[i].y};
    const HRGN region = CreatePolygonRgn(points, 3, WINDING);
    FillRgn(dc, region, GetCachedBrush(color));
    DeleteObject(region);
}

void DrawItem(const NMCoolSBCustomDraw& draw, const CoolSBColors& colors)
{
    const CoolSBColorColumn column = ColumnOf(draw.state);
    switch (draw.item)
    {
    case kPartArrowBack:
    case kPartArrowForward:
        FillFramed(draw.hdc, draw.rect, colors.arrowBack[column], colors.frame);
        FillTriangle(draw.hdc,
                     ArrowTriangle(ScrollBoxOf(draw.rect), draw.bar == SB_VERT,
                                   draw.item == kPartArrowForward),
                     colors.arrowFore[column]);
        break;
    case kPartThumb:
        FillFramed(draw.hdc, draw.rect, colors.thumb[column], colors.frame);
        break;
    default:
        FillRect(draw.hdc, &draw.rect, GetCachedBrush(colors.back));
    }
}

} // namespace

LRESULT CoolSBWrapper::OnCustomDraw(const NMCoolSBCustomDraw& draw)
{
    if (!customDrawOn)
        return CDRF_DODEFAULT;
    if (draw.drawStage == CDDS_PREPAINT)
        return CDRF_SKIPDEFAULT;
    if (draw.drawStage != CDDS_ITEMPREPAINT || draw.bar == SB_CTL)
        return CDRF_DODEFAULT;
    DrawItem(draw, colors);
    return CDRF_SKIPDEFAULT;
}

void CoolSBWrapper::Init(HWND window, bool flat, UINT page, int pos, int min, int max)
{
    hwnd = window;
    CoolSB_Uninit(hwnd);
    CoolSB_Init(hwnd);
    ApplyWidth();
    CoolSB_SetStyle(hwnd, SB_BOTH, flat ? kCoolSBHot : kCoolSBFlat);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = min;
    info.nMax = max;
    info.nPage = page;
    info.nPos = pos;
    SetScrollInfo(SB_BOTH, &info);
}

void CoolSBWrapper::SetColors(const CoolSBColors& newColors)
{
    customDrawOn = true;
    colors = newColors;
    PaintFrame(hwnd);
}

void CoolSBWrapper::SetWidth(int width)
{
    barWidth = width;
    ApplyWidth();
}

void CoolSBWrapper::ApplyWidth()
{
    CoolSB_SetSize(hwnd, SB_BOTH, barWidth, barWidth);
    CoolSB_SetMinThumbSize(hwnd, SB_BOTH, barWidth);
}

int CoolSBWrapper::SetScrollInfo(int bar, const SCROLLINFO* info, BOOL redraw)
{
    return CoolSB_SetScrollInfo(hwnd, bar, info, redraw);
}

BOOL CoolSBWrapper::GetScrollInfo(int bar, SCROLLINFO* info, UINT mask)
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return CoolSB_GetScrollInfo(hwnd, bar, info);
}

int CoolSBWrapper::GetScrollPos(int bar) const
{
    return CoolSB_GetScrollPos(hwnd, bar);
}

BOOL CoolSBWrapper::GetScrollRange(int bar, int* min, int* max) const
{
    return CoolSB_GetScrollRange(hwnd, bar, min, max);
}

int CoolSBWrapper::SetScrollPos(int bar, int pos, BOOL redraw)
{
    return CoolSB_SetScrollPos(hwnd, bar, pos, redraw);
}

BOOL CoolSBWrapper::SetScrollRange(int bar, int min, int max, BOOL redraw)
{
    return CoolSB_SetScrollRange(hwnd, bar, min, max, redraw);
}

BOOL CoolSBWrapper::ShowScrollBar(int bar, BOOL show)
{
    return CoolSB_ShowScrollBar(hwnd, bar, show);
}

BOOL CoolSBWrapper::EnableBar(int bar, BOOL enable)
{
    return CoolSB_EnableScrollBar(hwnd, bar, enable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

BOOL CoolSBWrapper::IsThumbTracking() const
{
    return CoolSB_IsThumbTracking(hwnd);
}

void CoolSBWrapper::OnHScroll(UINT code, UINT pos)
{
    SCROLLINFO info = {};
    GetScrollInfo(SB_HORZ, &info);
    const ScrollValues values = {info.nMin, info.nMax, info.nPage, info.nPos};
    SetScrollPos(SB_HORZ, ScrolledPosition(values, static_cast<int>(code), static_cast<int>(pos)));
}

void CoolSBWrapper::OnVScroll(UINT code, UINT)
{
    // A message carries 16 bits of the position only; the bar itself knows all of it.
    SCROLLINFO info = {};
    GetScrollInfo(SB_VERT, &info);
    const ScrollValues values = {info.nMin, info.nMax, info.nPage, info.nPos};
    SetScrollPos(SB_VERT, ScrolledPosition(values, static_cast<int>(code), info.nTrackPos));
}

bool CoolSBWrapper::AnswerCustomDraw(UINT message, LPARAM lParam, LRESULT* result)
{
    if (message != WM_NOTIFY ||
        reinterpret_cast<const NMHDR*>(lParam)->code != NM_COOLSB_CUSTOMDRAW)
        return false;
    *result = OnCustomDraw(*reinterpret_cast<const NMCoolSBCustomDraw*>(lParam));
    return true;
}
