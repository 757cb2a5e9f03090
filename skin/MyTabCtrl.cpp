#include "skin/MyTabCtrl.h"

#include "core/Gbk.h"
#include "skin/SkinCache.h"
#include "skin/TabLayout.h"

#include <oleacc.h>

namespace
{

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;
constexpr size_t kTitleBytes = 31;
constexpr int kTopBarHeight = 3;
constexpr int kBottomBarHeight = 2;
constexpr int kSeparatorInset = 4;
constexpr int kFocusInset = 4;

std::string CutTitle(const char* title)
{
    return std::string(title, GbkPrefixLength(title, kTitleBytes));
}

// A brush of its own for each fill: the colours are the owner's to choose, and the shared cache
// never forgets one.
void Fill(CDC& dc, const CRect& area, COLORREF color)
{
    CBrush brush(color);
    dc.FillRect(&area, &brush);
}

void Frame(CDC& dc, const CRect& area, COLORREF color)
{
    CBrush brush(color);
    dc.FrameRect(&area, &brush);
}

} // namespace

BEGIN_MESSAGE_MAP(CMyTabCtrl_MyCtrl, CWnd)
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_SETCURSOR()
ON_WM_GETDLGCODE()
ON_WM_KEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_UPDATEUISTATE, OnCuesChanged)
ON_MESSAGE(WM_GETOBJECT, OnAskedForObject)
END_MESSAGE_MAP()

void CMyTabCtrl_MyCtrl::SetLook(const Look& newLook)
{
    look = newLook;
    Redraw();
}

BOOL CMyTabCtrl_MyCtrl::Create(int id, CWnd* parent)
{
    ctrlId = id;
    const char* windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), nullptr, nullptr);
    return CreateEx(0, windowClass, "CMyTabCtrl_MyCtrl", kStyle, CRect(0, 0, 0, 0), parent, id);
}

int CMyTabCtrl_MyCtrl::AddItem(const char* title, int width, int data, COLORREF color)
{
    return Append({CutTitle(title), width, data, color, color});
}

int CMyTabCtrl_MyCtrl::AddItem(const char* title, int width, COLORREF color)
{
    return AddItem(title, width, 0, color);
}

int CMyTabCtrl_MyCtrl::AddItem(const char* title, int width, COLORREF activeColor,
                               COLORREF inactiveColor)
{
    return Append({CutTitle(title), width, 0, activeColor, inactiveColor});
}

int CMyTabCtrl_MyCtrl::Append(const MyTabItem& item)
{
    items.push_back(item);
    Redraw();
    return GetItemCount() - 1;
}

int CMyTabCtrl_MyCtrl::GetItemCount() const
{
    return static_cast<int>(items.size());
}

void CMyTabCtrl_MyCtrl::SetCurSel(int index)
{
    if (!HasItem(index))
        return;
    current = index;
    Redraw();
    accessible.TellSelection();
}

int CMyTabCtrl_MyCtrl::GetCurSel() const
{
    return current;
}

void CMyTabCtrl_MyCtrl::SetItemData(int index, int value)
{
    if (HasItem(index))
        items[index].data = value;
}

int CMyTabCtrl_MyCtrl::GetItemData(int index) const
{
    return HasItem(index) ? items[index].data : -1;
}

void CMyTabCtrl_MyCtrl::SetItemTitle(int index, const char* title)
{
    if (!HasItem(index))
        return;
    items[index].title = CutTitle(title);
    Redraw();
}

int CMyTabCtrl_MyCtrl::HitTest(int x, int) const
{
    std::vector<int> widths;
    for (const MyTabItem& item : items)
        widths.push_back(item.width);
    return HitTab(widths, x);
}

bool CMyTabCtrl_MyCtrl::HasItem(int index) const
{
    return index >= 0 && index < GetItemCount();
}

CRect CMyTabCtrl_MyCtrl::TabPlace(int index) const
{
    CRect tab;
    GetClientRect(&tab);
    for (int before = 0; before < index; ++before)
        tab.left += items[before].width;
    tab.right = tab.left + items[index].width;
    return tab;
}

void CMyTabCtrl_MyCtrl::Redraw()
{
    if (m_hWnd)
        Invalidate();
}

void CMyTabCtrl_MyCtrl::OnLButtonDown(UINT, CPoint point)
{
    Press(HitTest(point.x, point.y));
}

void CMyTabCtrl_MyCtrl::Press(int index)
{
    if (!HasItem(index) || index == current)
        return;
    SetCurSel(index);
    TellParent();
    // The parent may have put the selection back.
    Redraw();
}

UINT CMyTabCtrl_MyCtrl::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

void CMyTabCtrl_MyCtrl::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    switch (key)
    {
    case VK_LEFT:
        return Press(current - 1);
    case VK_RIGHT:
        return Press(current + 1);
    case VK_HOME:
        return Press(0);
    case VK_END:
        return Press(GetItemCount() - 1);
    default:
        CWnd::OnKeyDown(key, repeats, flags);
    }
}

void CMyTabCtrl_MyCtrl::OnSetFocus(CWnd* oldFocus)
{
    CWnd::OnSetFocus(oldFocus);
    Redraw();
    accessible.TellSelection();
}

void CMyTabCtrl_MyCtrl::OnKillFocus(CWnd* newFocus)
{
    CWnd::OnKillFocus(newFocus);
    Redraw();
}

LRESULT CMyTabCtrl_MyCtrl::OnCuesChanged(WPARAM, LPARAM)
{
    Redraw();
    return Default();
}

LRESULT CMyTabCtrl_MyCtrl::OnAskedForObject(WPARAM wParam, LPARAM lParam)
{
    const LRESULT answer = accessible.Answer(wParam, lParam);
    return answer ? answer : Default();
}

AccessibleKind CMyTabCtrl_MyCtrl::Kind() const
{
    AccessibleKind kind = {ROLE_SYSTEM_PAGETABLIST};
    kind.partRole = ROLE_SYSTEM_PAGETAB;
    kind.isAcross = true;
    kind.action = "切换";
    return kind;
}

AccessiblePart CMyTabCtrl_MyCtrl::Part(int index) const
{
    return {items[index].title, "", TabPlace(index)};
}

void CMyTabCtrl_MyCtrl::TellParent()
{
    NMHDR change;
    change.hwndFrom = m_hWnd;
    change.idFrom = GetWindowLongA(m_hWnd, GWL_ID);
    change.code = TCN_SELCHANGE;
    GetParent()->SendMessage(WM_NOTIFY, ctrlId, reinterpret_cast<LPARAM>(&change));
}

BOOL CMyTabCtrl_MyCtrl::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return CWnd::OnSetCursor(wnd, hitTest, message);
}

BOOL CMyTabCtrl_MyCtrl::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    Fill(*dc, client, look.backColor);
    for (int index = 0; index < GetItemCount(); ++index)
    {
        const MyTabItem& item = items[index];
        const bool selected = index == current;
        DrawTab(*dc, index, TabPlace(index), selected,
                selected ? item.activeColor : item.inactiveColor);
    }
    return TRUE;
}

void CMyTabCtrl_MyCtrl::DrawTab(CDC& dc, int index, const CRect& tab, bool selected, COLORREF bar)
{
    Fill(dc, tab, selected ? look.activeBackColor : look.backColor);
    if (look.boxed)
        DrawBox(dc, tab, index == 0, selected);
    else if (index != GetItemCount() - 1)
        DrawSeparator(dc, tab);
    if (selected)
        DrawBar(dc, tab, bar);
    if (selected && ShowsFocus())
        DrawFocus(dc, tab);
    DrawTitle(dc, tab, items[index].title, selected);
}

void CMyTabCtrl_MyCtrl::DrawBox(CDC& dc, CRect tab, bool isFirst, bool selected)
{
    // Neighbours share an edge: the left one of a tab is the right one of the tab before it.
    if (!isFirst)
        --tab.left;
    if (!selected)
    {
        Frame(dc, tab, look.lineColor);
        return;
    }
    Fill(dc, CRect(tab.left, tab.top, tab.left + 1, tab.bottom), look.lineColor);
    Fill(dc, CRect(tab.right - 1, tab.top, tab.right, tab.bottom), look.lineColor);
}

void CMyTabCtrl_MyCtrl::DrawSeparator(CDC& dc, const CRect& tab)
{
    Frame(dc,
          CRect(tab.right - 1, tab.top + kSeparatorInset, tab.right, tab.bottom - kSeparatorInset),
          look.lineColor);
}

void CMyTabCtrl_MyCtrl::DrawBar(CDC& dc, const CRect& tab, COLORREF color)
{
    CRect bar = tab;
    if (look.barAtTop)
        bar.bottom = tab.top + kTopBarHeight;
    else
        bar.top = tab.bottom - kBottomBarHeight;
    Fill(dc, bar, color);
}

/// Who works by mouse alone is spared the sight, as with every control of the system.
bool CMyTabCtrl_MyCtrl::ShowsFocus() const
{
    return ::GetFocus() == m_hWnd &&
           !(::SendMessageA(m_hWnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS);
}

void CMyTabCtrl_MyCtrl::DrawFocus(CDC& dc, CRect tab)
{
    tab.DeflateRect(kFocusInset, kFocusInset);
    dc.SetTextColor(look.activeTextColor);
    DrawFocusRect(dc, &tab);
}

void CMyTabCtrl_MyCtrl::DrawTitle(CDC& dc, CRect tab, const std::string& title, bool selected)
{
    CFont* parentFont = GetParent()->GetFont();
    const HFONT font =
        parentFont ? static_cast<HFONT>(*parentFont) : GetCachedFont("黑体", 14, 500);
    const HGDIOBJ oldFont = SelectObject(dc, font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(selected ? look.activeTextColor : look.textColor);
    DrawTextA(dc, title.c_str(), -1, &tab, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, oldFont);
}
