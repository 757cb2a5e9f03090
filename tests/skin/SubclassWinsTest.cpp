#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestDlg.h"

#include "skin/ColorButton.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/MyRichEdit.h"
#include "skin/Palette.h"

#include <gtest/gtest.h>

namespace
{

constexpr LPARAM kInside = MAKELPARAM(3, 3);

template <typename Control>
bool IsA(CWnd* control)
{
    return dynamic_cast<Control*>(control) != nullptr;
}

COLORREF ButtonColor(HWND button)
{
    return PixelAt(button, 2, 2);
}

} // namespace

TEST(SubclassWins, EachStockControlGetsItsDrawnOne)
{
    CTestDlg dialog({{"ComboBox", "", kComboStyle, 100},
                     {"Button", "", kShown | BS_AUTOCHECKBOX, 101},
                     {"ListBox", "", kListStyle, 102},
                     {"RichEdit20A", "", kShown, 103},
                     {"Button", "", kShown | BS_DEFPUSHBUTTON, IDOK},
                     {"Button", "", kShown | BS_PUSHBUTTON, IDCANCEL}});
    EXPECT_TRUE(IsA<CMyComboBox_MyCtrl>(dialog.GetSubclassedCtrl(100)));
    EXPECT_TRUE(IsA<CMyCheckBox_MyCtrl>(dialog.GetSubclassedCtrl(101)));
    EXPECT_TRUE(IsA<CMyListBox_MyCtrl>(dialog.GetSubclassedCtrl(102)));
    EXPECT_TRUE(IsA<CMyRichEdit_MyCtrl>(dialog.GetSubclassedCtrl(103)));
    EXPECT_TRUE(IsA<CColorButton>(dialog.GetSubclassedCtrl(IDOK)));
    EXPECT_TRUE(IsA<CColorButton>(dialog.GetSubclassedCtrl(IDCANCEL)));
    for (const int id : {100, 101, 102, 103, IDOK, IDCANCEL})
        EXPECT_EQ(dialog.Item(id), dialog.GetSubclassedCtrl(id)->m_hWnd);
}

TEST(SubclassWins, OtherControlsStayStock)
{
    CTestDlg dialog({{"Button", "", kShown | BS_AUTORADIOBUTTON, 100},
                     {"Button", "", kShown | BS_GROUPBOX, 101},
                     {"Button", "", kShown | BS_CHECKBOX, 102},
                     {"Button", "", kShown | BS_PUSHBUTTON, 3},
                     {"Static", "", kShown, 103},
                     {"Edit", "", kShown, 104},
                     {"ScrollBar", "", kShown, 105},
                     {"Button", "", kShown, IDOK, 10, 40},
                     {"Button", "", kShown, IDCANCEL, 10, 70}});
    for (const int id : {100, 101, 102, 3, 103, 104, 105})
    {
        ASSERT_NE(nullptr, dialog.Item(id));
        EXPECT_EQ(nullptr, dialog.GetSubclassedCtrl(id)) << id;
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(dialog.Item(id))) << id;
    }
    EXPECT_EQ(nullptr, dialog.GetSubclassedCtrl(9999));
    EXPECT_EQ(static_cast<LONG>(BS_PUSHBUTTON), GetWindowLongA(dialog.Item(3), GWL_STYLE) & 0xF);
    EXPECT_EQ(kOkButton, ButtonColor(dialog.Item(IDOK)));
    EXPECT_EQ(kCancelButton, ButtonColor(dialog.Item(IDCANCEL)));
}

TEST(SubclassWins, ARichEditIsAField)
{
    CTestDlg dialog({{"RichEdit20A", "", kShown, 100, 10, 10, 100, 30}});
    auto& edit = dialog.Drawn<CMyRichEdit_MyCtrl>(100);
    const RECT client = ClientOf(edit.m_hWnd);
    EXPECT_EQ(kFieldBack, PixelAt(edit.m_hWnd, client.right / 2, 2));
    CHARFORMAT format{};
    edit.GetDefaultCharFormat(format);
    EXPECT_EQ(kControlText, format.crTextColor);
    RECT text{};
    SendMessageA(edit.m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
    EXPECT_NEAR(client.bottom / 2, (text.top + text.bottom) / 2, 1);
    EXPECT_LT(text.bottom - text.top, client.bottom / 2);
}

TEST(SubclassWins, OkAndCancelHaveTheirColors)
{
    CTestDlg dialog(
        {{"Button", "", kShown, IDOK, 10, 10}, {"Button", "", kShown, IDCANCEL, 10, 40}});
    EXPECT_EQ(kOkButton, ButtonColor(dialog.Item(IDOK)));
    EXPECT_EQ(kCancelButton, ButtonColor(dialog.Item(IDCANCEL)));
    const COLORREF hover[] = {kOkButtonHover, kCancelButtonHover};
    const COLORREF pressed[] = {kOkButtonPressed, kCancelButtonPressed};
    for (const int id : {IDOK, IDCANCEL})
    {
        const HWND button = dialog.Item(id);
        SendMessageA(button, WM_MOUSEMOVE, 0, kInside);
        EXPECT_EQ(hover[id - 1], ButtonColor(button));
        SendMessageA(button, WM_LBUTTONDOWN, 0, kInside);
        EXPECT_EQ(pressed[id - 1], ButtonColor(button));
        SendMessageA(button, WM_LBUTTONUP, 0, kInside);
    }
}

TEST(SubclassWins, DefaultAndPlainOkLookTheSame)
{
    CTestDlg plain({{"Button", kSolidText, kShown | BS_PUSHBUTTON, IDOK}});
    CTestDlg byDefault({{"Button", kSolidText, kShown | BS_DEFPUSHBUTTON, IDOK}}, nullptr, 210);
    for (const COLORREF color : {kOkButton, kDialogButtonText})
        EXPECT_EQ(CountPixels(plain.Item(IDOK), ClientOf(plain.Item(IDOK)), color),
                  CountPixels(byDefault.Item(IDOK), ClientOf(byDefault.Item(IDOK)), color));
    EXPECT_GT(CountPixels(plain.Item(IDOK), ClientOf(plain.Item(IDOK)), kDialogButtonText), 0);
}

TEST(SubclassWins, ReturnPressesTheButtonWithTheFocus)
{
    CTestDlg dialog({{"Button", "", kShown | BS_DEFPUSHBUTTON, IDOK, 10, 10},
                     {"Button", "", kShown, IDCANCEL, 10, 40},
                     {"Edit", "", kShown, 100, 10, 70}});
    SetFocus(dialog.Item(100));
    TypeKey(dialog.m_hWnd, VK_RETURN);
    EXPECT_EQ(1, dialog.CountCommands(IDOK, BN_CLICKED));
    SendMessageA(dialog.m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Item(IDCANCEL)),
                 TRUE);
    TypeKey(dialog.m_hWnd, VK_RETURN);
    EXPECT_EQ(1, dialog.CountCommands(IDCANCEL, BN_CLICKED));
    EXPECT_EQ(1, dialog.CountCommands(IDOK, BN_CLICKED));
    TypeKey(dialog.m_hWnd, VK_SPACE);
    EXPECT_EQ(2, dialog.CountCommands(IDCANCEL, BN_CLICKED));

    SendMessageA(dialog.m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Item(100)), TRUE);
    TypeKey(dialog.m_hWnd, VK_RETURN);
    EXPECT_EQ(2, dialog.CountCommands(IDOK, BN_CLICKED)) << "OK is the default again";
    TypeKey(dialog.m_hWnd, VK_ESCAPE);
    EXPECT_EQ(3, dialog.CountCommands(IDCANCEL, BN_CLICKED));
}

TEST(SubclassWins, TabRunsThroughTheDrawnControls)
{
    CTestDlg dialog({{"Button", "", kShown | BS_AUTOCHECKBOX, 100, 10, 10},
                     {"ComboBox", "", kComboStyle, 101, 10, 40},
                     {"ListBox", "", kListStyle, 102, 10, 70},
                     {"Button", "", kShown | BS_DEFPUSHBUTTON, IDOK, 10, 100},
                     {"Button", "", kShown, IDCANCEL, 10, 130}});
    SetFocus(dialog.Item(100));
    for (const int id : {101, 102, IDOK, IDCANCEL, 100})
    {
        TypeKey(dialog.m_hWnd, VK_TAB);
        EXPECT_EQ(dialog.Item(id), GetFocus()) << id;
    }
}

TEST(SubclassWins, WalksEmbeddedDialogs)
{
    const CDialogTemplate inner(WS_CHILD | WS_VISIBLE | DS_CONTROL, 0, 0, 100, 100,
                                {{"Button", "", kShown | BS_AUTOCHECKBOX, 100}});
    CDialog embedded;
    {
        CTestDlg dialog({{"Static", "", kShown, 101}},
                        [&](CTestDlg& parent) { embedded.CreateIndirect(inner.Get(), &parent); });
        EXPECT_TRUE(IsA<CMyCheckBox_MyCtrl>(dialog.GetSubclassedCtrl(100)));
        EXPECT_EQ(GetDlgItem(embedded.m_hWnd, 100), dialog.GetSubclassedCtrl(100)->m_hWnd);
    }
    EXPECT_EQ(nullptr, embedded.m_hWnd);
}

TEST(SubclassWins, TheFirstOfTwoEqualIdsIsFound)
{
    CTestDlg dialog(
        {{"Button", "", kShown | BS_AUTOCHECKBOX, 100}, {"ComboBox", "", kComboStyle, 100}});
    EXPECT_TRUE(IsA<CMyCheckBox_MyCtrl>(dialog.GetSubclassedCtrl(100)));
}

TEST(SubclassWins, AWindowWithAnObjectKeepsIt)
{
    CButton own;
    CTestDlg dialog({{"Button", "", kShown | BS_AUTOCHECKBOX, 100},
                     {"Button", "", kShown | BS_AUTOCHECKBOX, 101}},
                    [&own](CTestDlg& parent) { own.SubclassWindow(parent.Item(100)); });
    EXPECT_EQ(&own, CWnd::FromHandlePermanent(dialog.Item(100)));
    EXPECT_EQ(nullptr, dialog.GetSubclassedCtrl(100));

    CWnd* first = dialog.GetSubclassedCtrl(101);
    dialog.SubclassChildren(dialog.m_hWnd);
    EXPECT_EQ(first, dialog.GetSubclassedCtrl(101));
    own.UnsubclassWindow();
}

TEST(SubclassWins, LayoutAndTextsStayTheTemplates)
{
    const auto placeIn = [](const CTestDlg& dialog)
    {
        CRect place;
        ::GetWindowRect(dialog.Item(100), place);
        dialog.ScreenToClient(place);
        return place;
    };
    CRect before;
    CTestDlg dialog({{"Button", "标题", kShown | BS_AUTOCHECKBOX, 100, 20, 30, 70, 15}},
                    [&](CTestDlg& stock) { before = placeIn(stock); });
    EXPECT_FALSE(before.IsRectEmpty());
    EXPECT_EQ(before, placeIn(dialog));
    char text[16];
    GetWindowTextA(dialog.Item(100), text, sizeof(text));
    EXPECT_STREQ("标题", text);
}

TEST(SubclassWins, NothingIsFoundWhenTheWindowsAreGone)
{
    CTestDlg dialog({{"Button", "", kShown | BS_AUTOCHECKBOX, 100}});
    dialog.DestroyWindow();
    EXPECT_EQ(nullptr, dialog.GetSubclassedCtrl(100));
    EXPECT_EQ(nullptr, dialog.GetSubclassedCtrl(0));
    dialog.DestroySubclassedCtrls();
    dialog.DestroySubclassedCtrls();
}

TEST(SubclassWins, TwoDialogsAtOnceDoNotMix)
{
    const std::vector<TemplateItem> items{{"Button", "", kShown | BS_AUTOCHECKBOX, 100},
                                          {"ComboBox", "", kComboStyle, 101, 10, 40, 100, 150}};
    CTestDlg left(items);
    CTestDlg right(items, nullptr, 210);
    left.Drawn<CMyComboBox_MyCtrl>(101).AddString("left");
    right.Drawn<CMyComboBox_MyCtrl>(101).AddString("right");
    left.Drawn<CMyCheckBox_MyCtrl>(100).SetCheck(BST_CHECKED);
    SendMessageA(right.Item(100), WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    const int y = ClientOf(left.Item(100)).bottom / 2;
    EXPECT_EQ(CheckCellColor(5), PixelAt(left.Item(100), 5, y));
    EXPECT_EQ(CheckCellColor(2), PixelAt(right.Item(100), 5, y));
    SendMessageA(right.Item(100), WM_LBUTTONUP, 0, kInside);
    CString text;
    left.Drawn<CMyComboBox_MyCtrl>(101).GetLBText(0, text);
    EXPECT_STREQ("left", text);
    PumpMessages();
    EXPECT_EQ(1, right.CountCommands(100, BN_CLICKED));
    EXPECT_EQ(0, left.CountCommands(100, BN_CLICKED));
}
