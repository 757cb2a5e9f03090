// Every page and every box as the trader sees it: no text is clipped, no control stands on another. With
// ZORVANE_PICTURES set to a folder each picture is left there.
#include "resources/resource.h"
#include "tests/window/ConditionModeClient.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/InsideWindow.h"
#include "tests/window/KeyPage.h"
#include "tests/window/LayoutChecks.h"

#include <vector>

namespace
{

/// What is on show besides the ordinary pages.
struct Variant
{
    const char* name;
    bool limitPrice;
    bool cloud;
    bool net;
};

const Variant kVariants[] = {
    {"plain", false, false, false},
    {"optional", true, true, true},
};

/// Switches the page of quick keys, which alone has this box, to its shorter list.
void EnableNetPosition(HWND page)
{
    const HWND box = GetDlgItem(page, IDC_NET_POSITION);
    char caption[32] = "";
    GetWindowTextA(box, caption, sizeof(caption));
    if (strcmp(caption, "启用净仓") != 0)
        return;
    SendMessageA(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    SendMessageA(box, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
}

/// A page and what lies below its edge.
void CheckPage(HWND window, HWND page, const std::string& name)
{
    SCOPED_TRACE(name);
    CheckLayout(page);
    LeavePicture(window, name);
    if (!(GetWindowLongA(page, GWL_STYLE) & WS_VSCROLL))
        return;
    SendMessageA(page, WM_VSCROLL, SB_BOTTOM, 0);
    LeavePicture(window, name + "-end");
}

class Layout : public ModuleTest, public testing::WithParamInterface<Variant>
{
protected:
    // Left behind, the settings would open the wizard when the next run loads the module.
    void TearDown() override { RemoveTree("cfg"); }
};

} // namespace

TEST_P(Layout, NoTextIsClippedAndNoControlStandsOnAnother)
{
    SetProcessDPIAware();
    const Variant& variant = GetParam();
    ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, variant.limitPrice);
    if (variant.cloud)
        WriteBytes("cfg\\Trade\\TradeParam.ini", "[Zorvane]\r\nOpenSelectConditionOrderMode=1\r\n");
    TOParam record = FactoryRecord();
    record.uUseCloudMode = variant.cloud;
    int pages = 0;
    RunInsideSettingsWindow(record, ParamPagePublic,
                            [&](HWND window)
                            {
                                CheckLayout(window);
                                WalkPages(window,
                                          [&](HWND page)
                                          {
                                              if (variant.net)
                                                  EnableNetPosition(page);
                                              CheckPage(window, page,
                                                        std::string(variant.name) + "-" +
                                                            std::to_string(++pages));
                                          });
                            });
    EXPECT_GE(pages, 11);
}

INSTANTIATE_TEST_SUITE_P(Variants, Layout, testing::ValuesIn(kVariants),
                         [](const auto& tested) { return std::string(tested.param.name); });

// ---- What comes up over the window

namespace
{

constexpr int kActionColumn = 6;
constexpr int kRaiseItem = 3;

class BoxLayout : public ConditionModeTest
{
protected:
    /// Looks at the box that has come up over the window, and leaves it by Escape.
    static void CheckBox(const Trader& trader, const std::string& name)
    {
        const HWND window = WaitForPopup(trader.Window());
        ASSERT_TRUE(window) << name;
        Trader box(window);
        box.Settle();
        SCOPED_TRACE(name);
        CheckLayout(window);
        LeavePicture(window, name);
        box.Key(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([window] { return !IsWindow(window); }));
        trader.Settle();
    }
};

} // namespace

TEST_F(BoxLayout, PromptOfTheOtherMode)
{
    for (const int mode : {0, 1})
        Run(mode,
            [mode](Trader& trader)
            {
                trader.Click(mode == 0 ? IDC_CLOUD_MODE : IDC_LOCAL_MODE);
                trader.Click(IDOK);
                CheckBox(trader, mode == 0 ? "prompt-cloud" : "prompt-local");
                trader.Click(IDCANCEL);
            });
}

TEST_F(BoxLayout, VolumeOfAKey)
{
    TOParam record = FactoryRecord();
    RunSettingsWindow(record, ParamPageOptionsKeys,
                      [](Trader& trader)
                      {
                          KeyPage page(trader, {140, 60, 60, 80, 40, 80, 220});
                          trader.ClickWindow(GetDlgItem(page.Page(), 3));
                          page.ClickCell(kActionColumn, 0);
                          page.PickByMouse(kRaiseItem);
                          CheckBox(trader, "volume");
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(BoxLayout, ValuesOfAProduct)
{
    TOParam record = FactoryRecord();
    for (const auto page : {ParamPageOtherStock, ParamPageOtherOptions})
        RunSettingsWindow(record, page,
                          [page](Trader& trader)
                          {
                              const KeyPage list(trader, {80, 100});
                              const RECT cell = list.Cell(0, 0);
                              trader.DoubleClickAt(list.Grid(), (cell.left + cell.right) / 2,
                                                   (cell.top + cell.bottom) / 2);
                              CheckBox(trader, "product-" + std::to_string(page));
                              trader.Click(IDCANCEL);
                          });
}
