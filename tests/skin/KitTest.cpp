// The small controls together: what they cost, and that no skin, however bad, harms them.
#include "tests/skin/ImportPatch.h"
#include "tests/skin/LeftBehind.h"
#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestDlg.h"

#include "skin/ColorButton.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/MyRichEdit.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace
{

constexpr LPARAM kInside = MAKELPARAM(5, 5);

enum Id : WORD
{
    kCheck = 100,
    kCombo,
    kImages,
    kChecks,
    kDark,
    kEdit
};

/// A dialog with every small control, filled, with a selection in each.
class CKitDlg : public CTestDlg
{
public:
    explicit CKitDlg(short x = 0)
        : CTestDlg({{"Button", "选项", kShown | BS_AUTOCHECKBOX, kCheck, 5, 5, 80, 12},
                    {"ComboBox", "", kComboStyle, kCombo, 5, 20, 80, 120},
                    {"ListBox", "", kListStyle, kImages, 5, 40, 80, 60},
                    {"ListBox", "", kListStyle, kChecks, 90, 40, 80, 60},
                    {"Button", "确定", kShown | BS_DEFPUSHBUTTON, IDOK, 5, 110, 50, 14},
                    {"Button", "取消", kShown, IDCANCEL, 60, 110, 50, 14},
                    {"Button", "暗", kShown, kDark, 5, 130, 50, 14},
                    {"RichEdit20A", "1", kShown, kEdit, 5, 150, 80, 14}},
                   nullptr, x)
    {
        dark.SubclassWindow(Item(kDark));
        Drawn<CMyRichEdit_MyCtrl>(kEdit).EnableSpin();
        Drawn<CMyListBox_MyCtrl>(kChecks).EnableCheckMode();
        for (const char* text : {"对手价", "最新价", "挂单价"})
        {
            Drawn<CMyComboBox_MyCtrl>(kCombo).AddString(text);
            Drawn<CMyListBox_MyCtrl>(kImages).AddItem(text, 1);
            Drawn<CMyListBox_MyCtrl>(kChecks).AddItem(text);
        }
        Drawn<CMyComboBox_MyCtrl>(kCombo).SetCurSel(1);
        Drawn<CMyListBox_MyCtrl>(kImages).SetCurSel(1);
        PumpMessages();
    }

    void PaintAll()
    {
        RedrawWindow(nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }

    CBlackButton dark;
};

/// Uses every control by mouse and keyboard.
void UseAll(CKitDlg& dialog)
{
    for (const int id : {static_cast<int>(kCheck), static_cast<int>(kImages),
                         static_cast<int>(kChecks), static_cast<int>(kDark), IDOK, IDCANCEL})
    {
        const HWND control = dialog.Item(id);
        SendMessageA(control, WM_MOUSEMOVE, 0, kInside);
        SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(18, 20));
        dialog.PaintAll();
        SendMessageA(control, WM_LBUTTONUP, 0, MAKELPARAM(18, 20));
        SendMessageA(control, WM_LBUTTONDBLCLK, MK_LBUTTON, kInside);
        SendMessageA(control, WM_LBUTTONUP, 0, kInside);
        SetFocus(control);
        for (const UINT key : {VK_DOWN, VK_END, VK_HOME, VK_SPACE})
            TypeKey(dialog.m_hWnd, key);
        EnableWindow(control, FALSE);
        dialog.PaintAll();
        EnableWindow(control, TRUE);
    }
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kCombo);
    combo.SetFocus();
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    combo.SendMessage(WM_LBUTTONUP, 0, kInside);
    dialog.PaintAll();
    for (const UINT key : {VK_DOWN, VK_DOWN, VK_UP, VK_RETURN})
        TypeKey(dialog.m_hWnd, key);
    dialog.PaintAll();
}

// Counts the calls that make drawing objects, by taking their places.

int madeObjects = 0;

template <int kIndex, typename Function>
struct Counted;

template <int kIndex, typename Result, typename... Arguments>
struct Counted<kIndex, Result(WINAPI*)(Arguments...)>
{
    static inline Result(WINAPI* real)(Arguments...);
    static Result WINAPI Call(Arguments... arguments)
    {
        ++madeObjects;
        return real(arguments...);
    }
};

class CObjectCount
{
public:
    CObjectCount()
    {
        madeObjects = 0;
        Hook<0>("CreateSolidBrush", &CreateSolidBrush);
        Hook<1>("CreateBrushIndirect", &CreateBrushIndirect);
        Hook<2>("CreatePen", &CreatePen);
        Hook<3>("CreatePenIndirect", &CreatePenIndirect);
        Hook<4>("CreateFontA", &CreateFontA);
        Hook<5>("CreateFontIndirectA", &CreateFontIndirectA);
        Hook<6>("CreateBitmap", &CreateBitmap);
        Hook<7>("CreateCompatibleBitmap", &CreateCompatibleBitmap);
        Hook<8>("CreateCompatibleDC", &CreateCompatibleDC);
        Hook<9>("CreateRectRgn", &CreateRectRgn);
        Hook<10>("LoadImageA", &LoadImageA);
    }

private:
    template <int kIndex, typename Function>
    void Hook(const char* name, Function)
    {
        using Stand = Counted<kIndex, Function>;
        patches.push_back(
            std::make_unique<ImportPatch>(name, reinterpret_cast<void*>(&Stand::Call)));
        Stand::real = patches.back()->Original<Function>();
    }

    std::vector<std::unique_ptr<ImportPatch>> patches;
};

int ObjectsMadeByPainting(HWND window)
{
    const CObjectCount count;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    return madeObjects;
}

} // namespace

TEST(Kit, PaintingMakesNoDrawingObject)
{
    CKitDlg dialog;
    UseAll(dialog);
    dialog.PaintAll();
    for (const int id : {kCheck, kCombo, kImages, kChecks})
        EXPECT_EQ(0, ObjectsMadeByPainting(dialog.Item(id))) << id;
    // The buttons make their brushes and fonts around each use; that shows that the count works.
    for (const int id : {static_cast<int>(kDark), IDOK})
        EXPECT_GT(ObjectsMadeByPainting(dialog.Item(id)), 0) << id;
}

TEST(Kit, PaintingTheOpenListMakesNoDrawingObject)
{
    CKitDlg dialog;
    auto& combo = dialog.Drawn<CMyComboBox_MyCtrl>(kCombo);
    combo.ShowDropDown(TRUE);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(combo.m_hWnd, &info);
    UpdateWindow(info.hwndList);
    EXPECT_EQ(0, ObjectsMadeByPainting(info.hwndList));
    combo.ShowDropDown(FALSE);
}

TEST(Kit, PaintingLeavesNoBitmapSelected)
{
    CKitDlg dialog;
    dialog.PaintAll();
    // A memory context begins with a bitmap of one pixel.
    const auto selected =
        static_cast<HBITMAP>(GetCurrentObject(GetSharedMemDC(nullptr), OBJ_BITMAP));
    EXPECT_EQ(1, GetBitmapSize(selected).cx);
    EXPECT_EQ(1, GetBitmapSize(selected).cy);
}

TEST(Kit, AThousandDialogsLeaveNothingBehind)
{
    const auto openAndUse = []
    {
        CKitDlg dialog;
        dialog.PaintAll();
        dialog.Drawn<CMyComboBox_MyCtrl>(kCombo).ShowDropDown(TRUE);
        SendMessageA(dialog.Item(IDOK), WM_LBUTTONDOWN, 0, kInside);
        SendMessageA(dialog.Item(IDOK), WM_LBUTTONUP, 0, kInside);
    };
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        openAndUse();
    PumpMessages();
    const int objects = CountGdiObjects();
    const int windows = CountWindows();
    for (int i = 0; i < 1000; ++i)
        openAndUse();
    PumpMessages();
    EXPECT_EQ(windows, CountWindows());
    EXPECT_LE(CountGdiObjects(), objects);
}

// Run with skins that tell no number of columns, or none that can be: there are 8 then.
TEST(EightColumns, AreTakenWhereNoneAreTold)
{
    CTestDlg dialog({{"ListBox", "", kListStyle, kTestId, 0, 0, 190, 200}});
    auto& list = dialog.Drawn<CMyListBox_MyCtrl>(kTestId);
    list.AddItem("", 1);
    // The strip has 13 images of 24 pixels, so an eighth of it is 39 pixels wide.
    constexpr int kLeft = 16;
    constexpr int kMiddle = 20;
    EXPECT_EQ(ListImageColor(39 / 24, false), PixelAt(list.m_hWnd, kLeft, kMiddle));
    EXPECT_EQ(ListImageColor(77 / 24, false), PixelAt(list.m_hWnd, kLeft + 38, kMiddle));
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, kLeft + 39, kMiddle));
}

// Run with each kind of skin, the missing and the broken ones among them.

TEST(AnySkin, EveryControlWorks)
{
    CKitDlg dialog;
    dialog.PaintAll();
    auto& check = dialog.Drawn<CMyCheckBox_MyCtrl>(kCheck);
    check.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    check.SendMessage(WM_LBUTTONUP, 0, kInside);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());

    auto& list = dialog.Drawn<CMyListBox_MyCtrl>(kChecks);
    list.UpdateWindow();
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(18, 20));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(18, 20));
    EXPECT_EQ(1, list.GetItemChecked(0));
    EXPECT_EQ(0, list.GetCurSel());

    UseAll(dialog);
    PumpMessages();
    EXPECT_EQ(3, dialog.Drawn<CMyComboBox_MyCtrl>(kCombo).GetCount());
    EXPECT_GT(dialog.CountCommands(IDOK, BN_CLICKED), 0);
}

TEST(AnySkin, TwoDialogsWork)
{
    CKitDlg left;
    CKitDlg right(210);
    UseAll(left);
    UseAll(right);
    EXPECT_EQ(left.CountCommands(IDOK, BN_CLICKED), right.CountCommands(IDOK, BN_CLICKED));
}

TEST(AnySkin, ImagesOfAnyNumberAreDrawnOrNot)
{
    CTestDlg dialog({{"ListBox", "", kListStyle, kTestId, 0, 0, 190, 200}});
    auto& list = dialog.Drawn<CMyListBox_MyCtrl>(kTestId);
    for (const int image : {-2147483647 - 1, -1, 0, 7, 8, 12, 13, 1000000, 2147483647})
        list.SetCurSel(list.AddItem("x", image));
    for (int i = 0; i < list.GetCount(); ++i)
    {
        list.SetTopIndex(i);
        list.UpdateWindow();
    }
    EXPECT_EQ(9, list.GetCount());
}
