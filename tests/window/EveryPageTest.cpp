// What every page that edits the record does alike: shows it, stores what was changed and nothing
// else, restores from the packaged file alone, and leaves every file when the window is cancelled.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/Records.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace
{

enum class Form
{
    Check,     // a box and a flag
    Row,       // a combo box whose row is the value
    OnOff,     // a combo box of two rows and a flag
    Hedge,     // a combo box of the two hedge characters
    PriceCode, // a combo box whose items carry the values
    Text,      // an edit with a whole number
    Count,     // the same, restored within limits
    Once,      // the same, but 1 is stored whatever it says
    Seconds,   // an edit in seconds, restored within limits
    Ratio,     // an edit with two decimals
    Choice,    // a box that stands for one value of its field
};

struct Control
{
    int id;
    const char* key; // '?' stands for the product
    Form form;
    int value = 0; // of a choice
};

struct Page
{
    const char* name;
    TParamSetPage start;
    char product; // its letter in the keys, or the entry of a split order
    std::vector<Control> controls;
    int anchor = 0; // a control of the page that no other has, where the page is never shown
};

const std::vector<Control> kPublic = {
    {6002, "bInsertNoConfirm", Form::Check},  {6012, "bQuickNoConfirm", Form::Check},
    {6003, "bCancelNoConfirm", Form::Check},  {6015, "bCancelAllNoConfirm", Form::Check},
    {6004, "bIllegalPrompt", Form::Check},    {6005, "bManualOpponentsPrice", Form::Check},
    {6006, "imoPriceTick", Form::Text},       {6008, "bRestoreOpponentsPrice", Form::Check},
    {6013, "bRestoreVolume", Form::Check},    {6009, "iLockScreen", Form::Text},
    {6011, "bPointOrderInsert", Form::Check}, {6033, "bOrderPrompt", Form::Check},
    {6034, "bTradedPlaySound", Form::Check},  {6036, "bLinkage", Form::Check},
    {6057, "bHideAccountInfo", Form::Check},  {6016, "enumListFontType", Form::Row},
};

const std::vector<Control> kFutureConventional = {
    {6002, "bFRestoreOpenFlag", Form::Check},  {6003, "bFAutoCancelOrder", Form::Check},
    {6010, "cFFastClosePrice", Form::Row},     {6006, "iFfcPriceTick", Form::Text},
    {6008, "cFInsertPrice", Form::PriceCode},  {6009, "cFSpeculationHedge", Form::Hedge},
    {6011, "cFSuperBuy1", Form::Row},          {6012, "cFSuperBuy2", Form::Row},
    {6013, "cFSuperSell1", Form::Row},         {6014, "cFSuperSell2", Form::Row},
    {6015, "cFCloseTodayPriority", Form::Row},
};

const std::vector<Control> kStockConventional = {
    {6009, "cSInsertPrice", Form::PriceCode},
    {6006, "uSVolumeLimit", Form::Text},
    {6010, "cSFastClosePrice", Form::Row},
    {6007, "iSfcPriceTick", Form::Text},
};

const std::vector<Control> kFutureChase = {
    {6009, "cFAutoChasePriceFlag", Form::Row},        {6010, "iFacPriceTick", Form::Text},
    {6011, "iFAutoCancelOrderDelay", Form::Seconds},  {6012, "iFRepeatTimes", Form::Text},
    {6002, "bFManualOrderByChasePrice", Form::Check}, {6003, "bFLastOrderCancel", Form::Check},
};

const std::vector<Control> kStockChase = {
    {6009, "cSAutoChasePriceFlag", Form::Row},        {6007, "iSacPriceTick", Form::Text},
    {6011, "iSAutoCancelOrderDelay", Form::Seconds},  {6013, "iSRepeatTimes", Form::Count},
    {6002, "bSManualOrderByChasePrice", Form::Check}, {6003, "bSLastOrderCancel", Form::Check},
};

const std::vector<Control> kOptionsChase = {
    {6009, "cOAutoChasePriceFlag", Form::Row},        {6010, "iOacPriceTick", Form::Text},
    {6011, "iOAutoCancelOrderDelay", Form::Seconds},  {6012, "iORepeatTimes", Form::Count},
    {6002, "bOManualOrderByChasePrice", Form::Check}, {6003, "bOLastOrderCancel", Form::Check},
};

std::vector<Control> Stops(Form times)
{
    return {
        {6006, "i?StopContinuousTimesLoss", times},   {6009, "c?StopPriceLoss", Form::Row},
        {6008, "i?StopContinuousTimesProfit", times}, {6011, "c?StopPriceProfit", Form::Row},
        {6012, "c?StopInsertPriceLoss", Form::Row},   {6013, "c?StopInsertPriceProfit", Form::Row},
        {6016, "c?StopLossPriceTick", Form::Text},    {6014, "c?StopProfitPriceTick", Form::Text},
        {6002, "b?UseChasePrice", Form::Check},       {6018, "b?Forever", Form::OnOff},
    };
}

const std::vector<Control> kSplit = {
    {6002, "cSplitOrderType_?", Form::Choice, 1}, {6003, "cSplitOrderType_?", Form::Choice, 2},
    {6006, "uIfVolume1_?", Form::Text},           {6008, "uMinVolume1_?", Form::Text},
    {6010, "uMaxVolume1_?", Form::Text},          {6012, "fInterval1_?", Form::Ratio},
    {6035, "uIfVolume1_Market_?", Form::Text},    {6020, "uMinVolume1_Market_?", Form::Text},
    {6024, "uMaxVolume1_Market_?", Form::Text},   {6026, "fInterval1_Market_?", Form::Ratio},
    {6016, "uIfVolume2_?", Form::Text},           {6018, "uVolume2_?", Form::Text},
    {6022, "fInterval2_?", Form::Ratio},          {6028, "uIfVolume2_Market_?", Form::Text},
    {6030, "uVolume2_Market_?", Form::Text},      {6032, "fInterval2_Market_?", Form::Ratio},
};

const std::vector<Control> kMarginBuy = {
    {6002, "uMarginBuyStrategy", Form::Choice, 3},
    {6003, "uMarginBuyStrategy", Form::Choice, 1},
    {6004, "uMarginBuyStrategy", Form::Choice, 0},
};

const std::vector<Control> kIndicator = {
    {6002, "bOneOpen", Form::Check},
    {6003, "bOpenPrompt", Form::Check},
    {6004, "bStockAutoOpen", Form::Check},
    {6005, "bFutureAutoOpen", Form::Check},
    {6006, "bDerivativeAutoOpen", Form::Check},
    {6007, "bGoldAutoOpen", Form::Check},
};

const Page kPages[] = {
    {"Public", ParamPagePublic, 0, kPublic},
    {"FutureConventional", ParamPageFuture, 'F', kFutureConventional},
    {"FutureChase", ParamPageFutureChase, 'F', kFutureChase},
    {"FutureStop", ParamPageFutureStop, 'F', Stops(Form::Once)},
    {"StockConventional", ParamPageStock, 'S', kStockConventional},
    {"StockChase", ParamPageStockChase, 'S', kStockChase},
    {"StockSplit", ParamPageStockSplit, '3', kSplit},
    {"MarginBuy", ParamPageMarginBuy, 0, kMarginBuy},
    {"OptionsChase", ParamPageOptionsChase, 'O', kOptionsChase},
    {"OptionsStop", ParamPageOptionsStop, 'O', Stops(Form::Once)},
    {"OptionsSplit", ParamPageOptionsSplit, '2', kSplit},
    {"Indicator", ParamPageIndicator, 0, kIndicator},
    // Saved with its host, but never shown: nothing restores it.
    {"StockStop", ParamPageStock, 'S', Stops(Form::Text), 6017},
};

bool IsEdit(Form form)
{
    return form == Form::Text || form == Form::Count || form == Form::Once ||
           form == Form::Seconds || form == Form::Ratio;
}

bool IsBox(Form form)
{
    return form == Form::Check || form == Form::Choice;
}

std::string Decimal(double value)
{
    char text[64];
    snprintf(text, sizeof(text), "%.2f", value);
    return text;
}

class EveryPage : public ModuleTest, public testing::WithParamInterface<Page>
{
protected:
    static std::string KeyOf(const Control& control)
    {
        std::string key = control.key;
        const size_t product = key.find('?');
        if (product != std::string::npos)
            key[product] = GetParam().product;
        return key;
    }

    /// What restore reads: two controls go by a key that is not their field's.
    static std::string PackagedKeyOf(const Control& control)
    {
        const std::string key = KeyOf(control);
        if (key == "iFAutoCancelOrderDelay")
            return "cFSuperSell2";
        return GetParam().product == '3' ? key.substr(0, key.size() - 1) + "1" : key;
    }

    static bool IsRestored(const Control& control)
    {
        return FactoryDefault(PackagedKeyOf(control)).read != DefaultRead::None;
    }

    /// What the control shows of a record: 1 or 0 of a box, the row of a combo box, a text.
    static std::string ShownOf(const TOParam& record, const Control& control)
    {
        const ParamField& field = KeyNamed(KeyOf(control)).field;
        const int value = GetInt(record, field);
        switch (control.form)
        {
        case Form::Hedge:
            return value == '3' ? "1" : "0";
        case Form::Seconds:
            return Decimal(value / 1000.0);
        case Form::Ratio:
            return Decimal(GetFloat(record, field));
        case Form::Choice:
            return value == control.value ? "1" : "0";
        default:
            return std::to_string(value);
        }
    }

    /// What the control shows of a packaged text; `before` where it takes no notice.
    static std::string ShownOfPackaged(const std::string& text, const Control& control,
                                       const std::string& before)
    {
        const std::string key = PackagedKeyOf(control);
        const int number = atoi(text.c_str());
        switch (control.form)
        {
        case Form::Check:
            return !IsRestored(control) ? before : number ? "1" : "0";
        case Form::Row:
            return std::to_string(number > 9 ? -1 : number);
        case Form::OnOff:
            return number ? "1" : "0";
        case Form::Hedge:
            return number == '3' ? "1" : number == '1' ? "0" : before;
        case Form::PriceCode:
            return number > 4 ? before : std::to_string(number);
        case Form::Count:
            return std::to_string(std::max(number, 1));
        case Form::Seconds:
            return key == "cFSuperSell2" ? text : Decimal(std::max(atof(text.c_str()), 1.0));
        case Form::Choice:
            // The first strategy of the list, whatever is packaged.
            return key == "uMarginBuyStrategy" ? std::to_string(control.value == 3)
                                               : std::to_string(number == control.value);
        default:
            return text;
        }
    }

    static std::string DefaultOf(const Control& control)
    {
        const std::string key = PackagedKeyOf(control);
        return control.form == Form::Seconds && key == "cFSuperSell2" ? "5"
                                                                      : FactoryDefault(key).text;
    }

    static HWND PageOf(const Trader& trader)
    {
        if (GetParam().anchor)
            return GetParent(trader.Control(GetParam().anchor));
        for (const Control& control : GetParam().controls)
            if (trader.IsShown(control.id))
                return GetParent(trader.Control(control.id));
        return nullptr;
    }

    static std::string Shown(HWND page, const Control& control)
    {
        const HWND window = GetDlgItem(page, control.id);
        if (IsBox(control.form))
            return std::to_string(SendMessageA(window, BM_GETCHECK, 0, 0));
        if (!IsEdit(control.form))
            return std::to_string(SendMessageA(window, CB_GETCURSEL, 0, 0));
        char text[256] = "";
        SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
        return text;
    }

    static void Put(HWND page, const Control& control, const std::string& shown)
    {
        const HWND window = GetDlgItem(page, control.id);
        if (IsEdit(control.form))
            SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(shown.c_str()));
        else if (!IsBox(control.form))
            SendMessageA(window, CB_SETCURSEL, atoi(shown.c_str()), 0);
        else if (!IsWindowVisible(window))
            SendMessageA(window, BM_SETCHECK, atoi(shown.c_str()), 0);
        else if (Shown(page, control) != shown)
            SendMessageA(window, BM_CLICK, 0, 0);
    }

    static void PutAll(const Trader& trader, const TOParam& record)
    {
        const HWND page = PageOf(trader);
        for (const Control& control : GetParam().controls)
            Put(page, control, ShownOf(record, control));
        // A box tells its page by a posted message.
        trader.Settle();
    }

    static void ExpectShown(HWND page, const std::function<std::string(const Control&)>& expected)
    {
        for (const Control& control : GetParam().controls)
            EXPECT_EQ(expected(control), Shown(page, control)) << KeyOf(control);
    }

    static void ExpectShown(HWND page, const TOParam& record)
    {
        ExpectShown(page, [&](const Control& control) { return ShownOf(record, control); });
    }

    /// Packages a text for each control, or nothing at all, and restores.
    void ExpectRestored(Trader& trader, const std::function<std::string(const Control&)>& packaged)
    {
        const HWND page = PageOf(trader);
        const auto expected = [&](const Control& control)
        {
            return ShownOfPackaged(packaged ? packaged(control) : DefaultOf(control), control,
                                   ShownOf(m_second, control));
        };
        PutAll(trader, m_second);
        std::string file = "[TradeConfig]\r\n";
        for (const Control& control : GetParam().controls)
        {
            if (packaged)
                file += PackagedKeyOf(control) + "=" + packaged(control) + "\r\n";
            // A box that stood right before would prove nothing.
            if (control.form == Form::Check && IsRestored(control))
                Put(page, control, expected(control) == "1" ? "0" : "1");
        }
        RemoveTree(kPackagedFile);
        if (packaged)
            WriteBytes(kPackagedFile, file);
        SendMessageA(trader.Window(), WM_COMMAND, IDC_RESTORE_DEFAULTS, 0);
        ExpectShown(page, expected);
    }

    /// Return and Escape in an edit, where the page has one to go to.
    static void ExpectKeysLeaveTheWindow(Trader& trader)
    {
        for (const Control& control : GetParam().controls)
        {
            const HWND window = GetDlgItem(PageOf(trader), control.id);
            if (!IsEdit(control.form) || !IsWindowVisible(window) || !IsWindowEnabled(window))
                continue;
            trader.ClickWindow(window);
            for (WORD key : {VK_RETURN, VK_ESCAPE})
            {
                trader.Key(key);
                EXPECT_TRUE(trader.IsOpen()) << KeyOf(control);
            }
            return;
        }
    }

    TOParam m_first = SampleRecord(Sample::First);
    const TOParam m_second = SampleRecord(Sample::Second);
};

std::string PackagedText(const TOParam& record, const std::string& key)
{
    return FormatParam(record, KeyNamed(key));
}

/// Texts that no client writes, and what one finds in a file that was edited by hand.
std::string OddText(Form form)
{
    switch (form)
    {
    case Form::Row:
    case Form::OnOff:
        return "99";
    case Form::Hedge:
        return "50";
    case Form::PriceCode:
        return "6";
    case Form::Text:
    case Form::Once:
    case Form::Ratio:
    case Form::Seconds:
        return "8 x";
    default:
        return "{\\rtf1 8}"; // shown as it is, although a rich edit reads it as a formatted 8
    }
}

class ShownPage : public EveryPage
{
};

std::string NameOf(const testing::TestParamInfo<Page>& page)
{
    return page.param.name;
}

INSTANTIATE_TEST_SUITE_P(All, EveryPage, testing::ValuesIn(kPages), NameOf);
INSTANTIATE_TEST_SUITE_P(AllButTheLast, ShownPage,
                         testing::ValuesIn(std::begin(kPages), std::end(kPages) - 1), NameOf);

} // namespace

TEST_P(EveryPage, StoresWhatWasChangedAndNothingElse)
{
    TOParam expected = m_first;
    for (const Control& control : GetParam().controls)
    {
        const ParamField& field = KeyNamed(KeyOf(control)).field;
        SetInt(expected, field, control.form == Form::Once ? 1 : GetInt(m_second, field));
        SetFloat(expected, field, GetFloat(m_second, field));
    }
    // Margin buys are kept equal to margin sells.
    expected.SplitOrder[1] = expected.SplitOrder[3];

    RunSettingsWindow(m_first, GetParam().start,
                      [&](Trader& trader)
                      {
                          const HWND page = PageOf(trader);
                          ExpectShown(page, m_first);
                          PutAll(trader, m_second);
                          ExpectShown(page, m_second);
                          for (const Control& control : GetParam().controls)
                              if (control.form == Form::Once)
                                  Put(page, control, "77");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("", Differences(FileOf(expected), WithoutPageKeys(ReadBytes(kUserFile))));
}

TEST_P(ShownPage, RestoresThePackagedValuesAndCancelLeavesTheFiles)
{
    WriteBytes("cfg\\Trade\\TradeParam.ini",
               "[TradeConfig]\r\niOAutoCancelOrderDelayMin=1\r\niOAutoCancelOrderDelayMax=9999999"
               "\r\niORepeatTimesMin=1\r\niORepeatTimesMax=9999999\r\n");
    // The user's file contradicts the packaged one all along.
    const std::string before = "; mine\r\n" + FileOf(SampleRecord(Sample::Second)) + "\r\nx = 1";
    WriteBytes(kUserFile, before);
    std::string packaged;
    EXPECT_EQ(IDCANCEL,
              RunSettingsWindow(m_first, GetParam().start,
                                [&](Trader& trader)
                                {
                                    ExpectRestored(trader, nullptr);
                                    ExpectRestored(trader, [](const Control& control)
                                                   { return OddText(control.form); });
                                    ExpectRestored(
                                        trader, [&](const Control& control)
                                        { return PackagedText(m_first, PackagedKeyOf(control)); });
                                    packaged = ReadBytes(kPackagedFile);
                                    PutAll(trader, m_second);
                                    ExpectKeysLeaveTheWindow(trader);
                                    trader.Click(IDCANCEL);
                                }));
    EXPECT_EQ(before, ReadBytes(kUserFile));
    EXPECT_EQ(packaged, ReadBytes(kPackagedFile));
}
