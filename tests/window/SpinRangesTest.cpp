// How far the spin buttons of the pages go.
#include "tests/window/ModuleTest.h"

#include <vector>

namespace
{

struct Spin
{
    int edit;
    const char* least;
    const char* most = "9999999";
};

struct SpinPage
{
    const char* name;
    TParamSetPage start;
    int visible; // an edit on show
    std::vector<Spin> spins;
};

const SpinPage kPages[] = {
    {"FutureConventional", ParamPageFuture, 6006, {{6006, "-9999999"}}},
    {"StockConventional", ParamPageStock, 6007, {{6007, "-999999"}}},
    {"OptionsConventional",
     ParamPageOptions,
     6006,
     {{6006, "-9999999"}, {6009, "1"}, {6016, "1"}, {6021, "1"}}},
    {"FutureStop",
     ParamPageFutureStop,
     6014,
     {{6006, "-9999999"}, {6008, "-9999999"}, {6014, "-9999999"}, {6016, "-9999999"}}},
    {"OptionsStop",
     ParamPageOptionsStop,
     6014,
     {{6006, "1"}, {6008, "1"}, {6014, "-999999"}, {6016, "-999999"}}},
    {"FutureChase",
     ParamPageFutureChase,
     6010,
     {{6010, "-9999999"}, {6011, "0.01", "9999999.00"}, {6012, "1"}}},
    {"StockChase",
     ParamPageStockChase,
     6007,
     {{6007, "-9999999"}, {6011, "0.01", "9999999.00"}, {6013, "1"}}},
    {"OptionsChase",
     ParamPageOptionsChase,
     6010,
     {{6010, "-9999999"}, {6011, "0.01", "9999999.00"}, {6012, "1"}}},
    {"OptionsSplit",
     ParamPageOptionsSplit,
     6006,
     {{6006, "1"},
      {6008, "1"},
      {6010, "1"},
      {6012, "0.00", "9999999.00"},
      {6035, "1"},
      {6020, "1"},
      {6024, "1"},
      {6026, "0.00", "9999999.00"},
      {6016, "1"},
      {6018, "1"},
      {6022, "0.00", "9999999.00"},
      {6028, "1"},
      {6030, "1"},
      {6032, "0.00", "9999999.00"}}},
};

class SpinRanges : public ModuleTest, public testing::WithParamInterface<SpinPage>
{
};

INSTANTIATE_TEST_SUITE_P(Pages, SpinRanges, testing::ValuesIn(kPages),
                         [](const auto& page) { return page.param.name; });

} // namespace

TEST_P(SpinRanges, EndAtTheirBounds)
{
    TOParam record = {};
    record.SplitOrder[2].cSplitOrderType = 1;
    RunSettingsWindow(record, GetParam().start,
                      [](Trader& trader)
                      {
                          const HWND page = GetParent(trader.Control(GetParam().visible));
                          for (const Spin& spin : GetParam().spins)
                          {
                              // Some are hidden, some are off: a spin button that acts is above all others.
                              const HWND edit = GetDlgItem(page, spin.edit);
                              EnableWindow(edit, TRUE);
                              SetWindowPos(edit, HWND_TOP, 0, 0, 0, 0,
                                           SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
                              trader.SetText(spin.edit, spin.least);
                              trader.SpinDown(spin.edit);
                              EXPECT_EQ(spin.least, trader.Text(edit)) << spin.edit;
                              trader.SetText(spin.edit, spin.most);
                              trader.SpinUp(spin.edit);
                              EXPECT_EQ(spin.most, trader.Text(edit)) << spin.edit;
                              trader.SpinDown(spin.edit);
                              EXPECT_NE(spin.most, trader.Text(edit)) << spin.edit;
                          }
                          trader.Click(IDCANCEL);
                      });
}
