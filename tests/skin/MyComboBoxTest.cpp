#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestBitmap.h"
#include "tests/skin/TestDlg.h"

#include "skin/MyComboBox.h"
#include "skin/Palette.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

constexpr int kRowHeight = 34;

void FillStock(CTestDlg& dialog)
{
    const HWND combo = dialog.Item(kTestId);
    int data = 70;
    for (const char* text : {"■对手价", "■最新价", "■挂单价"})
    {
        const LRESULT index = SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        SendMessageA(combo, CB_SETITEMDATA, index, data++);
    }
}

class MyComboBox : public testing::Test
{
protected:
    HWND List() const
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof(info);
        GetComboBoxInfo(combo.m_hWnd, &info);
        return info.hwndList;
    }

    RECT RowOf(int index) const
    {
        RECT row{};
        SendMessageA(List(), LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&row));
        return row;
    }

    /// The colour at the right end of a row of the open list, where no text is.
    COLORREF RowColor(int index) const
    {
        const RECT row = RowOf(index);
        return PixelAt(List(), row.right - 2, row.bottom - 2);
    }

    int TextPixels(int index, COLORREF color) const
    {
        return CountPixels(List(), RowOf(index), color);
    }

    COLORREF ArrowPixel() const
    {
        const RECT face = ClientOf(combo.m_hWnd);
        return PixelAt(combo.m_hWnd, face.right - kArrowHalfWidth / 2, face.bottom / 2);
    }

    std::string Text(int index) const
    {
        char buffer[256] = "untouched";
        const int length = combo.GetLBText(index, buffer);
        EXPECT_EQ(length, static_cast<int>(strlen(buffer)));
        return buffer;
    }

    CTestDlg dialog{{{"ComboBox", "", kComboStyle, kTestId, 10, 10, 100, 200}}, FillStock};
    CMyComboBox_MyCtrl& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kTestId);
};

DRAWITEMSTRUCT RowToDraw(HDC dc, UINT index, UINT action, UINT state = 0)
{
    const LONG top = static_cast<LONG>(index) * kRowHeight;
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.itemID = index;
    item.itemAction = action;
    item.itemState = state;
    item.hDC = dc;
    item.rcItem = {0, top, 50, top + kRowHeight};
    return item;
}

} // namespace

TEST_F(MyComboBox, TakesOverTheItemsOfTheTemplate)
{
    ASSERT_EQ(3, combo.GetCount());
    EXPECT_EQ("■对手价", Text(0));
    EXPECT_EQ("■挂单价", Text(2));
    EXPECT_EQ(70, combo.GetItemData(0));
    EXPECT_EQ(72, combo.GetItemData(2));
    EXPECT_EQ(71, SendMessageA(combo.m_hWnd, CB_GETITEMDATA, 1, 0));
    EXPECT_NE(0u, combo.GetStyle() & CBS_OWNERDRAWVARIABLE);
}

namespace
{

/// Stands between a stock combo box and what takes it over. Notes, for each text that is read and for
/// each change of style, whether the window is an owner-drawn one by then.
class StyleWatch
{
public:
    static void Begin(HWND combo)
    {
        textReads.clear();
        before = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(combo, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Watch)));
    }

    static inline std::vector<bool> textReads;

private:
    static LRESULT CALLBACK Watch(HWND combo, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == CB_GETLBTEXT)
            textReads.push_back(GetWindowLongA(combo, GWL_STYLE) & CBS_OWNERDRAWVARIABLE);
        return CallWindowProcA(before, combo, message, wParam, lParam);
    }

    static inline WNDPROC before;
};

} // namespace

TEST(MyComboBoxPlain, BecomesOwnerDrawnWhenItsTextsAreCopied)
{
    CTestDlg dialog({{"ComboBox", "", kShown | CBS_DROPDOWNLIST, kTestId, 10, 10, 100, 200}},
                    [](CTestDlg& stock)
                    {
                        FillStock(stock);
                        StyleWatch::Begin(stock.Item(kTestId));
                    });
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kTestId);
    EXPECT_EQ((std::vector<bool>{false, false, false}), StyleWatch::textReads);
    EXPECT_NE(0u, combo.GetStyle() & CBS_OWNERDRAWVARIABLE);
    char text[256] = "";
    EXPECT_EQ(8, combo.GetLBText(2, text));
    EXPECT_STREQ("■挂单价", text);
    EXPECT_EQ(72, combo.GetItemData(2));
}

TEST_F(MyComboBox, TextComesFromTheObjectNotFromTheWindow)
{
    SendMessageA(combo.m_hWnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(kSolidText));
    combo.SetCurSel(3);
    EXPECT_EQ("", Text(3));
    EXPECT_EQ(0, CountPixels(combo.m_hWnd, ClientOf(combo.m_hWnd), kControlText));
    combo.SetCurSel(2);
    EXPECT_GT(CountPixels(combo.m_hWnd, ClientOf(combo.m_hWnd), kControlText), 0);
}

TEST_F(MyComboBox, AddedTextsAreCutTo255Bytes)
{
    const int index = combo.AddString(std::string(300, 'x').c_str());
    EXPECT_EQ(3, index);
    EXPECT_EQ(255, combo.GetLBTextLen(index));
    EXPECT_EQ(std::string(255, 'x'), Text(index));
    EXPECT_EQ(255, SendMessageA(combo.m_hWnd, CB_GETLBTEXTLEN, index, 0));
    EXPECT_EQ(0, combo.GetItemData(index));

    std::string chinese = "a";
    for (int i = 0; i < 200; ++i)
        chinese += "中";
    EXPECT_EQ(chinese.substr(0, 255), Text(combo.AddString(chinese.c_str())));
    EXPECT_EQ(chinese.substr(1, 254), Text(combo.AddString(chinese.c_str() + 1)));
}

TEST_F(MyComboBox, ObjectAndWindowStayInStep)
{
    combo.AddString("涨停价");
    combo.SetItemData(3, 99);
    EXPECT_EQ(3, combo.DeleteString(1));
    EXPECT_EQ(3, combo.GetCount());
    const char* texts[] = {"■对手价", "■挂单价", "涨停价"};
    const int data[] = {70, 72, 99};
    for (int i = 0; i < 3; ++i)
    {
        char inWindow[256];
        SendMessageA(combo.m_hWnd, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(inWindow));
        EXPECT_STREQ(texts[i], inWindow);
        EXPECT_EQ(texts[i], Text(i));
        EXPECT_EQ(data[i], combo.GetItemData(i));
        EXPECT_EQ(data[i], SendMessageA(combo.m_hWnd, CB_GETITEMDATA, i, 0));
    }
    CString text;
    combo.GetLBText(2, text);
    EXPECT_STREQ("涨停价", text);

    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
    EXPECT_EQ(0, SendMessageA(combo.m_hWnd, CB_GETCOUNT, 0, 0));
    EXPECT_EQ("", Text(0));
}

TEST_F(MyComboBox, BadIndicesAreIgnored)
{
    for (const int index : {-1, 3, 1000, -2147483647})
    {
        combo.SetItemData(index, 5);
        EXPECT_EQ(0, combo.GetItemData(index));
        EXPECT_EQ(0, combo.GetLBTextLen(index));
        EXPECT_EQ("", Text(index));
        CString text = "x";
        combo.GetLBText(index, text);
        EXPECT_STREQ("", text);
        EXPECT_LT(combo.DeleteString(index), 0);
    }
    EXPECT_EQ(3, combo.GetCount());
}

TEST(MyComboBoxSorted, KeepsInStep)
{
    CTestDlg dialog({{"ComboBox", "", kComboStyle | CBS_SORT, kTestId, 10, 10, 100, 200}});
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kTestId);
    for (const char* text : {"m", "z", "a", "k"})
        combo.SetItemData(combo.AddString(text), text[0]);
    for (int i = 0; i < 4; ++i)
    {
        char inWindow[256];
        char inObject[256];
        SendMessageA(combo.m_hWnd, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(inWindow));
        combo.GetLBText(i, inObject);
        EXPECT_STREQ(inWindow, inObject);
        EXPECT_EQ(inObject[0], combo.GetItemData(i));
    }
}

TEST_F(MyComboBox, FaceIsAFieldWithTheSelectedText)
{
    const RECT face = ClientOf(combo.m_hWnd);
    EXPECT_EQ(kFieldBack, PixelAt(combo.m_hWnd, 0, 0));
    EXPECT_EQ(kFieldBack, PixelAt(combo.m_hWnd, 60, face.bottom / 2));
    EXPECT_EQ(0, CountPixels(combo.m_hWnd, face, kControlText)) << "nothing is selected";

    combo.SetCurSel(1);
    EXPECT_GT(CountPixels(combo.m_hWnd, face, kControlText), 0);
    const RECT margin{0, 0, 2, face.bottom};
    EXPECT_EQ(2 * face.bottom, CountPixels(combo.m_hWnd, margin, kFieldBack));
}

TEST_F(MyComboBox, ArrowStandsAtTheRightEnd)
{
    const RECT face = ClientOf(combo.m_hWnd);
    const int arrowPixels = CountPixels(combo.m_hWnd, face, ArrowColor(false));
    EXPECT_EQ((kArrowHalfWidth - 1) * (face.bottom - 2), arrowPixels);
    EXPECT_EQ(kFieldBack, PixelAt(combo.m_hWnd, face.right - 1, face.bottom / 2));
    EXPECT_EQ(ArrowColor(false), PixelAt(combo.m_hWnd, face.right - 2, 1));
    EXPECT_EQ(ArrowColor(false), PixelAt(combo.m_hWnd, face.right - kArrowHalfWidth, 1));
    EXPECT_EQ(kFieldBack, PixelAt(combo.m_hWnd, face.right - kArrowHalfWidth - 1, 1));
}

TEST_F(MyComboBox, ArrowFollowsTheMouseButton)
{
    EXPECT_EQ(ArrowColor(false), ArrowPixel());
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(ArrowColor(true), ArrowPixel());
    EXPECT_TRUE(combo.GetDroppedState());
    combo.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(ArrowColor(false), ArrowPixel());
    combo.ShowDropDown(FALSE);
}

TEST_F(MyComboBox, ClosingTheListReleasesTheArrow)
{
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    combo.ShowDropDown(FALSE);
    EXPECT_EQ(ArrowColor(false), ArrowPixel());
    combo.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

TEST_F(MyComboBox, AnArrowOfOnesOwnReplacesTheSharedOne)
{
    const COLORREF own = RGB(222, 1, 222);
    WriteFileBytes("arrow.bmp", FlatBitmap(2, 12, 10, {own, own}));
    const auto bitmap = static_cast<HBITMAP>(LoadImageA(nullptr, "arrow.bmp", IMAGE_BITMAP, 0, 0,
                                                        LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    combo.SetArrowBitmap(bitmap);
    const RECT face = ClientOf(combo.m_hWnd);
    EXPECT_EQ(11 * (face.bottom - 2), CountPixels(combo.m_hWnd, face, own));
    combo.SetArrowBitmap(nullptr);
    EXPECT_EQ(ArrowColor(false), ArrowPixel());
    DeleteObject(bitmap);
}

TEST_F(MyComboBox, RowsAre34High)
{
    combo.AddString("涨停价");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(kRowHeight, combo.GetItemHeight(i)) << i;
    combo.ShowDropDown(TRUE);
    for (int i = 0; i < 4; ++i)
    {
        const RECT row = RowOf(i);
        EXPECT_EQ(kRowHeight * i, row.top);
        EXPECT_EQ(kRowHeight * (i + 1), row.bottom);
    }
    EXPECT_GE(ClientOf(List()).bottom, 4 * kRowHeight);
    combo.ShowDropDown(FALSE);
}

TEST(MyComboBoxRows, Are34HighBesideAControlOfTheSameId)
{
    CTestDlg dialog({{"Static", "", kShown, kTestId}, {"ComboBox", "", kComboStyle, kTestId}});
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kTestId);
    combo.AddString("x");
    EXPECT_EQ(kRowHeight, combo.GetItemHeight(0));
}

TEST(MyComboBoxFace, KeepsTheHeightOfAStockOne)
{
    int stockHeight = 0;
    const auto measure = [&stockHeight](CTestDlg& dialog)
    {
        stockHeight = ClientOf(dialog.Item(kTestId)).bottom;
    };
    CTestDlg dialog({{"ComboBox", "", kComboStyle, kTestId, 10, 10, 100, 200}}, measure);
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kTestId);
    EXPECT_GT(stockHeight, 0);
    EXPECT_EQ(stockHeight, ClientOf(combo.m_hWnd).bottom);
    combo.AddString("x");
    combo.SetFont(dialog.GetFont());
    EXPECT_EQ(stockHeight, ClientOf(combo.m_hWnd).bottom);
}

TEST_F(MyComboBox, MeasuresRowsAndLeavesTheFace)
{
    MEASUREITEMSTRUCT row{};
    row.itemID = 0;
    combo.MeasureItem(&row);
    EXPECT_EQ(10u, row.itemWidth);
    EXPECT_EQ(34u, row.itemHeight);

    MEASUREITEMSTRUCT face{};
    face.itemID = static_cast<UINT>(-1);
    face.itemHeight = 17;
    combo.MeasureItem(&face);
    EXPECT_EQ(17u, face.itemHeight);

    COMPAREITEMSTRUCT items{};
    EXPECT_EQ(-1, combo.CompareItem(&items));
}

TEST_F(MyComboBox, OpenListShowsDrawnRows)
{
    combo.SetCurSel(1);
    combo.ShowDropDown(TRUE);
    PumpMessages();
    EXPECT_EQ(kFieldBack, RowColor(0));
    EXPECT_EQ(kAccent, RowColor(1));
    EXPECT_EQ(kFieldBack, RowColor(2));
    EXPECT_GT(TextPixels(0, kControlText), 0);
    EXPECT_EQ(0, TextPixels(0, kWhiteText));
    EXPECT_GT(TextPixels(1, kWhiteText), 0) << "the focus row";
    EXPECT_EQ(0, TextPixels(1, kControlText));
    combo.ShowDropDown(FALSE);
}

TEST_F(MyComboBox, OpenListFollowsTheArrowKeys)
{
    combo.SetCurSel(0);
    combo.SetFocus();
    combo.ShowDropDown(TRUE);
    PumpMessages();
    TypeKey(dialog.m_hWnd, VK_DOWN);
    EXPECT_EQ(kFieldBack, RowColor(0));
    EXPECT_EQ(0, TextPixels(0, kWhiteText));
    EXPECT_EQ(kAccent, RowColor(1));
    EXPECT_GT(TextPixels(1, kWhiteText), 0);
    TypeKey(dialog.m_hWnd, VK_RETURN);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(1, combo.GetCurSel());
}

TEST_F(MyComboBox, ArrowKeysChangeTheClosedSelectionAndTellThePage)
{
    combo.SetCurSel(0);
    combo.SetFocus();
    TypeKey(dialog.m_hWnd, VK_DOWN);
    EXPECT_EQ(1, combo.GetCurSel());
    EXPECT_EQ(1, dialog.CountCommands(kTestId, CBN_SELCHANGE));
    TypeKey(dialog.m_hWnd, VK_END);
    EXPECT_EQ(2, combo.GetCurSel());
}

TEST_F(MyComboBox, ThePageHearsOfTheListToo)
{
    combo.ShowDropDown(TRUE);
    combo.ShowDropDown(FALSE);
    EXPECT_EQ(1, dialog.CountCommands(kTestId, CBN_DROPDOWN));
    EXPECT_EQ(1, dialog.CountCommands(kTestId, CBN_CLOSEUP));
}

TEST_F(MyComboBox, FaceFollowsTheChosenItem)
{
    combo.SetCurSel(0);
    const RECT face = ClientOf(combo.m_hWnd);
    combo.ResetContent();
    combo.AddString("");
    combo.AddString(kSolidText);
    combo.SetCurSel(0);
    EXPECT_EQ(0, CountPixels(combo.m_hWnd, face, kControlText));
    combo.SetFocus();
    TypeKey(dialog.m_hWnd, VK_DOWN);
    EXPECT_GT(CountPixels(combo.m_hWnd, face, kControlText), 0);
}

TEST_F(MyComboBox, RowsHaveTheToldColors)
{
    combo.SetCurSel(1);
    const CCanvas canvas;
    for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT})
        for (const UINT index : {0u, 1u})
        {
            DRAWITEMSTRUCT item = RowToDraw(canvas.dc, index, action);
            combo.DrawItem(&item);
            const int y = static_cast<int>(index) * kRowHeight;
            EXPECT_EQ(index == 1 ? kAccent : kFieldBack, canvas.At(49, y));
            EXPECT_EQ(index == 1 ? kAccent : kFieldBack, canvas.At(49, y + kRowHeight - 1));
        }
    EXPECT_EQ(0u, canvas.At(50, 0));
    EXPECT_EQ(0u, canvas.At(0, 2 * kRowHeight));
}

TEST_F(MyComboBox, FocusMovesWithoutLeavingAHighlight)
{
    combo.SetCurSel(2);
    combo.ShowDropDown(TRUE);
    const CCanvas first;
    const CCanvas second;
    DRAWITEMSTRUCT item = RowToDraw(first.dc, 0, ODA_FOCUS, ODS_FOCUS);
    combo.DrawItem(&item);
    EXPECT_EQ(kAccent, first.At(49, 1));

    item = RowToDraw(second.dc, 1, ODA_FOCUS, ODS_FOCUS);
    combo.DrawItem(&item);
    EXPECT_EQ(kAccent, second.At(49, kRowHeight + 1));
    EXPECT_EQ(kFieldBack, second.At(49, 1)) << "the old highlight goes";
    EXPECT_EQ(kAccent, first.At(49, 1)) << "and never through the old context";
    combo.ShowDropDown(FALSE);
}

TEST_F(MyComboBox, ANewListKnowsNoOldFocus)
{
    for (const bool reopened : {false, true})
    {
        combo.ShowDropDown(TRUE);
        const CCanvas canvas;
        DRAWITEMSTRUCT item = RowToDraw(canvas.dc, 0, ODA_FOCUS, ODS_FOCUS);
        combo.DrawItem(&item);
        combo.ShowDropDown(FALSE);
        if (reopened)
            combo.ShowDropDown(TRUE);

        const CCanvas next;
        item = RowToDraw(next.dc, 1, ODA_FOCUS, ODS_FOCUS);
        combo.DrawItem(&item);
        EXPECT_EQ(0u, next.At(49, 1)) << "row 0 is not redrawn";
        combo.ShowDropDown(FALSE);
    }
}

TEST_F(MyComboBox, OpeningTheListForgetsTheFocus)
{
    const CCanvas canvas;
    DRAWITEMSTRUCT item = RowToDraw(canvas.dc, 0, ODA_FOCUS, ODS_FOCUS);
    combo.DrawItem(&item);
    combo.ShowDropDown(TRUE);
    const CCanvas next;
    item = RowToDraw(next.dc, 1, ODA_FOCUS, ODS_FOCUS);
    combo.DrawItem(&item);
    EXPECT_EQ(0u, next.At(49, 1));
    combo.ShowDropDown(FALSE);
}

TEST_F(MyComboBox, RowsWithoutAnItemDrawNothing)
{
    const CCanvas canvas;
    for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT, ODA_FOCUS})
    {
        DRAWITEMSTRUCT item = RowToDraw(canvas.dc, 0, action);
        item.itemID = static_cast<UINT>(-1);
        combo.DrawItem(&item);
    }
    EXPECT_EQ(0u, canvas.At(10, 10));
    DRAWITEMSTRUCT beyond = RowToDraw(canvas.dc, 0, ODA_DRAWENTIRE);
    beyond.itemID = 1000;
    combo.DrawItem(&beyond);
    EXPECT_EQ(kFieldBack, canvas.At(10, 10));
}
