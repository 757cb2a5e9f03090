// The small controls under the mouse itself, as the system turns it into messages.
#include "tests/skin/KitWindow.h"
#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestDlg.h"

#include "skin/ColorButton.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/Palette.h"

namespace
{

void QuickDoubleClickAt(HWND window, int x, int y)
{
    PumpFor(GetDoubleClickTime());
    MoveMouseTo(window, x, y);
    for (const DWORD event :
         {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP})
        mouse_event(event, 0, 0, 0, 0);
    PumpFor(50);
}

class RealMouse : public testing::Test
{
protected:
    // Away from the controls, in a corner of the dialog.
    RealMouse() { MoveMouseTo(dialog.m_hWnd, 250, 290); }

    CTestDlg dialog{{{"Button", "", kShown | BS_AUTOCHECKBOX, 100, 5, 5, 60, 14},
                     {"ComboBox", "", kComboStyle, 101, 80, 5, 80, 150},
                     {"ListBox", "", kListStyle, 102, 5, 30, 60, 80},
                     {"Button", "", kShown, IDOK, 5, 120, 60, 16},
                     {"Edit", "", kShown, 103, 5, 150, 60, 14}}};
};

} // namespace

TEST_F(RealMouse, ClicksACheckBox)
{
    auto& check = dialog.Drawn<CMyCheckBox_MyCtrl>(100);
    SetFocus(dialog.Item(103));
    ClickAt(check, 10, 5);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(1, dialog.CountCommands(100, BN_CLICKED));
    EXPECT_EQ(check.m_hWnd, GetFocus());
    ClickAt(check, 10, 5);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(2, dialog.CountCommands(100, BN_CLICKED));
}

TEST_F(RealMouse, DoubleClicksACheckBoxOnce)
{
    auto& check = dialog.Drawn<CMyCheckBox_MyCtrl>(100);
    QuickDoubleClickAt(check, 10, 5);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(1, dialog.CountCommands(100, BN_CLICKED));
}

TEST_F(RealMouse, ReleasesACheckBoxOutside)
{
    auto& check = dialog.Drawn<CMyCheckBox_MyCtrl>(100);
    PumpFor(GetDoubleClickTime());
    MoveMouseTo(check, 10, 5);
    PressMouse();
    EXPECT_EQ(CheckCellColor(2), PixelAt(check, 5, ClientOf(check).bottom / 2));
    MoveMouseTo(check, 10, 60);
    ReleaseMouse();
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(0, dialog.CountCommands(100, BN_CLICKED));
    EXPECT_EQ(CheckCellColor(0), PixelAt(check, 5, ClientOf(check).bottom / 2));
}

TEST_F(RealMouse, ChoosesFromAComboBox)
{
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(101);
    for (int i = 0; i < 4; ++i)
        combo.AddString(kSolidText);
    combo.SetCurSel(0);
    ClickAt(combo, 20, 5);
    ASSERT_TRUE(combo.GetDroppedState());
    const RECT face = ClientOf(combo);
    EXPECT_EQ(ArrowColor(false), PixelAt(combo, face.right - 5, face.bottom / 2));

    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(combo, &info);
    const auto rowColor = [&info](int row)
    {
        return PixelAt(info.hwndList, ClientOf(info.hwndList).right - 2, row * 34 + 30);
    };
    for (const int row : {2, 1, 3})
    {
        MoveMouseTo(info.hwndList, 20, row * 34 + 17);
        for (int other = 0; other < 4; ++other)
            EXPECT_EQ(other == row ? kAccent : kFieldBack, rowColor(other)) << row << ' ' << other;
    }
    PressMouse();
    ReleaseMouse();
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(3, combo.GetCurSel());
    EXPECT_EQ(1, dialog.CountCommands(101, CBN_SELCHANGE));
}

TEST_F(RealMouse, DragsFromTheFaceIntoTheList)
{
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(101);
    for (int i = 0; i < 4; ++i)
        combo.AddString(kSolidText);
    PumpFor(GetDoubleClickTime());
    MoveMouseTo(combo, 20, 5);
    PressMouse();
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(combo, &info);
    MoveMouseTo(info.hwndList, 20, 34 + 17);
    ReleaseMouse();
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(1, combo.GetCurSel());
    const RECT face = ClientOf(combo);
    EXPECT_EQ(ArrowColor(false), PixelAt(combo, face.right - 5, face.bottom / 2))
        << "the arrow is released though the list took the left up";
}

TEST_F(RealMouse, SelectsInAList)
{
    auto& list = dialog.Drawn<CMyListBox_MyCtrl>(102);
    for (int i = 0; i < 3; ++i)
        list.AddItem("x", i);
    ClickAt(list, 50, 60);
    EXPECT_EQ(1, list.GetCurSel());
    EXPECT_EQ(1, dialog.CountCommands(102, LBN_SELCHANGE));
    EXPECT_EQ(kSelectedListBar, PixelAt(list, 1, 60));
    ClickAt(list, 50, 20);
    EXPECT_EQ(kPageSheet, PixelAt(list, 1, 60));
    EXPECT_EQ(kSelectedListBar, PixelAt(list, 1, 20));
}

TEST_F(RealMouse, HoversAndPressesAButton)
{
    const HWND button = dialog.Item(IDOK);
    EXPECT_EQ(kOkButton, PixelAt(button, 2, 2));
    PumpFor(GetDoubleClickTime());
    MoveMouseTo(button, 20, 8);
    EXPECT_EQ(kOkButtonHover, PixelAt(button, 2, 2));
    PressMouse();
    EXPECT_EQ(kOkButtonPressed, PixelAt(button, 2, 2));
    ReleaseMouse();
    EXPECT_EQ(1, dialog.CountCommands(IDOK, BN_CLICKED));
    EXPECT_EQ(kOkButton, PixelAt(button, 2, 2));
    MoveMouseTo(button, 22, 8);
    EXPECT_EQ(kOkButton, PixelAt(button, 2, 2)) << "hover needs a fresh enter";
    MoveMouseTo(button, 20, 60);
    EXPECT_TRUE(PumpUntil(
        [this, button]
        {
            MoveMouseTo(button, 20, 8);
            const bool hovers = PixelAt(button, 2, 2) == kOkButtonHover;
            MoveMouseTo(button, 20, 60);
            return hovers;
        }));
    EXPECT_TRUE(PumpUntil([button] { return PixelAt(button, 2, 2) == kOkButton; }))
        << "the mouse has left";
}
