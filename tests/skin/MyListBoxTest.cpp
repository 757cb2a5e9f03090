#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestDlg.h"

#include "skin/MyListBox.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr int kItemHeight = 40;
constexpr int kImageLeft = 16;
constexpr int kImageTextLeft = kListCellSize + 24;
constexpr int kCheckLeft = 10;
constexpr int kCheckTextLeft = kCheckCellSize + 18;

class MyListBox : public testing::Test
{
protected:
    RECT Row(int index) const
    {
        RECT row{};
        list.GetItemRect(index, &row);
        return row;
    }

    COLORREF Pixel(int index, int x, int y) const
    {
        return PixelAt(list.m_hWnd, x, Row(index).top + y);
    }

    COLORREF ImageColor(int index) const
    {
        return Pixel(index, kImageLeft + kListCellSize / 2, kItemHeight / 2);
    }

    COLORREF MarkColor(int index) const
    {
        return Pixel(index, kCheckLeft + kCheckCellSize / 2, kItemHeight / 2);
    }

    /// The leftmost column from `from` on in which something is drawn on a row's colour.
    int TextLeft(int index, int from, COLORREF back) const
    {
        const RECT row = Row(index);
        for (int x = from; x < row.right; ++x)
        {
            const RECT column{x, row.top + 2, x + 1, row.bottom - 2};
            if (CountPixels(list.m_hWnd, column, back) < column.bottom - column.top)
                return x;
        }
        return -1;
    }

    std::string Text(int index) const
    {
        char buffer[256] = "untouched";
        const int length = list.GetItemText(index, buffer);
        EXPECT_EQ(length, static_cast<int>(strlen(buffer)));
        return buffer;
    }

    void Click(int x, int y)
    {
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        PumpMessages();
    }

    CTestDlg dialog{{{"ListBox", "", kListStyle, kTestId, 0, 0, 120, 100}}};
    CMyListBox_MyCtrl& list = dialog.Drawn<CMyListBox_MyCtrl>(kTestId);
};

class MyCheckList : public MyListBox
{
protected:
    MyCheckList()
    {
        list.EnableCheckMode();
        for (const char* text : {"HH", "HH", "HH"})
            list.AddItem(text);
        list.UpdateWindow();
    }
};

} // namespace

TEST_F(MyListBox, KeepsItsItemsInTheObject)
{
    EXPECT_EQ(0, list.AddItem("公共设置", 0));
    EXPECT_EQ(1, list.AddItem("期权设置", 8));
    EXPECT_EQ(2, list.GetCount());
    EXPECT_EQ("期权设置", Text(1));
    EXPECT_EQ(8, list.GetItemTextLen(1));
    EXPECT_EQ(8, list.GetItemImage(1));
}

TEST_F(MyListBox, TheSpaceBarChecksNothingInImageMode)
{
    list.AddItem("公共设置", 7);
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(7, list.GetItemImage(0));
}

TEST_F(MyListBox, AnswersWhoAsksTheWindow)
{
    list.AddItem("公共设置", 0);
    list.AddItem("期权设置", 8);
    EXPECT_EQ(8, SendMessageA(list.m_hWnd, LB_GETTEXTLEN, 1, 0));
    char inWindow[256] = "";
    EXPECT_EQ(8, SendMessageA(list.m_hWnd, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(inWindow)));
    EXPECT_STREQ("期权设置", inWindow);
    wchar_t wide[256] = L"";
    EXPECT_EQ(4, SendMessageW(list.m_hWnd, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(wide)));
    EXPECT_STREQ(L"公共设置", wide);
    for (const int index : {-1, 2, 1000})
    {
        EXPECT_EQ(LB_ERR, SendMessageA(list.m_hWnd, LB_GETTEXTLEN, index, 0));
        EXPECT_EQ(LB_ERR,
                  SendMessageA(list.m_hWnd, LB_GETTEXT, index, reinterpret_cast<LPARAM>(inWindow)));
    }
    EXPECT_STREQ("期权设置", inWindow);
}

TEST_F(MyListBox, TextsAreCutTo255Bytes)
{
    list.AddItem(std::string(300, 'x').c_str(), 0);
    EXPECT_EQ(std::string(255, 'x'), Text(0));
    std::string chinese;
    for (int i = 0; i < 150; ++i)
        chinese += "中";
    list.AddItem(chinese.c_str(), 0);
    EXPECT_EQ(254, list.GetItemTextLen(1));
}

TEST_F(MyListBox, DeletesItems)
{
    for (const char* text : {"a", "b", "c"})
        list.AddItem(text, text[0]);
    list.DeleteItem(1);
    EXPECT_EQ(2, list.GetCount());
    EXPECT_EQ("c", Text(1));
    EXPECT_EQ('c', list.GetItemImage(1));
    EXPECT_EQ(2, list.AddItem("d", 0));
}

TEST_F(MyListBox, BadIndicesAreIgnored)
{
    list.AddItem("a", 3);
    for (const int index : {-1, 1, 1000, -2147483647})
    {
        list.DeleteItem(index);
        list.SetItemChecked(index, 1);
        EXPECT_EQ("", Text(index));
        EXPECT_EQ(0, list.GetItemTextLen(index));
        EXPECT_EQ(-1, list.GetItemImage(index));
        EXPECT_EQ(0, list.GetItemChecked(index));
    }
    EXPECT_EQ(1, list.GetCount());
    EXPECT_EQ(3, list.GetItemImage(0));
}

TEST_F(MyListBox, ItemsAre40High)
{
    list.AddItem("a", 0);
    EXPECT_EQ(kItemHeight, list.GetItemHeight(0));
    MEASUREITEMSTRUCT measure{};
    list.MeasureItem(&measure);
    EXPECT_EQ(static_cast<UINT>(kItemHeight), measure.itemHeight);
}

TEST(MyListBoxScaled, ItemsGrowWithTheScreen)
{
    SetUIScale(1.33f);
    CTestDlg dialog({{"ListBox", "", kListStyle, kTestId, 0, 0, 120, 100}});
    auto& list = dialog.Drawn<CMyListBox_MyCtrl>(kTestId);
    SetUIScale(1.0f);
    list.AddItem("a", 0);
    EXPECT_EQ(53, list.GetItemHeight(0));
}

TEST_F(MyListBox, ImagesComeFromTheirColumnAndRow)
{
    list.AddItem("a", 0);
    list.AddItem("b", 9);
    list.AddItem("c", 12);
    EXPECT_EQ(ListImageColor(0, false), ImageColor(0));
    EXPECT_EQ(ListImageColor(9, false), ImageColor(1));
    EXPECT_EQ(ListImageColor(12, false), ImageColor(2));
    list.SetCurSel(1);
    EXPECT_EQ(ListImageColor(0, false), ImageColor(0));
    EXPECT_EQ(ListImageColor(9, true), ImageColor(1));
}

TEST_F(MyListBox, ImageStandsInTheMiddle)
{
    list.AddItem("", 5);
    const int top = (kItemHeight - kListCellSize) / 2;
    const RECT cell{kImageLeft, top, kImageLeft + kListCellSize, top + kListCellSize};
    EXPECT_EQ(kListCellSize * kListCellSize,
              CountPixels(list.m_hWnd, cell, ListImageColor(5, false)));
    EXPECT_EQ(kListCellSize * kListCellSize,
              CountPixels(list.m_hWnd, ClientOf(list.m_hWnd), ListImageColor(5, false)));
}

TEST_F(MyListBox, SelectedItemHasItsBackAndABar)
{
    list.AddItem("", -1);
    list.AddItem("", -1);
    list.SetCurSel(1);
    EXPECT_EQ(kPageSheet, Pixel(0, 0, 0));
    EXPECT_EQ(kPageSheet, Pixel(0, 50, 20));
    EXPECT_EQ(kSelectedListBar, Pixel(1, 0, 0));
    EXPECT_EQ(kSelectedListBar, Pixel(1, 3, kItemHeight - 1));
    EXPECT_EQ(kSelectedListBack, Pixel(1, 4, 0));
    EXPECT_EQ(kSelectedListBack, Pixel(1, 100, kItemHeight - 1));
    list.SetCurSel(0);
    EXPECT_EQ(kPageSheet, Pixel(1, 0, 0));
    EXPECT_EQ(kSelectedListBar, Pixel(0, 0, 0));
}

TEST_F(MyListBox, TextColorTellsTheSelection)
{
    list.AddItem(kSolidText, -1);
    list.AddItem(kSolidText, -1);
    list.SetCurSel(1);
    EXPECT_GT(CountPixels(list.m_hWnd, Row(0), kListText), 0);
    EXPECT_EQ(0, CountPixels(list.m_hWnd, Row(0), kAccent));
    EXPECT_GT(CountPixels(list.m_hWnd, Row(1), kAccent), 0);
    EXPECT_EQ(0, CountPixels(list.m_hWnd, Row(1), kListText));
}

TEST_F(MyListBox, AnItemWithoutImageIsIndentedAllTheSame)
{
    list.AddItem("H", -1);
    list.AddItem("H", 13);
    list.AddItem("H", 4);
    list.SetCurSel(0);
    const int selectedLeft = TextLeft(0, 4, kSelectedListBack);
    EXPECT_GE(selectedLeft, kImageTextLeft);
    EXPECT_LE(selectedLeft, kImageTextLeft + 2);
    const int beyondLeft = TextLeft(1, 0, kPageSheet);
    EXPECT_GE(beyondLeft, kImageTextLeft);
    EXPECT_LE(beyondLeft, kImageTextLeft + 2);
    const int left = TextLeft(2, kImageLeft + kListCellSize, kPageSheet);
    EXPECT_GE(left, kImageTextLeft);
    EXPECT_LE(left, kImageTextLeft + 2);
}

TEST_F(MyListBox, SpaceBelowTheItemsIsWhite)
{
    list.AddItem("a", 0);
    const RECT client = ClientOf(list.m_hWnd);
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, 5, client.bottom - 1));
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, client.right - 1, client.bottom - 1));
}

TEST_F(MyListBox, AClickSelectsAndTellsThePage)
{
    list.AddItem("a", 0);
    list.AddItem("b", 1);
    Click(60, kItemHeight + 5);
    EXPECT_EQ(1, list.GetCurSel());
    EXPECT_EQ(1, dialog.CountCommands(kTestId, LBN_SELCHANGE));
    EXPECT_EQ(kSelectedListBar, Pixel(1, 0, 0));
}

TEST_F(MyListBox, ArrowKeysMoveTheSelection)
{
    for (const char* text : {"a", "b", "c"})
        list.AddItem(text, 0);
    list.SetCurSel(0);
    list.SetFocus();
    TypeKey(dialog.m_hWnd, VK_DOWN);
    EXPECT_EQ(1, list.GetCurSel());
    EXPECT_EQ(1, dialog.CountCommands(kTestId, LBN_SELCHANGE));
    EXPECT_EQ(kPageSheet, Pixel(0, 0, 0));
    EXPECT_EQ(kSelectedListBar, Pixel(1, 0, 0));
    TypeKey(dialog.m_hWnd, VK_END);
    EXPECT_EQ(2, list.GetCurSel());
    EXPECT_EQ(kPageSheet, Pixel(1, 0, 0));
}

TEST_F(MyListBox, LeavesNoFocusMarkBehind)
{
    list.AddItem("", -1);
    list.AddItem("", -1);
    list.SetCurSel(0);
    list.SetFocus();
    TypeKey(dialog.m_hWnd, VK_DOWN);
    dialog.SetFocus();
    PumpMessages();
    const RECT first = Row(0);
    const int area = (first.right - first.left) * kItemHeight;
    EXPECT_EQ(area, CountPixels(list.m_hWnd, first, kPageSheet));
    EXPECT_EQ(area - 4 * kItemHeight, CountPixels(list.m_hWnd, Row(1), kSelectedListBack));
}

TEST_F(MyListBox, ADrawWithoutAnItemDrawsNothing)
{
    DRAWITEMSTRUCT item{};
    item.itemID = static_cast<UINT>(-1);
    item.itemAction = ODA_FOCUS;
    item.rcItem = {0, 0, 100, 40};
    const HDC dc = GetDC(list.m_hWnd);
    item.hDC = dc;
    list.DrawItem(&item);
    ReleaseDC(list.m_hWnd, dc);
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, 5, 5));
}

TEST_F(MyListBox, FocusMovesWithoutUsingAnOldContext)
{
    list.AddItem("", -1);
    list.AddItem("", -1);
    list.SetCurSel(1);
    list.UpdateWindow();
    const auto focus = [this](const CCanvas& canvas, UINT index)
    {
        DRAWITEMSTRUCT item{};
        item.itemID = index;
        item.itemAction = ODA_FOCUS;
        item.itemState = ODS_FOCUS;
        item.hDC = canvas.dc;
        item.rcItem = Row(static_cast<int>(index));
        list.DrawItem(&item);
    };
    const CCanvas first;
    const CCanvas second;
    focus(first, 0);
    EXPECT_EQ(kPageSheet, first.At(50, 5));
    first.Clear();
    focus(second, 1);
    EXPECT_EQ(kSelectedListBack, second.At(50, kItemHeight + 5));
    EXPECT_EQ(kPageSheet, second.At(50, 5)) << "the former item is drawn anew";
    EXPECT_EQ(0u, first.At(50, 5));
    EXPECT_EQ(0u, first.At(50, kItemHeight + 5));
}

TEST_F(MyListBox, ADeletedFocusItemIsForgotten)
{
    for (const char* text : {"a", "b", "c"})
        list.AddItem(text, 0);
    list.SetFocus();
    TypeKey(dialog.m_hWnd, VK_END);
    for (int i = 2; i >= 0; --i)
        list.DeleteItem(i);
    list.AddItem("d", 2);
    TypeKey(dialog.m_hWnd, VK_HOME);
    EXPECT_EQ(ListImageColor(2, list.GetCurSel() == 0), ImageColor(0));
}

TEST_F(MyCheckList, TheSpaceBarChecksTheSelectedItem)
{
    list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    for (int index = 0; index < 3; ++index)
        EXPECT_EQ(0, list.GetItemChecked(index));
    list.SetCurSel(1);
    list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(0, list.GetItemChecked(0));
    EXPECT_EQ(1, list.GetItemChecked(1));
    list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(0, list.GetItemChecked(1));
    EXPECT_EQ(1, list.GetCurSel());
}

TEST_F(MyCheckList, TakesNoImages)
{
    list.AddItem("x", 7);
    EXPECT_EQ(0, list.GetItemImage(3));
    EXPECT_EQ(0, list.GetItemChecked(3));
}

TEST_F(MyCheckList, ShowsMarks)
{
    EXPECT_EQ(CheckCellColor(0), MarkColor(1));
    list.SetItemChecked(1, 1);
    EXPECT_EQ(1, list.GetItemChecked(1));
    EXPECT_EQ(CheckCellColor(2), MarkColor(1));
    EXPECT_EQ(CheckCellColor(0), MarkColor(0));
    const int left = TextLeft(0, kCheckLeft + kCheckCellSize, kPageSheet);
    EXPECT_GE(left, kCheckTextLeft);
    EXPECT_LE(left, kCheckTextLeft + 2);
}

TEST_F(MyCheckList, HasNoBar)
{
    list.SetCurSel(1);
    EXPECT_EQ(kSelectedListBack, Pixel(1, 0, 10));
}

TEST_F(MyCheckList, AClickOnTheMarkFlipsIt)
{
    for (const int x : {12, 24, 18})
    {
        Click(x, kItemHeight + 20);
        EXPECT_EQ(CheckCellColor(list.GetItemChecked(1) ? 2 : 0), MarkColor(1));
    }
    EXPECT_EQ(1, list.GetItemChecked(1));
    EXPECT_EQ(0, list.GetItemChecked(0));
    EXPECT_EQ(0, list.GetItemChecked(2));
    EXPECT_EQ(1, list.GetCurSel()) << "the stock handler runs too";
}

TEST_F(MyCheckList, AClickBesideTheMarkOnlySelects)
{
    for (const int x : {11, 25, 80})
        Click(x, 2 * kItemHeight + 20);
    EXPECT_EQ(0, list.GetItemChecked(2));
    EXPECT_EQ(2, list.GetCurSel());
}

TEST_F(MyCheckList, AClickBelowTheItemsFlipsNothing)
{
    list.UpdateWindow();
    Click(18, 3 * kItemHeight + 10);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(0, list.GetItemChecked(i));
}

TEST_F(MyCheckList, ScrolledItemsAreHitWhereTheyAre)
{
    for (int i = 0; i < 20; ++i)
        list.AddItem("x");
    list.UpdateWindow();
    list.SetTopIndex(5);
    list.UpdateWindow();
    Click(18, 20);
    EXPECT_EQ(1, list.GetItemChecked(5));
    EXPECT_EQ(0, list.GetItemChecked(0)) << "scrolled away";
}

TEST_F(MyCheckList, SeparatorsStandBetweenItems)
{
    for (const int x : {0, 60, 100})
    {
        EXPECT_EQ(kThinFrame, Pixel(1, x, -1));
        EXPECT_EQ(kThinFrame, Pixel(2, x, -1));
    }
    EXPECT_EQ(kPageSheet, Pixel(0, 0, 0));
    EXPECT_EQ(kPageSheet, Pixel(2, 0, kItemHeight - 1)) << "none behind the last";
}

TEST_F(MyCheckList, SeparatorsSurviveADrawOfOneItem)
{
    list.UpdateWindow();
    list.SetCurSel(1);
    Click(18, kItemHeight + 20);
    EXPECT_EQ(kThinFrame, Pixel(1, 60, -1));
    EXPECT_EQ(kThinFrame, Pixel(2, 60, -1));
}

TEST_F(MyCheckList, WindowHasAThinFrame)
{
    list.SendMessage(WM_NCPAINT, 1);
    const HDC dc = GetWindowDC(list.m_hWnd);
    RECT window;
    GetWindowRect(list.m_hWnd, &window);
    const int right = window.right - window.left - 1;
    const int bottom = window.bottom - window.top - 1;
    EXPECT_EQ(kThinFrame, GetPixel(dc, 0, 0));
    EXPECT_EQ(kThinFrame, GetPixel(dc, right, bottom));
    EXPECT_EQ(kThinFrame, GetPixel(dc, right / 2, 0));
    ReleaseDC(list.m_hWnd, dc);
}

TEST_F(MyCheckList, SwitchingOnTwiceIsHarmless)
{
    list.SetItemChecked(0, 1);
    list.EnableCheckMode();
    EXPECT_EQ(1, list.GetItemChecked(0));
    EXPECT_EQ(CheckCellColor(2), MarkColor(0));
}
