#include "skin/MyListBox.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"

namespace
{

constexpr int kItemHeight = 40;
constexpr int kDefaultColumns = 8;
constexpr int kSelectionBar = 4;
constexpr int kCheckZoneLeft = 12;
constexpr int kCheckZoneRight = 24;
constexpr char kSelectedFace[] = "黑体";
constexpr int kSelectedFontHeight = 17;
constexpr int kSelectedFontWeight = 500;

// The strip of images that all lists share, and its number of columns, read when it is loaded.
struct SharedStrip
{
    HBITMAP bitmap = nullptr;
    int columns = kDefaultColumns;
};

const SharedStrip& GetSharedStrip()
{
    static SharedStrip strip;
    if (!strip.bitmap)
    {
        strip.bitmap = GetSkinBitmap(".\\skin\\ctrl\\ListBoxItem.bmp");
        strip.columns = static_cast<int>(GetPrivateProfileIntA(
            "ListBoxItem", "BmpNum", kDefaultColumns, ".\\skin\\ctrl\\Ctrl.ini"));
    }
    return strip;
}

} // namespace

BEGIN_MESSAGE_MAP(CMyListBox_MyCtrl, CListBox)
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
ON_WM_NCPAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CMyListBox_MyCtrl::CMyListBox_MyCtrl()
    : backColor(kPageSheet)
    , selectBackColor(kSelectedListBack)
    , selectBarColor(kSelectedListBar)
    , textColor(kListText)
    , selectTextColor(kAccent)
    , itemHeight(Scaled(kItemHeight))
{
    const SharedStrip& strip = GetSharedStrip();
    SetStrip(strip.bitmap, strip.columns);
}

CMyListBox_MyCtrl::~CMyListBox_MyCtrl()
{
    if (ownBitmap)
        DeleteObject(ownBitmap);
}

void CMyListBox_MyCtrl::SetStrip(HBITMAP newBitmap, int columns)
{
    bitmap = newBitmap;
    const SIZE size = GetBitmapSize(bitmap);
    bitmapWidth = size.cx;
    bitmapHeight = size.cy;
    cellCount = columns > 0 ? columns : kDefaultColumns;
}

int CMyListBox_MyCtrl::AddItem(const char* text, int image)
{
    Item item{};
    CopyCut(item.text, text);
    if (!checkMode)
        item.image = image;
    items.push_back(item);
    if (SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(" ")) < 0)
    {
        items.pop_back();
        return LB_ERR;
    }
    return static_cast<int>(items.size()) - 1;
}

void CMyListBox_MyCtrl::DeleteItem(int index)
{
    if (!IsItem(index))
        return;
    focusItem = {};
    items.erase(items.begin() + index);
    DeleteString(index);
}

int CMyListBox_MyCtrl::GetItemText(int index, char* buffer) const
{
    CopyCut(buffer, sizeof(Item::text), IsItem(index) ? items[index].text : "");
    return GetItemTextLen(index);
}

int CMyListBox_MyCtrl::GetItemTextLen(int index) const
{
    return IsItem(index) ? static_cast<int>(strlen(items[index].text)) : 0;
}

int CMyListBox_MyCtrl::GetItemImage(int index) const
{
    return IsItem(index) ? items[index].image : -1;
}

BYTE CMyListBox_MyCtrl::GetItemChecked(int index) const
{
    return IsItem(index) ? LOBYTE(items[index].image) : 0;
}

void CMyListBox_MyCtrl::SetItemChecked(int index, BYTE checked)
{
    if (!IsItem(index))
        return;
    items[index].image = (items[index].image & ~0xFF) | checked;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CMyListBox_MyCtrl::EnableCheckMode()
{
    if (checkMode)
        return;
    checkMode = 1;
    ownBitmap = LoadSkinBitmap(".\\skin\\Ctrl\\Check.bmp");
    SetStrip(ownBitmap, kCheckCells);
    if (m_hWnd)
        Invalidate();
}

void CMyListBox_MyCtrl::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    // The window asked how high its items are before this object was there.
    SetItemHeight(0, itemHeight);
}

LRESULT CMyListBox_MyCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != LB_GETTEXT && message != LB_GETTEXTLEN)
        return CListBox::WindowProc(message, wParam, lParam);
    const int index = static_cast<int>(wParam);
    if (!IsItem(index))
        return LB_ERR;
    // The caller's buffer has room for the length that it was told.
    if (message == LB_GETTEXT)
        strcpy(reinterpret_cast<char*>(lParam), items[index].text);
    return GetItemTextLen(index);
}

void CMyListBox_MyCtrl::MeasureItem(LPMEASUREITEMSTRUCT measure)
{
    measure->itemHeight = itemHeight;
}

void CMyListBox_MyCtrl::DrawItem(LPDRAWITEMSTRUCT item)
{
    const int index = static_cast<int>(item->itemID);
    if (index < 0)
        return;
    KeepRect(index, item->rcItem);
    if (item->itemAction & ODA_FOCUS)
    {
        if (focusItem.hDC)
            RedrawFocusItem(item->hDC);
        focusItem = *item;
    }

    const bool selected = index == GetCurSel();
    DrawRowBackground(*item, selected);
    if (checkMode)
        DrawSeparators(*item);
    if (IsItem(index))
        DrawRowText(*item, DrawMark(*item, selected), selected);
}

void CMyListBox_MyCtrl::KeepRect(int index, const RECT& rect)
{
    if (!IsItem(index))
        return;
    // What has scrolled away above can't be hit.
    if (index == GetTopIndex())
        for (int above = 0; above < index; ++above)
            items[above].rect = {};
    items[index].rect = rect;
}

// The saved context went back to the system long ago and may be another window's by now, and the
// list may have scrolled since: the item is drawn where it is now, through today's context.
void CMyListBox_MyCtrl::RedrawFocusItem(HDC dc)
{
    DRAWITEMSTRUCT item = focusItem;
    if (GetItemRect(static_cast<int>(item.itemID), &item.rcItem) == LB_ERR)
        return;
    item.hDC = dc;
    item.itemAction = ODA_DRAWENTIRE;
    DrawItem(&item);
}

void CMyListBox_MyCtrl::DrawRowBackground(const DRAWITEMSTRUCT& item, bool selected)
{
    FillRect(item.hDC, &item.rcItem, GetCachedBrush(selected ? selectBackColor : backColor));
    if (!selected || checkMode)
        return;
    RECT bar = item.rcItem;
    bar.right = bar.left + kSelectionBar;
    FillRect(item.hDC, &bar, GetCachedBrush(selectBarColor));
}

// The line above an item is the last row of pixels of the item before it: each draws both its lines,
// so that none is lost when one item is drawn alone.
void CMyListBox_MyCtrl::DrawSeparators(const DRAWITEMSTRUCT& item)
{
    const int index = static_cast<int>(item.itemID);
    RECT line = item.rcItem;
    line.top = item.rcItem.top - 1;
    line.bottom = item.rcItem.top;
    if (index != GetTopIndex())
        FillRect(item.hDC, &line, GetCachedBrush(kThinFrame));
    if (index + 1 < GetCount())
    {
        OffsetRect(&line, 0, item.rcItem.bottom - item.rcItem.top);
        FillRect(item.hDC, &line, GetCachedBrush(kThinFrame));
    }
}

// Draws the image or the check mark of an item; returns where its text begins.
int CMyListBox_MyCtrl::DrawMark(const DRAWITEMSTRUCT& item, bool selected)
{
    const int index = static_cast<int>(item.itemID);
    const Box row = BoxOf(item.rcItem);
    const ListStrip strip{bitmapWidth, bitmapHeight, cellCount};
    if (checkMode)
    {
        DrawBitmapPart(item.hDC, bitmap, ListCheckPart(row, strip, GetItemChecked(index) != 0));
        return ListCheckTextLeft(row, strip);
    }
    DrawBitmapPart(item.hDC, bitmap, ListImagePart(row, strip, items[index].image, selected));
    return ListImageTextLeft(row, strip);
}

void CMyListBox_MyCtrl::DrawRowText(const DRAWITEMSTRUCT& item, int left, bool selected)
{
    RECT area = item.rcItem;
    area.left = left;
    const HFONT font =
        selected ? GetCachedFont(kSelectedFace, Scaled(kSelectedFontHeight), kSelectedFontWeight)
                 : reinterpret_cast<HFONT>(::SendMessageA(::GetParent(m_hWnd), WM_GETFONT, 0, 0));
    DrawTextLine(item.hDC, items[item.itemID].text, area, font,
                 selected ? selectTextColor : textColor);
}

void CMyListBox_MyCtrl::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    const int index = GetCurSel();
    if (key == VK_SPACE && checkMode && IsItem(index))
        SetItemChecked(index, !GetItemChecked(index));
    CListBox::OnKeyDown(key, repeats, flags);
}

void CMyListBox_MyCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    const int index = checkMode ? ItemAt(point) : -1;
    if (index >= 0 && point.x >= Scaled(kCheckZoneLeft) && point.x <= Scaled(kCheckZoneRight))
    {
        const RECT rect = items[index].rect;
        items[index].image = (items[index].image & ~0xFF) | !GetItemChecked(index);
        InvalidateRect(&rect, FALSE);
    }
    CListBox::OnLButtonDown(flags, point);
}

int CMyListBox_MyCtrl::ItemAt(CPoint point) const
{
    CRect client;
    GetClientRect(&client);
    return FindVisibleRow(
        GetTopIndex(), static_cast<int>(items.size()), client.Height(),
        [this](int index) { return GetItemHeight(index); },
        [this, point](int index) { return PtInRect(&items[index].rect, point) != FALSE; });
}

void CMyListBox_MyCtrl::OnNcPaint()
{
    Default();
    if (!checkMode)
        return;
    CWindowDC dc(this);
    CRect frame;
    GetWindowRect(&frame);
    frame.OffsetRect(-frame.left, -frame.top);
    FrameRect(dc.m_hDC, &frame, GetCachedBrush(kThinFrame));
}

BOOL CMyListBox_MyCtrl::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    FillRect(dc->m_hDC, &client, GetCachedBrush(backColor));
    return TRUE;
}
