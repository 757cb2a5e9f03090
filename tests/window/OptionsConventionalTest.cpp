// The entry "期权设置", tab "常规".
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/PriceItems.h"

#include "core/ParamField.h"

#include <vector>

namespace
{

constexpr int kChaseTab = 1;

const char kTradeParam[] = "cfg\\Trade\\TradeParam.ini";
const char kOther[] = "cfg\\system\\other.ini";

const char kNoDecimal[] = "单合约委托价格超限提醒倍率应当是 小数位数最多两位的数字";
const char kHigherOutOfRange[] = "限价买入、买平和备兑平仓价格高于最新价倍率应当大于 1";
const char kLowerOutOfRange[] = "限价卖开、卖平和备兑开仓价格低于最新价倍率应当大于 0 并且小于 1";

struct Box
{
    int id;
    const char* label;
    ParamField field;
    bool isDefaultOn;
};

// The boxes whose state save-all writes.
const Box kBoxes[] = {
    {IDC_RESTORE_OPEN, "平仓后恢复为开仓状态。", FIELD(bORestoreOpenFlag), true},
    {IDC_AUTO_CANCEL, "平仓数量超过可用时自动撤销已有平仓委托。", FIELD(bOAutoCancelOrder), false},
    {IDC_COST_PROMPT, "卖出平仓所得无法覆盖交易成本时发出提醒", FIELD(bOCostPrompt), false},
    {IDC_QUERY_MAX_OPEN, "查可开时，显示按资金上限的可开数量。（否则显示单笔委托上限）",
     FIELD(bOQueryMaxOpen), true},
    {IDC_POSITION_STATISTICS, "不同标的持仓汇总显示希腊字母", FIELD(bPositionStatistics), false},
};

// The boxes whose state the page writes itself.
const Box kOwnedBoxes[] = {
    {IDC_PRICE_OUT_PROMPT, "当日首单提醒。", FIELD(iPriceOutPrompt), true},
    {IDC_SWAP_PRICE_AMOUNT, "下单面板价格与数量位置对调。", FIELD(iOptionPriceAmountLayout), false},
    {IDC_SHOW_ZERO_POSITION, "持仓报表中，显示持仓数量为0的数据。", FIELD(iShowZeroPosition),
     false},
};

const Box kNotices[] = {
    {IDC_HIGHER_NOTICE, "限价委托买入价高于最新价乘以", FIELD(bHigherLimitPriceNotice), true},
    {IDC_LOWER_NOTICE, "限价委托卖出价低于最新价乘以", FIELD(bLowerLimitPriceNotice), true},
    {IDC_FUSING_NOTICE, "限价委托价格可能触发熔断", FIELD(bOuterFusingLimitPriceNotice), true},
};

struct Field
{
    int id;
    ParamField field;
    const char* restored; // what a restore without a packaged file shows
};

const Field kNumbers[] = {{IDC_OPTIONS_VOLUME_LIMIT, FIELD(uOVolumeLimit), "1000"},
                          {IDC_FAST_CLOSE_TICK, FIELD(iOfcPriceTick), "0"},
                          {IDC_PRICE_OUT, FIELD(iPriceOut), "10"},
                          {IDC_EXPIRE_DAYS, FIELD(iExpire), "7"},
                          {IDC_COMBINATION_DAYS, FIELD(uOCPositionPrompt), "3"}};

const Field kCombos[] = {{IDC_INSERT_PRICE, FIELD(cOInsertPrice), "0"},
                         {IDC_FAST_CLOSE, FIELD(cOFastClosePrice), "0"},
                         {IDC_SUPER_BUY_1, FIELD(cOSuperBuy1), "0"},
                         {IDC_SUPER_BUY_2, FIELD(cOSuperBuy2), "1"},
                         {IDC_SUPER_SELL_1, FIELD(cOSuperSell1), "0"},
                         {IDC_SUPER_SELL_2, FIELD(cOSuperSell2), "1"},
                         {IDC_PRICE_OUT_MEASURE, FIELD(iXZDLimit), "0"},
                         {IDC_POSITION_RANK, FIELD(uPosExecPriceRank), "1"}};

/// What lies on the screen over a window's area.
struct Screen
{
    std::vector<DWORD> pixels;
    int width;
    int height;
};

Screen PictureOf(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    Screen screen = {{}, place.right - place.left, place.bottom - place.top};
    screen.pixels.resize(screen.width * screen.height);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = screen.width;
    info.bmiHeader.biHeight = -screen.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const HDC display = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(display);
    const HBITMAP bitmap = CreateCompatibleBitmap(display, screen.width, screen.height);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, screen.width, screen.height, display, place.left, place.top, SRCCOPY);
    SelectObject(memory, old);
    GetDIBits(memory, bitmap, 0, screen.height, screen.pixels.data(), &info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, display);
    return screen;
}

int Differences(const Screen& a, const Screen& b)
{
    if (a.pixels.size() != b.pixels.size())
        return -1;
    int count = 0;
    for (size_t i = 0; i < a.pixels.size(); ++i)
        count += (a.pixels[i] & 0xFFFFFF) != (b.pixels[i] & 0xFFFFFF);
    return count;
}

/// The page as one scrolls it by mouse.
class Page
{
public:
    static constexpr int kBarWidth = 12;

    explicit Page(Trader& trader)
        : m_trader(trader)
        , m_window(GetParent(trader.Control(IDC_OPTIONS_VOLUME_LIMIT)))
        , m_top(TopOf(IDC_OPTIONS_VOLUME_LIMIT))
    {
        GetWindowRect(m_window, &m_place);
    }

    HWND Window() const { return m_window; }
    RECT Place() const
    {
        RECT place = m_place;
        MapWindowPoints(nullptr, GetParent(m_window), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    int Height() const { return m_place.bottom - m_place.top; }
    bool HasBar() const
    {
        RECT client = {};
        GetClientRect(m_window, &client);
        return client.right == m_place.right - m_place.left - kBarWidth;
    }

    /// How far the contents have moved up.
    int Pos() const { return m_top - TopOf(IDC_OPTIONS_VOLUME_LIMIT); }

    void PointAtBar(int along) const
    {
        SetCursorPos(m_place.right - kBarWidth / 2, m_place.top + along);
        m_trader.Settle();
    }
    void Mouse(DWORD event, int amount = 0) const
    {
        mouse_event(event, 0, 0, amount, 0);
        m_trader.Settle();
    }
    void ClickBar(int along) const
    {
        m_trader.ClickAt(nullptr, m_place.right - kBarWidth / 2, m_place.top + along);
    }
    void Wheel(int delta) const { Mouse(MOUSEEVENTF_WHEEL, delta); }
    void ToEnd() const { ClickBar(Height() - 20); }
    void ToStart() const { ClickBar(20); }

    void PaintAnew() const
    {
        RedrawWindow(m_window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        m_trader.Settle();
    }
    /// A picture without the mouse in it.
    Screen Picture() const
    {
        SetCursorPos(5, 5);
        m_trader.Settle();
        Sleep(60); // the bar looks for the mouse every 20 milliseconds
        m_trader.Settle();
        return PictureOf(m_window);
    }

private:
    int TopOf(int id) const
    {
        RECT control = {};
        GetWindowRect(GetDlgItem(m_window, id), &control);
        RECT window = {};
        GetWindowRect(m_window, &window);
        return control.top - window.top;
    }

    Trader& m_trader;
    HWND m_window;
    int m_top;
    RECT m_place = {};
};

HWND FocusOf(const Trader& trader)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(trader.Window(), nullptr), &info);
    return info.hwndFocus;
}

class OptionsConventional : public ModuleTest
{
protected:
    int Run(const std::function<void(Trader&)>& work)
    {
        return RunSettingsWindow(m_record, ParamPageOptions, work);
    }

    void OfferReminder() { ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, true); }

    static TOParam Record()
    {
        TOParam record = {};
        record.uOVolumeLimit = 123;
        record.bOAutoCancelOrder = 1;
        record.cOFastClosePrice = 2;
        record.iOfcPriceTick = -3;
        record.cOInsertPrice = 7;
        record.iXZDLimit = 1;
        record.iPriceOut = 44;
        record.iPriceOutPrompt = 1;
        record.iExpire = 5;
        record.uOCPositionPrompt = 6;
        record.cOSuperBuy1 = 9;
        record.cOSuperBuy2 = 8;
        record.cOSuperSell1 = 5;
        record.cOSuperSell2 = 4;
        record.bOCostPrompt = 1;
        record.iShowZeroPosition = 1;
        record.bPositionStatistics = 1;
        record.fMaxRatioHigherLimitPrice = 2.25f;
        record.bLowerLimitPriceNotice = 1;
        record.fMinRatioLowerLimitPrice = 0.75f;
        return record;
    }

    /// Answers the message that leaving the page brings up, and finds the page still there.
    static std::string LeavingSays(Trader& trader)
    {
        const int marked = trader.MarkedTab();
        trader.SelectTab(kChaseTab);
        const std::string message = trader.AnswerMessage();
        EXPECT_TRUE(trader.IsShown(IDC_OPTIONS_VOLUME_LIMIT));
        EXPECT_EQ(marked, trader.MarkedTab());
        return message;
    }

    static void ExpectLeaves(Trader& trader)
    {
        trader.SelectTab(kChaseTab);
        EXPECT_FALSE(trader.IsShown(IDC_OPTIONS_VOLUME_LIMIT));
        trader.SelectTab(0);
        EXPECT_TRUE(trader.IsShown(IDC_OPTIONS_VOLUME_LIMIT));
    }

    TOParam m_record = Record();
};

} // namespace

TEST_F(OptionsConventional, ShowsTheRecord)
{
    Run(
        [this](Trader& trader)
        {
            EXPECT_EQ(1, trader.SelectedRow());
            for (const Box& box : kBoxes)
                EXPECT_EQ(GetInt(m_record, box.field), trader.IsChecked(box.id)) << box.label;
            for (const Box& box : kOwnedBoxes)
                EXPECT_EQ(GetInt(m_record, box.field), trader.IsChecked(box.id)) << box.label;
            for (const Field& number : kNumbers)
                EXPECT_EQ(std::to_string(GetInt(m_record, number.field)), trader.Text(number.id));
            for (const Field& combo : kCombos)
            {
                const int row = combo.id == IDC_INSERT_PRICE ? 5 : GetInt(m_record, combo.field);
                EXPECT_EQ(row, trader.Picked(combo.id)) << combo.field.name;
            }
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, NamesItsControls)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            for (const Box& box : kBoxes)
                EXPECT_EQ(box.label, trader.Text(box.id));
            for (const Box& box : kOwnedBoxes)
                EXPECT_EQ(box.label, trader.Text(box.id));
            for (const Box& box : kNotices)
                EXPECT_EQ(box.label, trader.Text(box.id));
            EXPECT_EQ("单笔上限快捷平仓时使用：调整个价位下单。默认下单价格：严重价外提醒：大于"
                      "%时提示。当下单合约在：天内到期时提示。组合策略在：天内自动解除时提醒。"
                      "快捷买按钮一：快捷买按钮二：快捷卖按钮一：快捷卖按钮二：持仓档位："
                      "单合约委托价格超限提醒：（说明：参数输入范围大于1）"
                      "（说明：参数输入范围大于0并且小于1）",
                      Trader(Page(trader).Window()).Message());
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ListsItsItems)
{
    Run(
        [](Trader& trader)
        {
            ExpectPriceItems(trader, IDC_INSERT_PRICE, IDC_FAST_CLOSE);
            for (int combo : {IDC_SUPER_BUY_1, IDC_SUPER_BUY_2})
                ExpectQuickButtonItems(trader, combo, "买");
            for (int combo : {IDC_SUPER_SELL_1, IDC_SUPER_SELL_2})
                ExpectQuickButtonItems(trader, combo, "卖");
            ASSERT_EQ(2, trader.ItemCount(IDC_PRICE_OUT_MEASURE));
            EXPECT_EQ("虚值度", trader.Item(IDC_PRICE_OUT_MEASURE, 0));
            EXPECT_EQ("溢价率", trader.Item(IDC_PRICE_OUT_MEASURE, 1));
            ASSERT_EQ(2, trader.ItemCount(IDC_POSITION_RANK));
            EXPECT_EQ("混合显示", trader.Item(IDC_POSITION_RANK, 0));
            EXPECT_EQ("分类显示", trader.Item(IDC_POSITION_RANK, 1));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, KeepsUntouchedValuesAsTheyAre)
{
    EXPECT_EQ(IDOK, Run([](Trader& trader) { trader.Click(IDOK); }));
    for (const Box& box : kBoxes)
        EXPECT_EQ(std::to_string(GetInt(m_record, box.field)), Stored(box.field.name));
    for (const Box& box : kOwnedBoxes)
        EXPECT_EQ(std::to_string(GetInt(m_record, box.field)), Stored(box.field.name));
    for (const Field& number : kNumbers)
        EXPECT_EQ(std::to_string(GetInt(m_record, number.field)), Stored(number.field.name));
    for (const Field& combo : kCombos)
        EXPECT_EQ(std::to_string(GetInt(m_record, combo.field)), Stored(combo.field.name));
}

TEST_F(OptionsConventional, StoresWhatTheTraderSet)
{
    Run(
        [](Trader& trader)
        {
            trader.Type(IDC_OPTIONS_VOLUME_LIMIT, "a-45.6");
            trader.Pick(IDC_FAST_CLOSE, 4);
            trader.Type(IDC_FAST_CLOSE_TICK, "-15");
            trader.Pick(IDC_INSERT_PRICE, 3);
            trader.Pick(IDC_PRICE_OUT_MEASURE, 0);
            trader.Type(IDC_PRICE_OUT, "77");
            trader.Type(IDC_EXPIRE_DAYS, "21");
            trader.Type(IDC_COMBINATION_DAYS, "31");
            trader.Pick(IDC_SUPER_BUY_1, 1);
            trader.Pick(IDC_SUPER_BUY_2, 2);
            trader.Pick(IDC_SUPER_SELL_1, 3);
            trader.Pick(IDC_SUPER_SELL_2, 6);
            trader.Pick(IDC_POSITION_RANK, 1);
            for (const Box& box : kBoxes)
                trader.Click(box.id);
            for (const Box& box : kOwnedBoxes)
                trader.Click(box.id);
            trader.Click(IDOK);
        });
    EXPECT_EQ("456", Stored("uOVolumeLimit"));
    EXPECT_EQ("4", Stored("cOFastClosePrice"));
    EXPECT_EQ("-15", Stored("iOfcPriceTick"));
    EXPECT_EQ("3", Stored("cOInsertPrice"));
    EXPECT_EQ("0", Stored("iXZDLimit"));
    EXPECT_EQ("77", Stored("iPriceOut"));
    EXPECT_EQ("21", Stored("iExpire"));
    EXPECT_EQ("31", Stored("uOCPositionPrompt"));
    EXPECT_EQ("1", Stored("cOSuperBuy1"));
    EXPECT_EQ("2", Stored("cOSuperBuy2"));
    EXPECT_EQ("3", Stored("cOSuperSell1"));
    EXPECT_EQ("6", Stored("cOSuperSell2"));
    EXPECT_EQ("1", Stored("uPosExecPriceRank"));
    for (const Box& box : kBoxes)
        EXPECT_EQ(std::to_string(!GetInt(m_record, box.field)), Stored(box.field.name));
    for (const Box& box : kOwnedBoxes)
        EXPECT_EQ(std::to_string(!GetInt(m_record, box.field)), Stored(box.field.name));
}

TEST_F(OptionsConventional, AnyFlagIsStoredAsOne)
{
    m_record.bOQueryMaxOpen = 7;
    m_record.bPositionStatistics = -1;
    m_record.iShowZeroPosition = 2;
    m_record.uPosExecPriceRank = 9;
    Run([](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("1", Stored("bOQueryMaxOpen"));
    EXPECT_EQ("1", Stored("bPositionStatistics"));
    EXPECT_EQ("1", Stored("iShowZeroPosition"));
    EXPECT_EQ("1", Stored("uPosExecPriceRank"));
}

TEST_F(OptionsConventional, ForeignValuesSelectNothing)
{
    m_record.cOInsertPrice = 5;
    m_record.cOFastClosePrice = 200;
    m_record.cOSuperBuy1 = 10;
    m_record.cOSuperSell2 = 255;
    m_record.iXZDLimit = 2;
    Run(
        [](Trader& trader)
        {
            for (int combo : {IDC_INSERT_PRICE, IDC_FAST_CLOSE, IDC_SUPER_BUY_1, IDC_SUPER_SELL_2,
                              IDC_PRICE_OUT_MEASURE})
                EXPECT_EQ(-1, trader.Picked(combo));
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("cOInsertPrice"));
    EXPECT_EQ("0", Stored("cOFastClosePrice"));
    EXPECT_EQ("255", Stored("cOSuperBuy1"));
    EXPECT_EQ("255", Stored("cOSuperSell2"));
    EXPECT_EQ("0", Stored("iXZDLimit"));
}

TEST_F(OptionsConventional, ALargeLimitIsShownSignedAndSurvives)
{
    m_record.uOVolumeLimit = 4000000000u;
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("-294967296", trader.Text(IDC_OPTIONS_VOLUME_LIMIT));
            trader.Click(IDOK);
        });
    EXPECT_EQ("4000000000", Stored("uOVolumeLimit"));
}

TEST_F(OptionsConventional, ItsOwnSwitchesGoToTheFileOnly)
{
    for (int pass = 0; pass < 2; ++pass)
    {
        RemoveTree("Cfg");
        Run(
            [](Trader& trader)
            {
                // The record stays as the client handed it in, so the second window shows it again.
                EXPECT_TRUE(trader.IsChecked(IDC_PRICE_OUT_PROMPT));
                EXPECT_FALSE(trader.IsChecked(IDC_SWAP_PRICE_AMOUNT));
                EXPECT_TRUE(trader.IsChecked(IDC_SHOW_ZERO_POSITION));
                trader.Click(IDC_PRICE_OUT_PROMPT);
                trader.Click(IDC_SWAP_PRICE_AMOUNT);
                trader.Click(IDC_SHOW_ZERO_POSITION);
                trader.Click(IDOK);
            });
        // In their order and before all other keys.
        EXPECT_EQ(0u, ReadBytes(kUserFile).find(
                          "[TradeConfig]\r\niPriceOutPrompt=0\r\niOptionPriceAmountLayout=1\r\n"
                          "iShowZeroPosition=0\r\nbInsertNoConfirm="));
    }
}

TEST_F(OptionsConventional, ANeverOpenedPageWritesNothing)
{
    m_record.iXZDLimit = 9;
    RunSettingsWindow(m_record, ParamPageIndicator, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("9", Stored("iXZDLimit"));
    EXPECT_EQ("<absent>", Stored("iPriceOutPrompt"));
}

TEST_F(OptionsConventional, CancelLeavesTheFile)
{
    const std::string before = "[TradeConfig]\r\niPriceOutPrompt=1\r\nuOVolumeLimit=9\r\n; note";
    WriteBytes(kUserFile, before);
    EXPECT_EQ(IDCANCEL, Run(
                            [](Trader& trader)
                            {
                                trader.Click(IDC_PRICE_OUT_PROMPT);
                                trader.Click(IDC_SHOW_ZERO_POSITION);
                                trader.Type(IDC_OPTIONS_VOLUME_LIMIT, "77");
                                trader.Click(IDC_RESTORE_DEFAULTS);
                                trader.Click(IDCANCEL);
                            }));
    EXPECT_EQ(before, ReadBytes(kUserFile));
}

TEST_F(OptionsConventional, ReturnAndEscapeCloseNothing)
{
    Run(
        [](Trader& trader)
        {
            trader.Type(IDC_OPTIONS_VOLUME_LIMIT, "9");
            trader.Key(VK_RETURN);
            trader.Key(VK_ESCAPE);
            EXPECT_TRUE(trader.IsOpen());
            EXPECT_TRUE(trader.IsShown(IDC_OPTIONS_VOLUME_LIMIT));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, TheSpinsKeepTheirRanges)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            trader.SpinDown(IDC_FAST_CLOSE_TICK);
            EXPECT_EQ("-4", trader.Text(IDC_FAST_CLOSE_TICK));
            for (int days : {IDC_EXPIRE_DAYS, IDC_COMBINATION_DAYS, IDC_PRICE_OUT})
            {
                trader.SetText(days, "2");
                trader.SpinDown(days);
                trader.SpinDown(days);
                EXPECT_EQ("1", trader.Text(days));
                trader.SpinUp(days);
                EXPECT_EQ("2", trader.Text(days));
            }
            Page(trader).ToEnd();
            trader.SpinUp(IDC_HIGHER_RATIO);
            EXPECT_EQ("3.25", trader.Text(IDC_HIGHER_RATIO));
            trader.SetText(IDC_HIGHER_RATIO, "1.5");
            trader.SpinDown(IDC_HIGHER_RATIO);
            EXPECT_EQ("1.01", trader.Text(IDC_HIGHER_RATIO));
            trader.SpinDown(IDC_LOWER_RATIO);
            EXPECT_EQ("0.65", trader.Text(IDC_LOWER_RATIO));
            trader.SetText(IDC_LOWER_RATIO, "0.95");
            trader.SpinUp(IDC_LOWER_RATIO);
            EXPECT_EQ("0.99", trader.Text(IDC_LOWER_RATIO));
            trader.Type(IDC_LOWER_RATIO, "a0.5b");
            EXPECT_EQ("0.5", trader.Text(IDC_LOWER_RATIO));
            trader.Click(IDCANCEL);
        });
}

// Restore

TEST_F(OptionsConventional, RestoresBuiltInDefaults)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            for (const Box& box : kBoxes)
                EXPECT_EQ(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            for (const Box& box : kOwnedBoxes)
                EXPECT_EQ(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            for (const Box& box : kNotices)
                EXPECT_EQ(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            for (const Field& number : kNumbers)
                EXPECT_EQ(number.restored, trader.Text(number.id)) << number.field.name;
            for (const Field& combo : kCombos)
                EXPECT_EQ(combo.restored, std::to_string(trader.Picked(combo.id)))
                    << combo.field.name;
            EXPECT_EQ("8.00", trader.Text(IDC_HIGHER_RATIO));
            EXPECT_EQ("0.20", trader.Text(IDC_LOWER_RATIO));
            trader.Click(IDOK);
        });
    for (const Box& box : kBoxes)
        EXPECT_EQ(std::to_string(box.isDefaultOn), Stored(box.field.name));
    for (const Box& box : kOwnedBoxes)
        EXPECT_EQ(std::to_string(box.isDefaultOn), Stored(box.field.name));
    for (const Box& box : kNotices)
        EXPECT_EQ(std::to_string(box.isDefaultOn), Stored(box.field.name));
    for (const Field& number : kNumbers)
        EXPECT_EQ(number.restored, Stored(number.field.name));
    for (const Field& combo : kCombos)
        EXPECT_EQ(combo.restored, Stored(combo.field.name));
    EXPECT_EQ("8.00", Stored("fMaxRatioHigherLimitPrice"));
    EXPECT_EQ("0.20", Stored("fMinRatioLowerLimitPrice"));
}

TEST_F(OptionsConventional, RestoresPackagedValues)
{
    OfferReminder();
    std::string packaged = "[TradeConfig]\r\n";
    const auto add = [&packaged](const char* key, const std::string& text)
    {
        packaged += std::string(key) + "=" + text + "\r\n";
    };
    for (const Box& box : kBoxes)
        add(box.field.name, box.isDefaultOn ? "0" : "1");
    for (const Box& box : kOwnedBoxes)
        add(box.field.name, box.isDefaultOn ? "0" : "1");
    for (const Box& box : kNotices)
        add(box.field.name, box.isDefaultOn ? "0" : "1");
    int value = 60;
    for (const Field& number : kNumbers)
        add(number.field.name, std::to_string(value++));
    add("cOInsertPrice", "7");
    add("cOFastClosePrice", "3");
    add("cOSuperBuy1", "4");
    add("cOSuperBuy2", "5");
    add("cOSuperSell1", "6");
    add("cOSuperSell2", "7");
    add("iXZDLimit", "1");
    add("uPosExecPriceRank", "0");
    add("fMaxRatioHigherLimitPrice", "3.5");
    add("fMinRatioLowerLimitPrice", "0.4");
    WriteBytes(kPackagedFile, packaged);
    m_record = {};
    m_record.uPosExecPriceRank = 1;
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            for (const Box& box : kBoxes)
                EXPECT_NE(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            for (const Box& box : kOwnedBoxes)
                EXPECT_NE(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            for (const Box& box : kNotices)
                EXPECT_NE(box.isDefaultOn, trader.IsChecked(box.id)) << box.label;
            int value = 60;
            for (const Field& number : kNumbers)
                EXPECT_EQ(std::to_string(value++), trader.Text(number.id)) << number.field.name;
            const int rows[] = {5, 3, 4, 5, 6, 7, 1, 0};
            for (size_t i = 0; i < std::size(rows); ++i)
                EXPECT_EQ(rows[i], trader.Picked(kCombos[i].id)) << kCombos[i].field.name;
            EXPECT_EQ("3.5", trader.Text(IDC_HIGHER_RATIO));
            EXPECT_EQ("0.4", trader.Text(IDC_LOWER_RATIO));
            trader.Click(IDOK);
        });
    EXPECT_EQ("7", Stored("cOInsertPrice"));
    EXPECT_EQ("3.50", Stored("fMaxRatioHigherLimitPrice"));
    EXPECT_EQ("0.40", Stored("fMinRatioLowerLimitPrice"));
    EXPECT_EQ("62", Stored("iPriceOut"));
}

TEST_F(OptionsConventional, RestoresOddPackagedTextsAsTheyAre)
{
    OfferReminder();
    WriteBytes(
        kPackagedFile,
        "[TradeConfig]\r\nuOVolumeLimit=1 000 x\r\niOfcPriceTick=+2.5\r\niExpire=七\r\n"
        "uOCPositionPrompt=-4\r\niPriceOut=12abc\r\ncOInsertPrice=5\r\ncOFastClosePrice=9\r\n"
        "cOSuperBuy1=-1\r\niXZDLimit=7\r\nuPosExecPriceRank=5\r\nbORestoreOpenFlag=-1\r\n"
        "fMaxRatioHigherLimitPrice=01.5x\r\nfMinRatioLowerLimitPrice=.5\r\n");
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("1 000 x", trader.Text(IDC_OPTIONS_VOLUME_LIMIT));
            EXPECT_EQ("+2.5", trader.Text(IDC_FAST_CLOSE_TICK));
            EXPECT_EQ("七", trader.Text(IDC_EXPIRE_DAYS));
            EXPECT_EQ("-4", trader.Text(IDC_COMBINATION_DAYS));
            EXPECT_EQ("12", trader.Text(IDC_PRICE_OUT)) << "a number, not a text";
            EXPECT_EQ(5, trader.Picked(IDC_INSERT_PRICE)) << "no item for 5: left alone";
            EXPECT_EQ(-1, trader.Picked(IDC_FAST_CLOSE));
            EXPECT_EQ(-1, trader.Picked(IDC_SUPER_BUY_1));
            EXPECT_EQ(-1, trader.Picked(IDC_PRICE_OUT_MEASURE));
            EXPECT_EQ(1, trader.Picked(IDC_POSITION_RANK));
            EXPECT_TRUE(trader.IsChecked(IDC_RESTORE_OPEN));
            EXPECT_EQ("01.5x", trader.Text(IDC_HIGHER_RATIO));
            EXPECT_EQ(".5", trader.Text(IDC_LOWER_RATIO));
            EXPECT_EQ(kNoDecimal, LeavingSays(trader));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, RestoresTheThresholdWithinTheLimitsOfTheOldMeasure)
{
    WriteBytes(kOther, "[TradeConfig]\r\nxzdMin=20\r\nxzdMax=90\r\nyjrMin=5\r\nyjrMax=8\r\n");
    m_record.iPriceOut = 6;
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("8", trader.Text(IDC_PRICE_OUT)) << "10 brought into the premium's limits";
            EXPECT_EQ(0, trader.Picked(IDC_PRICE_OUT_MEASURE));
            EXPECT_EQ("虚值度的下限是20,上限是 90 之内。", LeavingSays(trader));
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("20", trader.Text(IDC_PRICE_OUT));
            ExpectLeaves(trader);
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ARestoreDoesNotLookAtTheEnablingAgain)
{
    WriteBytes(kOther, "[TradeConfig]\r\nyjrMin=5\r\nyjrMax=5\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_FALSE(trader.IsEnabled(IDC_PRICE_OUT));
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ(0, trader.Picked(IDC_PRICE_OUT_MEASURE));
            EXPECT_EQ("5", trader.Text(IDC_PRICE_OUT));
            EXPECT_FALSE(trader.IsEnabled(IDC_PRICE_OUT));
            EXPECT_FALSE(trader.IsEnabled(IDC_POSITION_RANK));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ARestoreTouchesNeitherRecordNorOtherPages)
{
    m_record.iOacPriceTick = 9;
    Run(
        [](Trader& trader)
        {
            trader.SelectTab(kChaseTab);
            trader.Click(IDC_RESTORE_DEFAULTS);
            trader.SelectTab(0);
            EXPECT_EQ("123", trader.Text(IDC_OPTIONS_VOLUME_LIMIT));
            trader.Click(IDOK);
        });
    EXPECT_EQ("123", Stored("uOVolumeLimit"));
    EXPECT_EQ("0", Stored("iOacPriceTick"));
}

// The threshold

TEST_F(OptionsConventional, AFixedThresholdIsShownAndStored)
{
    WriteBytes(kOther, "[TradeConfig]\r\nyjrMin=5\r\nyjrMax=5\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("5", trader.Text(IDC_PRICE_OUT));
            EXPECT_FALSE(trader.IsEnabled(IDC_PRICE_OUT));
            EXPECT_FALSE(trader.IsEnabled(IDC_POSITION_RANK));
            trader.Click(IDOK);
        });
    EXPECT_EQ("5", Stored("iPriceOut"));
}

TEST_F(OptionsConventional, AnotherMeasureHasOtherLimits)
{
    WriteBytes(kOther, "[TradeConfig]\r\nyjrMin=5\r\nyjrMax=5\r\nxzdMin=10\r\nxzdMax=15\r\n");
    m_record.iXZDLimit = 0;
    m_record.iPriceOut = 11;
    Run(
        [](Trader& trader)
        {
            EXPECT_TRUE(trader.IsEnabled(IDC_PRICE_OUT));
            EXPECT_TRUE(trader.IsEnabled(IDC_POSITION_RANK));
            trader.Pick(IDC_PRICE_OUT_MEASURE, 1);
            EXPECT_FALSE(trader.IsEnabled(IDC_PRICE_OUT));
            EXPECT_FALSE(trader.IsEnabled(IDC_POSITION_RANK));
            EXPECT_EQ("5", trader.Text(IDC_PRICE_OUT));
            for (const char* text : {"6", "", "-70", "abc"})
            {
                trader.SetText(IDC_PRICE_OUT, text);
                ExpectLeaves(trader);
            }
            trader.Pick(IDC_PRICE_OUT_MEASURE, 0);
            EXPECT_TRUE(trader.IsEnabled(IDC_PRICE_OUT));
            EXPECT_TRUE(trader.IsEnabled(IDC_POSITION_RANK));
            EXPECT_EQ("12", trader.Text(IDC_PRICE_OUT)) << "25 / 2";
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, AThresholdThatFitsStaysAsItIs)
{
    WriteBytes(kOther, "[TradeConfig]\r\nyjrMin=5\r\nyjrMax=50\r\n");
    m_record.iXZDLimit = 0;
    Run(
        [](Trader& trader)
        {
            trader.SetText(IDC_PRICE_OUT, "50.7");
            trader.Pick(IDC_PRICE_OUT_MEASURE, 1);
            EXPECT_EQ("50.7", trader.Text(IDC_PRICE_OUT));
            trader.SetText(IDC_PRICE_OUT, "51");
            trader.Pick(IDC_PRICE_OUT_MEASURE, 0);
            EXPECT_EQ("51", trader.Text(IDC_PRICE_OUT));
            trader.Pick(IDC_PRICE_OUT_MEASURE, 1);
            EXPECT_EQ("27", trader.Text(IDC_PRICE_OUT));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ABadThresholdKeepsTabEntryAndWindow)
{
    Run(
        [](Trader& trader)
        {
            const std::string message = "溢价率的下限是0,上限是 100 之内。";
            trader.SetText(IDC_PRICE_OUT, "101");
            EXPECT_EQ(message, LeavingSays(trader));
            // The cursor stands in the field with its text selected: typing replaces it.
            trader.Key('3');
            EXPECT_EQ("3", trader.Text(IDC_PRICE_OUT));
            ExpectLeaves(trader);
            trader.SetText(IDC_PRICE_OUT, "-1");
            trader.SelectRow(2);
            EXPECT_EQ(message, trader.AnswerMessage());
            EXPECT_TRUE(trader.IsShown(IDC_OPTIONS_VOLUME_LIMIT));
            trader.Click(IDOK);
            EXPECT_EQ(message, trader.AnswerMessage());
            EXPECT_TRUE(trader.IsOpen());
            trader.Pick(IDC_PRICE_OUT_MEASURE, 0);
            trader.SetText(IDC_PRICE_OUT, "101");
            EXPECT_EQ("虚值度的下限是0,上限是 100 之内。", LeavingSays(trader));
            trader.Click(IDCANCEL);
        });
    EXPECT_EQ("<absent>", Stored("iPriceOut"));
}

TEST_F(OptionsConventional, AFractionOfTheThresholdDoesNotCount)
{
    Run(
        [](Trader& trader)
        {
            for (const char* text : {"0", "100", "-0.9", "", "abc", "100.9"})
            {
                trader.SetText(IDC_PRICE_OUT, text);
                ExpectLeaves(trader);
            }
            trader.Click(IDOK);
        });
    EXPECT_EQ("100", Stored("iPriceOut"));
}

TEST_F(OptionsConventional, WithoutAMeasureTheThresholdIsNotChecked)
{
    m_record.iXZDLimit = 5;
    m_record.iPriceOut = 4000;
    Run([](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("4000", Stored("iPriceOut"));
}

// The warning of costs

TEST_F(OptionsConventional, TheClientMayHideOrLockTheCostPrompt)
{
    struct Case
    {
        const char* settings;
        bool isShown;
        bool isEnabled;
    };
    const Case cases[] = {{"", true, true},
                          {"OCostPromptAvailability=0", false, true},
                          {"OCostPromptAvailability=2", false, true},
                          {"CostPromptShow=0", true, false},
                          {"CostPromptShow=2", true, true},
                          {"OCostPromptAvailability=1\r\nCostPromptShow=1", true, true}};
    for (const Case& one : cases)
    {
        WriteBytes(kTradeParam, std::string("[Other]\r\n") + one.settings + "\r\n");
        Run(
            [&one](Trader& trader)
            {
                const HWND box = trader.Beside(IDC_OPTIONS_VOLUME_LIMIT, IDC_COST_PROMPT);
                EXPECT_EQ(one.isShown, IsWindowVisible(box) != 0) << one.settings;
                EXPECT_EQ(one.isEnabled, IsWindowEnabled(box) != 0) << one.settings;
                trader.Click(IDOK);
            });
        EXPECT_EQ("1", Stored("bOCostPrompt")) << one.settings;
    }
}

// The reminder

TEST_F(OptionsConventional, ShowsAndStoresTheReminder)
{
    OfferReminder();
    Run(
        [this](Trader& trader)
        {
            for (const Box& box : kNotices)
                EXPECT_EQ(GetInt(m_record, box.field), trader.IsChecked(box.id)) << box.label;
            EXPECT_EQ("2.25", trader.Text(IDC_HIGHER_RATIO));
            EXPECT_EQ("0.75", trader.Text(IDC_LOWER_RATIO));
            Page(trader).ToEnd();
            trader.Type(IDC_HIGHER_RATIO, "3.5");
            trader.Type(IDC_LOWER_RATIO, "0.4");
            trader.Click(IDC_LOWER_NOTICE);
            trader.Click(IDC_FUSING_NOTICE);
            trader.AnswerMessage();
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("bHigherLimitPriceNotice"));
    EXPECT_EQ("0", Stored("bLowerLimitPriceNotice"));
    EXPECT_EQ("1", Stored("bOuterFusingLimitPriceNotice"));
    EXPECT_EQ("3.50", Stored("fMaxRatioHigherLimitPrice"));
    EXPECT_EQ("0.40", Stored("fMinRatioLowerLimitPrice"));
}

TEST_F(OptionsConventional, WithoutTheReminderItsKeysAndTextsAreLeftAlone)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nfMaxRatioHigherLimitPrice=5.00\r\n");
    WriteBytes(kPackagedFile, "[TradeConfig]\r\nfMaxRatioHigherLimitPrice=odd\r\n");
    m_record.fMaxRatioHigherLimitPrice = 0.5f;
    Run(
        [](Trader& trader)
        {
            for (int id = IDC_REMINDER_LABEL; id <= IDC_FUSING_NOTICE; ++id)
                EXPECT_FALSE(IsWindowVisible(trader.Beside(IDC_OPTIONS_VOLUME_LIMIT, id))) << id;
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("", trader.Text(trader.Beside(IDC_OPTIONS_VOLUME_LIMIT, IDC_HIGHER_RATIO)));
            ExpectLeaves(trader);
            trader.Click(IDOK);
        });
    EXPECT_EQ("5.00", Stored("fMaxRatioHigherLimitPrice"));
    EXPECT_EQ("<absent>", Stored("bHigherLimitPriceNotice"));
}

TEST_F(OptionsConventional, TurningANoticeOnExplainsIt)
{
    OfferReminder();
    m_record.bLowerLimitPriceNotice = 0;
    Run(
        [](Trader& trader)
        {
            Page(trader).ToEnd();
            for (const Box& notice : kNotices)
            {
                trader.Click(notice.id);
                EXPECT_EQ("委托价格超限提醒功能，只应用于澜汀期权系统的单合约限价委托下单，\n"
                          "对双合约及多合约不起作用。\n对市价无效。",
                          trader.AnswerMessage());
                EXPECT_TRUE(trader.IsChecked(notice.id));
                trader.Click(notice.id);
                EXPECT_FALSE(FindWindowA("#32770", "提示"));
                EXPECT_FALSE(trader.IsChecked(notice.id));
            }
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ChecksTheRatios)
{
    OfferReminder();
    struct Case
    {
        int edit;
        const char* text;
        const char* message; // null: it passes
    };
    const Case cases[] = {
        {IDC_HIGHER_RATIO, "1.5", nullptr},
        {IDC_HIGHER_RATIO, "1.01", nullptr},
        {IDC_HIGHER_RATIO, "9999999", nullptr},
        {IDC_HIGHER_RATIO, "", kNoDecimal},
        {IDC_HIGHER_RATIO, "1.555", kNoDecimal},
        {IDC_HIGHER_RATIO, "01.5", kNoDecimal},
        {IDC_HIGHER_RATIO, "1.", kNoDecimal},
        {IDC_HIGHER_RATIO, "1", kHigherOutOfRange},
        {IDC_HIGHER_RATIO, "1.00", kHigherOutOfRange},
        {IDC_HIGHER_RATIO, "-2", kHigherOutOfRange},
        {IDC_HIGHER_RATIO, "2.25", nullptr},
        {IDC_LOWER_RATIO, "0.5", nullptr},
        {IDC_LOWER_RATIO, "0.01", nullptr},
        {IDC_LOWER_RATIO, "0.555", kNoDecimal},
        {IDC_LOWER_RATIO, ".5", kNoDecimal},
        {IDC_LOWER_RATIO, "1", kLowerOutOfRange},
        {IDC_LOWER_RATIO, "0", kLowerOutOfRange},
        {IDC_LOWER_RATIO, "-0.5", kLowerOutOfRange},
    };
    Run(
        [&cases](Trader& trader)
        {
            for (const Case& one : cases)
            {
                trader.SetText(one.edit, one.text);
                if (!one.message)
                {
                    ExpectLeaves(trader);
                    continue;
                }
                EXPECT_EQ(one.message, LeavingSays(trader)) << one.text;
                EXPECT_EQ(trader.Control(one.edit), FocusOf(trader));
            }
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ChecksOneAfterTheOther)
{
    OfferReminder();
    m_record.bLowerLimitPriceNotice = 0; // its ratio is checked all the same
    Run(
        [](Trader& trader)
        {
            trader.SetText(IDC_LOWER_RATIO, "x");
            trader.SetText(IDC_HIGHER_RATIO, "1");
            trader.SetText(IDC_PRICE_OUT, "500");
            EXPECT_EQ("溢价率的下限是0,上限是 100 之内。", LeavingSays(trader));
            trader.SetText(IDC_PRICE_OUT, "50");
            EXPECT_EQ(kHigherOutOfRange, LeavingSays(trader));
            trader.SetText(IDC_HIGHER_RATIO, "2");
            EXPECT_EQ(kNoDecimal, LeavingSays(trader));
            trader.SetText(IDC_LOWER_RATIO, "0.5");
            trader.Click(IDOK);
        });
    EXPECT_EQ("50", Stored("iPriceOut"));
}

TEST_F(OptionsConventional, ALongRatioIsCut)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            // What stands behind 127 digits does not count.
            trader.SetText(IDC_HIGHER_RATIO, std::string(127, '9') + ".999");
            ExpectLeaves(trader);
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, AWrongFieldIsScrolledIntoView)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            trader.SetText(IDC_LOWER_RATIO, "7");
            EXPECT_EQ(kLowerOutOfRange, LeavingSays(trader));
            EXPECT_GT(page.Pos(), 0);
            trader.Type(IDC_LOWER_RATIO, "0.7");
            EXPECT_EQ("0.7", trader.Text(IDC_LOWER_RATIO));
            trader.SetText(IDC_PRICE_OUT, "500");
            page.ToEnd();
            const int end = page.Pos();
            LeavingSays(trader);
            EXPECT_EQ(end, page.Pos()) << "in view already";
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, TheTabKeyWalksOnWithinSight)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            RECT window = {};
            GetWindowRect(page.Window(), &window);
            const auto isSeen = [&window](HWND control)
            {
                RECT place = {};
                GetWindowRect(control, &place);
                return place.top >= window.top && place.bottom <= window.bottom;
            };
            trader.Click(IDC_POSITION_STATISTICS);
            bool reachedLast = false;
            for (int i = 0; i < 8 && !reachedLast; ++i)
            {
                trader.Key(VK_TAB);
                EXPECT_TRUE(isSeen(FocusOf(trader)));
                reachedLast = FocusOf(trader) == trader.Control(IDC_FUSING_NOTICE);
            }
            EXPECT_TRUE(reachedLast);
            EXPECT_GT(page.Pos(), 0);
            trader.Click(IDCANCEL);
        });
}

// Place and scroll bar

TEST_F(OptionsConventional, StandsBelowTheStripWhenSelectedAndInAMarginWhenLaidOut)
{
    RunSettingsWindow(m_record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          trader.SelectRow(1); // makes the host, then gives it its size
                          RECT host = {};
                          GetClientRect(GetParent(Page(trader).Window()), &host);
                          const RECT laidOut = Page(trader).Place();
                          EXPECT_EQ(16, laidOut.left);
                          EXPECT_EQ(58, laidOut.top);
                          EXPECT_EQ(host.right - 16, laidOut.right);
                          EXPECT_EQ(host.bottom, laidOut.bottom);
                          trader.SelectTab(kChaseTab);
                          trader.SelectTab(0);
                          const RECT selected = Page(trader).Place();
                          EXPECT_EQ(0, selected.left);
                          EXPECT_EQ(42, selected.top);
                          EXPECT_EQ(host.right, selected.right);
                          EXPECT_EQ(host.bottom, selected.bottom);
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OptionsConventional, ScrollsOnlyWithTheReminder)
{
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            EXPECT_FALSE(page.HasBar());
            trader.Click(IDC_RESTORE_OPEN);
            page.Wheel(-WHEEL_DELTA);
            page.ToEnd();
            EXPECT_EQ(0, page.Pos());
            RECT last = {};
            GetWindowRect(trader.Control(IDC_POSITION_RANK), &last);
            RECT window = {};
            GetWindowRect(page.Window(), &window);
            EXPECT_LT(last.bottom, window.bottom) << "all of it is seen";
            trader.Click(IDCANCEL);
        });
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            EXPECT_TRUE(Page(trader).HasBar());
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ScrollsByArrowsPagesAndWheel)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            page.ClickBar(page.Height() - 6);
            EXPECT_EQ(1, page.Pos());
            page.ClickBar(page.Height() - 6);
            EXPECT_EQ(2, page.Pos());
            page.ClickBar(6);
            EXPECT_EQ(1, page.Pos());

            page.ToEnd();
            const int end = page.Pos();
            RECT last = {};
            GetWindowRect(trader.Control(IDC_FUSING_NOTICE), &last);
            RECT window = {};
            GetWindowRect(page.Window(), &window);
            EXPECT_LT(last.bottom, window.bottom) << "the last control is reached";
            page.ClickBar(page.Height() - 6);
            EXPECT_EQ(end, page.Pos()) << "no further";
            page.ToStart();
            EXPECT_EQ(0, page.Pos());
            page.ClickBar(6);
            EXPECT_EQ(0, page.Pos());

            for (int focused : {IDC_RESTORE_OPEN, IDC_OPTIONS_VOLUME_LIMIT})
            {
                trader.Click(focused);
                page.Wheel(-WHEEL_DELTA);
                EXPECT_EQ(end, page.Pos()) << focused;
                page.Wheel(WHEEL_DELTA);
                EXPECT_EQ(0, page.Pos()) << focused;
            }
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, AHeldArrowRepeats)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            page.PointAtBar(page.Height() - 6);
            page.Mouse(MOUSEEVENTF_LEFTDOWN);
            EXPECT_EQ(1, page.Pos());
            EXPECT_TRUE(WaitUntil([&page] { return page.Pos() >= 4; }));
            page.Mouse(MOUSEEVENTF_LEFTUP);
            const int pos = page.Pos();
            Sleep(200);
            EXPECT_EQ(pos, page.Pos());
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, TheThumbDragsTheContents)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            page.ToEnd();
            const int end = page.Pos();
            page.ToStart();
            page.PointAtBar(60);
            page.Mouse(MOUSEEVENTF_LEFTDOWN);
            page.PointAtBar(90);
            EXPECT_GT(page.Pos(), 0);
            EXPECT_LT(page.Pos(), end);
            page.PointAtBar(page.Height());
            EXPECT_EQ(end, page.Pos());
            page.PointAtBar(60);
            EXPECT_EQ(0, page.Pos());
            page.PointAtBar(90);
            const int pos = page.Pos();
            page.Mouse(MOUSEEVENTF_LEFTUP);
            EXPECT_EQ(pos, page.Pos());
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, ScrollingLeavesNoTraces)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            const Screen before = page.Picture();
            // Somewhere in the middle, at the end, and back, each as if painted for the first time.
            page.PointAtBar(60);
            page.Mouse(MOUSEEVENTF_LEFTDOWN);
            for (int along : {70, 95, 80, 110, 85})
                page.PointAtBar(along);
            page.Mouse(MOUSEEVENTF_LEFTUP);
            ASSERT_GT(page.Pos(), 0);
            const Screen dragged = page.Picture();
            page.PaintAnew();
            EXPECT_EQ(0, Differences(dragged, page.Picture()));
            EXPECT_GT(Differences(dragged, before), 1000);

            page.ToEnd();
            const Screen end = page.Picture();
            page.PaintAnew();
            EXPECT_EQ(0, Differences(end, page.Picture()));

            for (int i = 0; i < 5; ++i)
                page.ClickBar(6);
            page.ToStart();
            EXPECT_EQ(0, page.Pos());
            EXPECT_EQ(0, Differences(before, page.Picture()));
            trader.Click(IDCANCEL);
        });
}

TEST_F(OptionsConventional, TheBarHasThePagesColours)
{
    OfferReminder();
    Run(
        [](Trader& trader)
        {
            const Page page(trader);
            const Screen screen = page.Picture();
            const auto color = [&screen](int fromRight, int y)
            {
                const DWORD pixel = screen.pixels[y * screen.width + screen.width - fromRight];
                return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
            };
            EXPECT_EQ(RGB(204, 214, 224), color(12, 0)) << "frame";
            EXPECT_EQ(RGB(255, 255, 255), color(11, 1)) << "arrow";
            EXPECT_EQ(RGB(204, 214, 224), color(6, 6)) << "its triangle";
            EXPECT_EQ(RGB(210, 214, 226), color(6, 100)) << "thumb";
            EXPECT_EQ(RGB(240, 245, 249), color(6, screen.height - 20)) << "page area";
            trader.Click(IDCANCEL);
        });
}
