#include "tools/gallery/ScrollGallery.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/scroll/CoolSBWindow.h"
#include "skin/scroll/CoolSBWrapper.h"
#include "skin/scroll/PartDrawing.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <windowsx.h>

namespace
{

constexpr char kGalleryClass[] = "ScrollGallery";
constexpr char kPaneClass[] = "ScrollGalleryPane";

constexpr COLORREF kPaper = kPageSheet;
constexpr COLORREF kInk = kControlText;
constexpr COLORREF kOwnerDrawn = kAccent;

constexpr DWORD kLeftSunken = WS_EX_LEFTSCROLLBAR | WS_EX_CLIENTEDGE;

constexpr int kColumns = 5;
constexpr int kCellWidth = 232;
constexpr int kCellHeight = 170;
constexpr int kPaneTop = 20;
constexpr int kMargin = 10;

const CoolSBColors kQuiet = {kScrollBack,
                             {kScrollArrowBack, kScrollArrowBack, kScrollArrowBack},
                             {kScrollLine, kScrollLine, kScrollLine},
                             {kScrollThumb, kScrollThumb, kScrollThumb},
                             kScrollLine};

const CoolSBColors kVivid = {RGB(226, 236, 250),
                             {RGB(255, 255, 255), RGB(56, 125, 255), RGB(200, 220, 255)},
                             {RGB(60, 90, 160), RGB(255, 255, 255), RGB(56, 125, 255)},
                             {RGB(160, 185, 230), RGB(56, 125, 255), RGB(110, 155, 245)},
                             RGB(120, 150, 210)};

/// One window with bars: prepared by a function, or given colours.
struct Pane
{
    std::string caption;
    void (*prepare)(HWND pane) = nullptr;
    const CoolSBColors* colors = nullptr;
    int width = 0; // with colours: of the bars, unless it is the usual one
    SIZE size = {210, 130};
    DWORD extendedStyle = 0;
};

struct Gallery
{
    std::map<HWND, std::unique_ptr<CoolSBWrapper>> wrappers;
};

void SetValues(HWND pane, int bar, int max, UINT page, int pos, UINT mask = 0)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | mask;
    info.nMax = max;
    info.nPage = page;
    info.nPos = pos;
    CoolSB_SetScrollInfo(pane, bar, &info, TRUE);
}

void ShowUsualBars(HWND pane)
{
    CoolSB_Init(pane);
    SetValues(pane, SB_HORZ, 400, 180, 90);
    SetValues(pane, SB_VERT, 400, 100, 60);
}

void PrepareFlat(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_SetStyle(pane, SB_BOTH, kCoolSBFlat);
}

void PrepareHot(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_SetStyle(pane, SB_BOTH, kCoolSBHot);
}

void PrepareThick(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_SetSize(pane, SB_BOTH, 30, 26);
}

void PrepareThin(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_SetSize(pane, SB_BOTH, 9, 9);
}

void PrepareDisabled(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_EnableScrollBar(pane, SB_HORZ, ESB_DISABLE_LEFT);
    CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_BOTH);
}

void PrepareNoPage(HWND pane)
{
    ShowUsualBars(pane);
    SetValues(pane, SB_HORZ, 100, 0, 50);
    SetValues(pane, SB_VERT, 100000, 1, 100000);
}

void PrepareThumbAlways(HWND pane)
{
    ShowUsualBars(pane);
    CoolSB_SetThumbAlways(pane, SB_HORZ, TRUE);
    SetValues(pane, SB_HORZ, 99, 100, 0);
    SetValues(pane, SB_VERT, 0, 0, 0, SIF_DISABLENOSCROLL);
}

CoolSBButton Button(UINT placement, UINT type, UINT id, int size)
{
    CoolSBButton button = {};
    button.mask = kCoolSBHasAll;
    button.placement = placement;
    button.type = type;
    button.id = id;
    button.size = size;
    button.defaultSize = size;
    button.minSize = 12;
    button.maxSize = 80;
    return button;
}

HBITMAP PlusSign()
{
    static const HBITMAP bitmap = []
    {
        // White is 1: rows of an 8 by 8 cross.
        const WORD rows[8] = {0xFF, 0xE7, 0xE7, 0x81, 0x81, 0xE7, 0xE7, 0xFF};
        return CreateBitmap(8, 8, 1, 1, rows);
    }();
    return bitmap;
}

void InsertButtons(HWND pane)
{
    CoolSBButton push = Button(kButtonBefore, kCoolSBPush, 1, 18);
    push.bitmap = PlusSign();
    CoolSBButton toggle = Button(kButtonBefore, kCoolSBToggle, 2, 18);
    toggle.state = 1;
    toggle.bitmap = PlusSign();
    const CoolSBButton row[] = {push,
                                toggle,
                                Button(kButtonBefore, kCoolSBRaisedBlank, 3, 12),
                                Button(kButtonAfter, kCoolSBShadowBlank, 4, 4),
                                Button(kButtonAfter, kCoolSBOwnerDrawn, 5, 18),
                                Button(kButtonAfter, kCoolSBPush | kCoolSBDraggable, 6, 24)};
    for (int i = 0; i < 6; ++i)
        CoolSB_InsertButton(pane, SB_HORZ, i, &row[i]);
    const CoolSBButton above = Button(kButtonBefore, kCoolSBToggleNotHot, 7, 18);
    CoolSB_InsertButton(pane, SB_VERT, 0, &above);
}

void PrepareButtons(HWND pane)
{
    ShowUsualBars(pane);
    InsertButtons(pane);
}

void PrepareHotButtons(HWND pane)
{
    PrepareHot(pane);
    InsertButtons(pane);
}

const std::vector<Pane>& Panes()
{
    static const std::vector<Pane> panes = {
        {"standard", ShowUsualBars},
        {"flat", PrepareFlat},
        {"hot", PrepareHot},
        {"quiet colours, 12 wide", nullptr, &kQuiet, 12},
        {"vivid colours", nullptr, &kVivid},
        {"thick", PrepareThick},
        {"thin", PrepareThin},
        {"left arrow off; vertical bar off", PrepareDisabled},
        {"no page; shortest thumb", PrepareNoPage},
        {"thumb always; nothing to scroll", PrepareThumbAlways},
        {"inserted buttons", PrepareButtons},
        {"inserted buttons, hot", PrepareHotButtons},
        {"at the left, sunken edge", ShowUsualBars, nullptr, 0, {210, 130}, kLeftSunken},
        {"no room for a track", ShowUsualBars, nullptr, 0, {46, 46}},
        {"the same, quiet colours", nullptr, &kQuiet, 12, {36, 36}},
    };
    return panes;
}

RECT CellOf(int index)
{
    const int left = kMargin + index % kColumns * kCellWidth;
    const int top = kMargin + index / kColumns * kCellHeight;
    return {left, top, left + kCellWidth, top + kCellHeight};
}

// The panes themselves

/// Lines and columns, so that anything left behind by a moving bar shows.
void PaintPane(HWND pane)
{
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(pane, &paint);
    const int x = CoolSB_GetScrollPos(pane, SB_HORZ);
    const int y = CoolSB_GetScrollPos(pane, SB_VERT);
    SelectObject(dc, GetCachedFont("Tahoma", 13, 400));
    SetTextColor(dc, kInk);
    for (int row = 0; row < 30; ++row)
        for (int column = 0; column < 12; ++column)
        {
            const std::string text = std::to_string(row) + "," + std::to_string(column);
            TextOutA(dc, 4 + column * 40 - x, 2 + row * 15 - y, text.c_str(),
                     static_cast<int>(text.size()));
        }
    EndPaint(pane, &paint);
}

void ScrollPane(HWND pane, int bar, WPARAM wParam)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    CoolSB_GetScrollInfo(pane, bar, &info);
    const ScrollValues values = {info.nMin, info.nMax, info.nPage, info.nPos};
    CoolSB_SetScrollPos(pane, bar, ScrolledPosition(values, LOWORD(wParam), info.nTrackPos), TRUE);
    InvalidateRect(pane, nullptr, TRUE);
}

LRESULT CALLBACK PaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_HSCROLL:
        ScrollPane(pane, SB_HORZ, wParam);
        return 0;
    case WM_VSCROLL:
        ScrollPane(pane, SB_VERT, wParam);
        return 0;
    case WM_MOUSEWHEEL:
        SendMessageA(pane, WM_VSCROLL, GET_WHEEL_DELTA_WPARAM(wParam) < 1 ? SB_PAGEDOWN : SB_PAGEUP,
                     0);
        return 0;
    case WM_LBUTTONDOWN:
        SetFocus(pane);
        return 0;
    case WM_PAINT:
        PaintPane(pane);
        return 0;
    }
    return DefWindowProcA(pane, message, wParam, lParam);
}

// The sheet of states

struct Sheet
{
    const char* name;
    int style;
    const CoolSBColors* colors;
};

constexpr UINT kStates[] = {CDIS_DEFAULT, CDIS_HOT, CDIS_SELECTED, CDIS_DISABLED};
constexpr const char* kStateNames[] = {"normal", "hot", "pressed", "disabled"};
const Sheet kSheets[] = {{"standard", kCoolSBStandard, nullptr},
                         {"flat", kCoolSBFlat, nullptr},
                         {"hot", kCoolSBHot, nullptr},
                         {"quiet", 0, &kQuiet},
                         {"vivid", 0, &kVivid}};

struct SheetPart
{
    int part;
    bool vertical;
    SIZE size;
};

constexpr SheetPart kSheetParts[] = {
    {kPartArrowBack, false, {17, 17}}, {kPartArrowForward, false, {17, 17}},
    {kPartArrowBack, true, {17, 17}},  {kPartArrowForward, true, {17, 17}},
    {kPartPageBack, false, {30, 17}},  {kPartThumb, false, {34, 17}}};

void DrawDefaultPart(HDC dc, const SheetPart& part, const RECT& rect, UINT state, int style)
{
    if (part.part == kPartThumb)
        DrawThumb(dc, rect, style);
    else if (part.part == kPartPageBack)
        DrawPageArea(dc, rect, state == CDIS_SELECTED);
    else
        DrawArrow(dc, rect, part.vertical, part.part == kPartArrowForward, state, style);
}

void DrawSheetPart(HDC dc, const Sheet& sheet, const SheetPart& part, const RECT& rect, UINT state)
{
    if (!sheet.colors)
        return DrawDefaultPart(dc, part, rect, state, sheet.style);
    CoolSBWrapper wrapper;
    wrapper.SetColors(*sheet.colors);
    NMCoolSBCustomDraw draw = {};
    draw.drawStage = CDDS_ITEMPREPAINT;
    draw.hdc = dc;
    draw.rect = rect;
    draw.item = static_cast<UINT>(part.part);
    draw.state = state;
    draw.bar = part.vertical ? SB_VERT : SB_HORZ;
    wrapper.OnCustomDraw(draw);
}

void DrawRow(HDC dc, const Sheet& sheet, POINT at, UINT state)
{
    for (const SheetPart& part : kSheetParts)
    {
        const RECT rect = {at.x, at.y, at.x + part.size.cx, at.y + part.size.cy};
        DrawSheetPart(dc, sheet, part, rect, state);
        at.x += part.size.cx + 4;
    }
}

void DrawSheets(HDC dc)
{
    const int top = CellOf(static_cast<int>(Panes().size())).top;
    for (int s = 0; s < 5; ++s)
    {
        const int left = kMargin + s * kCellWidth;
        TextOutA(dc, left, top, kSheets[s].name, lstrlenA(kSheets[s].name));
        for (int state = 0; state < 4; ++state)
        {
            const POINT at = {left, top + 22 + state * 24};
            DrawRow(dc, kSheets[s], at, kStates[state]);
            TextOutA(dc, at.x + 160, at.y, kStateNames[state], lstrlenA(kStateNames[state]));
        }
    }
}

// The gallery

Gallery* GalleryOf(HWND hwnd)
{
    return reinterpret_cast<Gallery*>(GetWindowLongA(hwnd, GWL_USERDATA));
}

void MakePane(HWND hwnd, Gallery& gallery, const Pane& pane, int index)
{
    const RECT cell = CellOf(index);
    const HWND made = CreateWindowExA(pane.extendedStyle, kPaneClass, "",
                                      WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_BORDER,
                                      cell.left, cell.top + kPaneTop, pane.size.cx, pane.size.cy,
                                      hwnd, nullptr, nullptr, nullptr);
    if (pane.prepare)
        return pane.prepare(made);
    auto& wrapper = gallery.wrappers[made] = std::make_unique<CoolSBWrapper>();
    wrapper->Init(made, false, 100, 60, 0, 400);
    if (pane.width)
        wrapper->SetWidth(pane.width);
    wrapper->SetColors(*pane.colors);
}

/// One more, whose corner is the gallery's own.
void MakeCornerPane(HWND hwnd)
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    const SIZE size = {230, 110};
    const HWND pane = CreateWindowExA(0, kPaneClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                                      client.right - size.cx, client.bottom - size.cy, size.cx,
                                      size.cy, hwnd, nullptr, nullptr, nullptr);
    ShowUsualBars(pane);
}

void MakePanes(HWND hwnd, Gallery& gallery)
{
    int index = 0;
    for (const Pane& pane : Panes())
        MakePane(hwnd, gallery, pane, index++);
    MakeCornerPane(hwnd);
}

void PaintGallery(HWND hwnd)
{
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    SelectObject(dc, GetCachedFont("Tahoma", 13, 400));
    SetTextColor(dc, kInk);
    SetBkMode(dc, TRANSPARENT);
    int index = 0;
    for (const Pane& pane : Panes())
    {
        const RECT cell = CellOf(index++);
        TextOutA(dc, cell.left, cell.top + 2, pane.caption.c_str(),
                 static_cast<int>(pane.caption.size()));
    }
    DrawSheets(dc);
    EndPaint(hwnd, &paint);
}

LRESULT DrawForPane(const Gallery& gallery, const NMCoolSBCustomDraw& draw)
{
    if (draw.drawStage == CDDS_ITEMPREPAINT && draw.item == kPartButton)
    {
        FillRect(draw.hdc, &draw.rect,
                 GetCachedBrush(draw.state == CDIS_SELECTED ? kInk : kOwnerDrawn));
        return CDRF_SKIPDEFAULT;
    }
    const auto found = gallery.wrappers.find(draw.hdr.hwndFrom);
    return found == gallery.wrappers.end() ? CDRF_DODEFAULT : found->second->OnCustomDraw(draw);
}

LRESULT CALLBACK GalleryProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_CREATE:
    {
        auto gallery = std::make_unique<Gallery>();
        SetWindowLongA(hwnd, GWL_USERDATA, reinterpret_cast<LONG>(gallery.get()));
        MakePanes(hwnd, *gallery.release());
        return 0;
    }
    case WM_NCDESTROY:
        delete GalleryOf(hwnd);
        SetWindowLongA(hwnd, GWL_USERDATA, 0);
        break;
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code == NM_COOLSB_CUSTOMDRAW && GalleryOf(hwnd))
            return DrawForPane(*GalleryOf(hwnd),
                               *reinterpret_cast<const NMCoolSBCustomDraw*>(lParam));
        break;
    case WM_PAINT:
        PaintGallery(hwnd);
        return 0;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

void RegisterWindows()
{
    WNDCLASSA windowClass = {};
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hbrBackground = GetCachedBrush(kPaper);
    windowClass.lpszClassName = kGalleryClass;
    windowClass.lpfnWndProc = GalleryProc;
    RegisterClassA(&windowClass);
    windowClass.lpszClassName = kPaneClass;
    windowClass.lpfnWndProc = PaneProc;
    RegisterClassA(&windowClass);
}

} // namespace

void CreateScrollGallery(HWND parent)
{
    RegisterWindows();
    CreateWindowExA(0, kGalleryClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                    kScrollGallerySize.cx, kScrollGallerySize.cy, parent, nullptr,
                    GetModuleHandleA(nullptr), nullptr);
}
