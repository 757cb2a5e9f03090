#include "skin/MyComboBox.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"

#include <algorithm>
#include <string>

namespace
{

constexpr int kFaceTextLeft = 2;
constexpr int kRowWidth = 10;
constexpr int kRowHeight = 34;

} // namespace

BEGIN_MESSAGE_MAP(CMyComboBox_MyCtrl, CComboBox)
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, OnSelectionChanged)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, OnDropDown)
ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, OnCloseUp)
END_MESSAGE_MAP()

CMyComboBox_MyCtrl::CMyComboBox_MyCtrl()
    : frameColor(kFieldBack)
    , backColor(kFieldBack)
    , selectColor(kAccent)
    , textColor(kControlText)
    , sharedArrow(GetSkinBitmap(".\\skin\\ctrl\\ComboBoxArrow.bmp"))
{
}

int CMyComboBox_MyCtrl::AddString(const char* text)
{
    Item item{};
    CopyCut(item.text, text);
    const int index = CComboBox::AddString(item.text);
    // A sorted window has its own idea of the place.
    if (index < 0 || index > static_cast<int>(items.size()))
        return index;
    items.insert(items.begin() + index, item);
    // The window asks by its id how high an item is, and may have asked another of the same id.
    SetItemHeight(index, kRowHeight);
    return index;
}

int CMyComboBox_MyCtrl::DeleteString(int index)
{
    if (!IsItem(index))
        return CB_ERR;
    items.erase(items.begin() + index);
    return CComboBox::DeleteString(index);
}

void CMyComboBox_MyCtrl::ResetContent()
{
    items.clear();
    CComboBox::ResetContent();
}

void CMyComboBox_MyCtrl::SetItemData(int index, int data)
{
    if (!IsItem(index))
        return;
    items[index].data = data;
    CComboBox::SetItemData(index, static_cast<DWORD_PTR>(data));
}

int CMyComboBox_MyCtrl::GetItemData(int index) const
{
    return IsItem(index) ? items[index].data : 0;
}

int CMyComboBox_MyCtrl::GetLBText(int index, char* buffer) const
{
    CopyCut(buffer, sizeof(Item::text), IsItem(index) ? items[index].text : "");
    return GetLBTextLen(index);
}

void CMyComboBox_MyCtrl::GetLBText(int index, CString& text) const
{
    text = IsItem(index) ? items[index].text : "";
}

int CMyComboBox_MyCtrl::GetLBTextLen(int index) const
{
    return IsItem(index) ? static_cast<int>(strlen(items[index].text)) : 0;
}

void CMyComboBox_MyCtrl::SnapshotItems()
{
    items.clear();
    for (int index = 0; index < GetCount(); ++index)
    {
        // A window without a string store answers with the item's data, which is no longer than this.
        const int length = std::max(CComboBox::GetLBTextLen(index), 0);
        std::string text(length + sizeof(DWORD_PTR) + 1, '\0');
        CComboBox::GetLBText(index, text.data());

        Item item{};
        CopyCut(item.text, text.c_str());
        item.data = static_cast<int>(CComboBox::GetItemData(index));
        items.push_back(item);
    }
}

void CMyComboBox_MyCtrl::SetArrowBitmap(HBITMAP newBitmap)
{
    arrowBitmap = newBitmap;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CMyComboBox_MyCtrl::PreSubclassWindow()
{
    CComboBox::PreSubclassWindow();
    // The window asked how high its items are before this object was there.
    for (int index = 0; index < GetCount(); ++index)
        SetItemHeight(index, kRowHeight);
}

void CMyComboBox_MyCtrl::OnPaint()
{
    CPaintDC dc(this);
    CRect face;
    GetClientRect(&face);
    FillRect(dc.m_hDC, &face, GetCachedBrush(backColor));
    FrameRect(dc.m_hDC, &face, GetCachedBrush(frameColor));

    const int selection = GetCurSel();
    if (IsItem(selection))
    {
        CRect area = face;
        area.left += kFaceTextLeft;
        const auto font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT, 0, 0));
        DrawTextLine(dc.m_hDC, items[selection].text, area, font, textColor);
    }

    const HBITMAP arrow = arrowBitmap ? arrowBitmap : sharedArrow;
    const SIZE size = GetBitmapSize(arrow);
    DrawBitmapPart(dc.m_hDC, arrow,
                   ComboArrowPart(face.Width(), face.Height(), size.cx, size.cy, pressed));
}

void CMyComboBox_MyCtrl::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (item->itemState & ODS_COMBOBOXEDIT)
    {
        // The face is this class's own.
        Invalidate(FALSE);
        return;
    }
    const int index = static_cast<int>(item->itemID);
    if (index < 0)
        return;
    if (item->itemAction & (ODA_DRAWENTIRE | ODA_SELECT))
        DrawPlainRow(*item);
    // The focus of an open list is where its selection is, but there are systems whose list never
    // tells of it, since the combo box keeps the keyboard.
    if ((item->itemAction & ODA_FOCUS) || index == GetCurSel())
        MoveFocusTo(*item);
}

void CMyComboBox_MyCtrl::DrawPlainRow(const DRAWITEMSTRUCT& item)
{
    const bool selected = static_cast<int>(item.itemID) == GetCurSel();
    DrawRow(item, selected ? selectColor : backColor, textColor);
}

void CMyComboBox_MyCtrl::MoveFocusTo(const DRAWITEMSTRUCT& item)
{
    if (focusItem.hDC)
        RedrawFocusItem(item.hDC);
    DrawRow(item, selectColor, kWhiteText);
    focusItem = item;
}

void CMyComboBox_MyCtrl::DrawRow(const DRAWITEMSTRUCT& item, COLORREF rowColor,
                                 COLORREF rowTextColor)
{
    const int index = static_cast<int>(item.itemID);
    FillRect(item.hDC, &item.rcItem, GetCachedBrush(rowColor));
    if (IsItem(index))
        DrawTextLine(item.hDC, items[index].text, item.rcItem, nullptr, rowTextColor);
}

// The saved context went back to the system long ago and may be another window's by now, and the
// list may have scrolled since: the row is drawn where it is now, through today's context.
void CMyComboBox_MyCtrl::RedrawFocusItem(HDC dc)
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    DRAWITEMSTRUCT item = focusItem;
    if (!::GetComboBoxInfo(m_hWnd, &info) ||
        ::SendMessageA(info.hwndList, LB_GETITEMRECT, item.itemID,
                       reinterpret_cast<LPARAM>(&item.rcItem)) == LB_ERR)
        return;
    item.hDC = dc;
    DrawPlainRow(item);
}

void CMyComboBox_MyCtrl::MeasureItem(LPMEASUREITEMSTRUCT measure)
{
    // Asked for the face: its height is the template's.
    if (static_cast<int>(measure->itemID) < 0)
        return;
    measure->itemWidth = kRowWidth;
    measure->itemHeight = kRowHeight;
}

int CMyComboBox_MyCtrl::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return -1;
}

void CMyComboBox_MyCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    SetPressed(true);
    CComboBox::OnLButtonDown(flags, point);
}

void CMyComboBox_MyCtrl::OnLButtonUp(UINT flags, CPoint point)
{
    SetPressed(false);
    CComboBox::OnLButtonUp(flags, point);
}

// The page gets these notifications as well: hence FALSE.

BOOL CMyComboBox_MyCtrl::OnSelectionChanged()
{
    Invalidate(FALSE);
    return FALSE;
}

BOOL CMyComboBox_MyCtrl::OnDropDown()
{
    focusItem = {};
    return FALSE;
}

BOOL CMyComboBox_MyCtrl::OnCloseUp()
{
    focusItem = {};
    // The list takes the mouse while it is open, and with it the left up.
    SetPressed(false);
    return FALSE;
}

void CMyComboBox_MyCtrl::SetPressed(bool press)
{
    pressed = press;
    Invalidate(FALSE);
}
