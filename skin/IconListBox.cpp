#include "skin/IconListBox.h"

#include "core/Gbk.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"

#include <algorithm>

namespace
{

constexpr int kIconSize = 16;
constexpr int kIconLeft = 15;
constexpr int kRowLeft = 10;
constexpr size_t kTextLimit = 64;

} // namespace

BEGIN_MESSAGE_MAP(CMyListBox, CListBox)
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CMyListBox::~CMyListBox()
{
    if (memDC)
        DeleteDC(memDC);
}

void CMyListBox::SetIconBitmap(HBITMAP newBitmap)
{
    iconBitmap = newBitmap;
    if (m_hWnd)
        Invalidate();
}

void CMyListBox::DrawItem(LPDRAWITEMSTRUCT item)
{
    const int index = static_cast<int>(item->itemID);
    if (index < 0)
        return;
    if (iconBitmap)
        DrawIcon(*item);

    // Meant: the row covers the icon.
    RECT row = item->rcItem;
    row.left += kRowLeft;
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    FillRect(item->hDC, &row, GetCachedBrush(selected ? kSelectedIconListBack : kPageSheet));
    DrawTextLine(item->hDC, ItemText(index).c_str(), row, nullptr, kBlackText);
}

void CMyListBox::DrawIcon(const DRAWITEMSTRUCT& item)
{
    if (!memDC)
        memDC = CreateCompatibleDC(item.hDC);
    const RECT& rect = item.rcItem;
    const int icon = static_cast<int>(GetItemData(static_cast<int>(item.itemID)));
    const HGDIOBJ old = SelectObject(memDC, iconBitmap);
    BitBlt(item.hDC, rect.left + kIconLeft, (rect.top + rect.bottom) / 2 - kIconSize / 2, kIconSize,
           kIconSize, memDC, icon * kIconSize, 0, SRCCOPY);
    SelectObject(memDC, old);
}

std::string CMyListBox::ItemText(int index) const
{
    // A window without a string store answers with the item's data, which is no longer than this.
    const int length = std::max(GetTextLen(index), 0);
    std::string text(length + sizeof(DWORD_PTR) + 1, '\0');
    GetText(index, text.data());
    text.resize(GbkPrefixLength(text.c_str(), kTextLimit));
    return text;
}

BOOL CMyListBox::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    FillRect(dc->m_hDC, &client, GetCachedBrush(kPageSheet));
    return TRUE;
}
