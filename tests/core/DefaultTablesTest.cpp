#include "core/DefaultTables.h"

#include "tests/core/TempWorkingFolder.h"

#include <cstring>

namespace
{
const char kUserFile[] = ".\\cfg\\Trade\\StopProfitLoss.ini";
const char kPackagedFile[] = ".\\Sys\\Cfg\\Trade\\StopProfitLoss.ini";

struct Told
{
    int found = -1;
    int defaultVolume = -1;
    int tickVolume = -1;
    double stopProfit = -1;
    double maxFallback = -1;
    double stopLoss = -1;
    double floatRange = -1;
    int dailyMax = -1;
};

Told TellFuture(const char* exchange, const char* contract)
{
    Told t;
    t.found = GetFutureDefault(exchange, contract, &t.defaultVolume, &t.tickVolume, &t.stopProfit,
                               &t.maxFallback, &t.stopLoss, &t.floatRange, &t.dailyMax);
    return t;
}

Told TellStock(int id)
{
    Told t;
    t.found = GetStockDefault(id, &t.defaultVolume, &t.tickVolume, &t.stopProfit, &t.maxFallback,
                              &t.stopLoss, &t.floatRange, &t.dailyMax);
    return t;
}

Told TellOptions(int id)
{
    Told t;
    t.found = GetOptionsDefault(id, &t.defaultVolume, &t.tickVolume, &t.stopProfit, &t.maxFallback,
                                &t.stopLoss, &t.floatRange, &t.dailyMax);
    return t;
}

void ExpectTold(const Told& expected, const Told& told)
{
    EXPECT_EQ(expected.found, told.found);
    EXPECT_EQ(expected.defaultVolume, told.defaultVolume);
    EXPECT_EQ(expected.tickVolume, told.tickVolume);
    EXPECT_DOUBLE_EQ(expected.stopProfit, told.stopProfit);
    EXPECT_DOUBLE_EQ(expected.maxFallback, told.maxFallback);
    EXPECT_DOUBLE_EQ(expected.stopLoss, told.stopLoss);
    EXPECT_DOUBLE_EQ(expected.floatRange, told.floatRange);
    EXPECT_EQ(expected.dailyMax, told.dailyMax);
}

const Told kNotFound = {0, -1, -1, -1, -1, -1, -1, -1};
const Told kFutureBuiltIn = {1, 1, 1, 20, 4, 20, 4, 10};
const Told kStockBuiltIn = {1, 0, 0, 15, 5, 15, 5, 0};
const Told kOptionsBuiltIn = {1, 1, 1, 20, 10, 20, 10, 0};

struct Code
{
    std::string exchange;
    std::string name;
};

const int kFaulted = 17;

// Ends a process that was made to fault before a debugger is called.
LONG WINAPI ExitOnFault(EXCEPTION_POINTERS* fault)
{
    const bool isAccess = fault->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
    ExitProcess(isAccess ? kFaulted : 1);
}

class DefaultTablesTest : public TempWorkingFolder
{
protected:
    void SetUp() override
    {
        TempWorkingFolder::SetUp();
        LoadContracts({});
        StockDefaults.clear();
        OptionsDefaults.clear();
    }

    static void LoadContracts(const std::vector<Code>& codes)
    {
        std::vector<char> records(codes.size() * 416, 'x');
        for (size_t i = 0; i < codes.size(); ++i)
        {
            memcpy(&records[i * 416], codes[i].exchange.c_str(), codes[i].exchange.size() + 1);
            memcpy(&records[i * 416 + 12], codes[i].name.c_str(), codes[i].name.size() + 1);
        }
        LoadFutureDefaults(reinterpret_cast<const CPtkContract*>(records.data()),
                           static_cast<int>(codes.size()));
    }

    static void WriteUserFile(const std::string& text)
    {
        std::filesystem::create_directories("cfg\\Trade");
        WriteBytes(kUserFile, text);
    }
};
} // namespace

TEST_F(DefaultTablesTest, GettersBeforeAnyLoadFindNothing)
{
    ExpectTold(kNotFound, TellFuture("SHFE", "ag2412"));
    ExpectTold(kNotFound, TellStock(0));
    ExpectTold(kNotFound, TellOptions(0));
}

TEST_F(DefaultTablesTest, BuiltInDefaultsWithoutAFile)
{
    LoadContracts({{"SHFE", "ag"}});
    LoadStockDefaults();
    LoadOptionsDefaults(false);
    ExpectTold(kFutureBuiltIn, TellFuture("SHFE", "ag2412"));
    for (int id : {0, 1, 2})
        ExpectTold(kStockBuiltIn, TellStock(id));
    ExpectTold(kNotFound, TellStock(3));
    ExpectTold(kOptionsBuiltIn, TellOptions(0));
    ExpectTold(kNotFound, TellOptions(1));
    EXPECT_FALSE(IsThere("cfg")) << "loading writes nothing";
}

TEST_F(DefaultTablesTest, FuturesComeFromTheSectionOfTheirExchange)
{
    WriteUserFile("[SHFE]\r\nag=2,3,0,11,12,0,13,14,15\r\nau=bad\r\n"
                  "[DCE]\r\nag=7,8,0,1,2,0,3,4,5\r\n");
    LoadContracts({{"SHFE", "ag"}, {"SHFE", "au"}, {"DCE", "ag"}, {"DCE", "m"}});
    ASSERT_EQ(4u, FutureDefaults.size());
    ExpectTold({1, 2, 3, 11, 12, 13, 14, 15}, TellFuture("SHFE", "ag2412"));
    ExpectTold(kFutureBuiltIn, TellFuture("SHFE", "au2412"));
    ExpectTold({1, 7, 8, 1, 2, 3, 4, 5}, TellFuture("DCE", "ag"));
    ExpectTold(kFutureBuiltIn, TellFuture("DCE", "m"));
}

TEST_F(DefaultTablesTest, LoadingReplacesTheFutures)
{
    LoadContracts({{"SHFE", "ag"}});
    LoadContracts({{"DCE", "m"}});
    ExpectTold(kNotFound, TellFuture("SHFE", "ag"));
    ExpectTold(kFutureBuiltIn, TellFuture("DCE", "m"));
    for (int count : {0, -1, -2147483647 - 1})
    {
        LoadContracts({{"DCE", "m"}});
        const char record[416] = "DCE";
        LoadFutureDefaults(reinterpret_cast<const CPtkContract*>(record), count);
        EXPECT_TRUE(FutureDefaults.empty()) << count;
    }
    LoadFutureDefaults(nullptr, 1);
    EXPECT_TRUE(FutureDefaults.empty());
}

TEST_F(DefaultTablesTest, CodesOfAnyLengthAndKind)
{
    const std::string wide(200, 'A'); // runs over both codes of its record
    LoadContracts({{wide, "ag"}, {"SHFE", wide}, {"", ""}, {"a]b=c", "k=v"}, {"SHFE", "ag"}});
    ASSERT_EQ(5u, FutureDefaults.size());
    EXPECT_STREQ("AAAAAAAAAAA", FutureDefaults[0].exchange);
    EXPECT_STREQ("ag", FutureDefaults[0].name);
    EXPECT_STREQ("AAAAAAAAAAA", FutureDefaults[1].name);
    ExpectTold(kFutureBuiltIn, TellFuture("SHFE", "ag"));
    for (size_t length : {12u, 31u, 32u, 33u, 100000u})
    {
        const std::string code(length, 'A');
        ExpectTold(kNotFound, TellFuture("SHFE", code.c_str()));
        ExpectTold(kNotFound, TellFuture(code.c_str(), "ag"));
    }
    ExpectTold(kNotFound, TellFuture(nullptr, nullptr));
}

TEST_F(DefaultTablesTest, SetFutureWritesItsLineOnly)
{
    WriteUserFile("; kept\r\n[SHFE]\r\nau=4,4,0,1,1,0,1,1,1\r\nag=1,2,0.5,3,4,0.25,5,6,7\r\n");
    LoadContracts({{"SHFE", "au"}, {"SHFE", "ag"}, {"DCE", "m"}});
    int volume = 9;
    double stopLoss = 12.5;
    SetFutureDefault("SHFE", "ag2412", &volume, nullptr, nullptr, nullptr, &stopLoss, nullptr);
    ExpectTold({1, 9, 2, 3, 4, 12.5, 6, 7}, TellFuture("SHFE", "ag"));
    EXPECT_EQ("; kept\r\n[SHFE]\r\nau=4,4,0,1,1,0,1,1,1\r\n"
              "ag=9,2,0.500,3.000000,4.000000,0.250,12.500000,6.000000,7\r\n",
              ReadBytes(kUserFile));
}

TEST_F(DefaultTablesTest, SetFutureMakesFolderAndFile)
{
    LoadContracts({{"SHFE", "ag"}});
    SetFutureDefault("SHFE", "ag", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ("[SHFE]\r\nag=1,1,0.000,20.000000,4.000000,0.000,20.000000,4.000000,10\r\n",
              ReadBytes(kUserFile))
        << "all inputs null: the line is written nevertheless";
}

TEST_F(DefaultTablesTest, SetFutureWithoutARowDoesNothing)
{
    LoadContracts({{"SHFE", "ag"}});
    int volume = 9;
    SetFutureDefault("SHFE", "au", &volume, nullptr, nullptr, nullptr, nullptr, nullptr);
    SetFutureDefault("SHFE", std::string(100000, 'a').c_str(), &volume, nullptr, nullptr, nullptr,
                     nullptr, nullptr);
    SetFutureDefault(nullptr, nullptr, &volume, nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(IsThere("cfg"));
    ExpectTold(kFutureBuiltIn, TellFuture("SHFE", "ag"));
}

TEST_F(DefaultTablesTest, AbsurdNumbersAreCutAndReadAsBad)
{
    LoadContracts({{"SHFE", "ag"}});
    double huge = 1e308;
    SetFutureDefault("SHFE", "ag", nullptr, nullptr, &huge, &huge, &huge, &huge);
    EXPECT_EQ(std::string("[SHFE]\r\nag=").size() + 511 + 2, ReadBytes(kUserFile).size());
    EXPECT_EQ(huge, TellFuture("SHFE", "ag").stopProfit) << "the row itself holds them";
    LoadContracts({{"SHFE", "ag"}});
    ExpectTold(kFutureBuiltIn, TellFuture("SHFE", "ag"));
}

TEST_F(DefaultTablesTest, NullOutputsAreSkipped)
{
    LoadContracts({{"SHFE", "ag"}});
    LoadStockDefaults();
    LoadOptionsDefaults(false);
    EXPECT_EQ(1, GetFutureDefault("SHFE", "ag", nullptr, nullptr, nullptr, nullptr, nullptr,
                                  nullptr, nullptr));
    EXPECT_EQ(1,
              GetOptionsDefault(0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    int volume = -1;
    EXPECT_EQ(1, GetStockDefault(0, &volume, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(0, volume);
}

using DefaultTablesDeathTest = DefaultTablesTest;

TEST_F(DefaultTablesDeathTest, StockGetterFaultsOnANullVolume)
{
    EXPECT_EQ(0, GetStockDefault(0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr))
        << "without a row nothing is written";
    LoadStockDefaults();
    const auto faultOnNull = []
    {
        SetUnhandledExceptionFilter(ExitOnFault);
        GetStockDefault(0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    };
    EXPECT_EXIT(faultOnNull(), testing::ExitedWithCode(kFaulted), "");
}

TEST_F(DefaultTablesTest, StockRowsByTheirKeys)
{
    WriteUserFile("[证券]\r\n股票=100,200,0,0.1,0.2,0,0.3,0.4,9,1\r\n"
                  "基金=300,400,0,0.5,0.6,0,0.7,0.8,9,0\r\n"
                  "个股期权=7,7,0,1,1,0,1,1,1,1\r\n");
    LoadStockDefaults();
    ASSERT_EQ(3u, StockDefaults.size());
    ExpectTold({1, 100, 200, 10, 20, 30, 40, 0}, TellStock(0));
    ExpectTold({1, 0, 400, 50, 60, 70, 80, 0}, TellStock(1));
    ExpectTold(kStockBuiltIn, TellStock(2));
    for (int id : {0, 1, 2})
        EXPECT_EQ(id, StockDefaults[id].id);
    ExpectTold(kNotFound, TellStock(3));
    ExpectTold(kNotFound, TellStock(-1));
}

TEST_F(DefaultTablesTest, StockVolumePassesOnlyWithItsFlag)
{
    WriteUserFile("[证券]\r\n股票=100,200,0,0.1,0.2,0,0.3,0.4,9\r\n"
                  "基金=300,400,0,0.5,0.6,0,0.7,0.8,9,1\r\n"
                  "债券=500,600,0,0.5,0.6,0,0.7,0.8,9,2\r\n");
    LoadStockDefaults();
    EXPECT_EQ(100, StockDefaults[0].defaultVolume);
    EXPECT_EQ(0, StockDefaults[0].flag) << "nine fields";
    EXPECT_EQ(0, TellStock(0).defaultVolume);
    EXPECT_EQ(300, TellStock(1).defaultVolume);
    EXPECT_EQ(0, TellStock(2).defaultVolume) << "only 1 lets it pass";
}

TEST_F(DefaultTablesTest, DailyMaxOfStockIsLostByALoad)
{
    LoadStockDefaults();
    StockDefaults[0].dailyMax = 77;
    EXPECT_EQ(77, TellStock(0).dailyMax);
    WriteStockDefault(StockDefaults[0]);
    EXPECT_EQ("[证券]\r\n股票=0,0,0.000,0.150000,0.050000,0.000,0.150000,0.050000,77,0\r\n",
              ReadBytes(kUserFile));
    LoadStockDefaults();
    EXPECT_EQ(0, TellStock(0).dailyMax);
}

TEST_F(DefaultTablesTest, SetStockTakesPercent)
{
    LoadStockDefaults();
    double stopProfit = 12.5;
    SetStockDefault(1, nullptr, nullptr, &stopProfit, nullptr, nullptr, nullptr);
    EXPECT_EQ(0.125, StockDefaults[1].stopProfit);
    EXPECT_EQ(12.5, TellStock(1).stopProfit);
    EXPECT_EQ("[证券]\r\n基金=0,0,0.000,0.125000,0.050000,0.000,0.150000,0.050000,0,0\r\n",
              ReadBytes(kUserFile));
    LoadStockDefaults();
    EXPECT_EQ(12.5, TellStock(1).stopProfit);
}

TEST_F(DefaultTablesTest, SetStockWithAllInputsNullWritesTheLine)
{
    LoadStockDefaults();
    SetStockDefault(2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ("[证券]\r\n债券=0,0,0.000,0.150000,0.050000,0.000,0.150000,0.050000,0,0\r\n",
              ReadBytes(kUserFile));
}

TEST_F(DefaultTablesTest, SetStockWithoutARowWritesNothing)
{
    LoadStockDefaults();
    int volume = 9;
    for (int id : {3, -1, 4, 2147483647, -2147483647 - 1})
        SetStockDefault(id, &volume, nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(IsThere("cfg"));
}

TEST_F(DefaultTablesTest, StockWriterKnowsFourKeys)
{
    for (int id : {-1, 4, 2147483647})
        WriteStockDefault({{id}, FactsOf(StopProduct::Stock).builtIn});
    EXPECT_FALSE(IsThere("cfg"));
    WriteStockDefault({{3}, FactsOf(StopProduct::Stock).builtIn});
    EXPECT_EQ("[证券]\r\n个股期权=0,0,0.000,0.150000,0.050000,0.000,0.150000,0.050000,0,0\r\n",
              ReadBytes(kUserFile));
}

TEST_F(DefaultTablesTest, StockLineThatIsBad)
{
    const std::string bad = "[证券]\r\n股票=1,1,0,1,1,0,1\r\n"
                            "基金=1234567890123456789012345678901,1,0,1,1,0,1,1,1,1\r\n";
    WriteUserFile(bad);
    LoadStockDefaults();
    ExpectTold(kStockBuiltIn, TellStock(0));
    ExpectTold(kStockBuiltIn, TellStock(1));
    EXPECT_EQ(bad, ReadBytes(kUserFile)) << "the file keeps it until the row is written";
}

TEST_F(DefaultTablesTest, OptionsOfTheUserAndOfThePackage)
{
    WriteUserFile("[期权]\r\n个股期权=2,3,0,0.1,0.2,0,0.3,0.4,99\r\n");
    std::filesystem::create_directories("Sys\\Cfg\\Trade");
    WriteBytes(kPackagedFile, "[期权]\r\n个股期权=4,5,0,0.5,0.6,0,0.7,0.8,99\r\n");
    LoadOptionsDefaults(false);
    ExpectTold({1, 2, 3, 10, 20, 30, 40, 0}, TellOptions(0));
    LoadOptionsDefaults(true);
    ExpectTold({1, 4, 5, 50, 60, 70, 80, 0}, TellOptions(0));
    ASSERT_EQ(1u, OptionsDefaults.size());
    EXPECT_EQ(0, OptionsDefaults[0].id);
    ExpectTold(kNotFound, TellOptions(1));
}

TEST_F(DefaultTablesTest, OptionsLineThatIsBad)
{
    for (const char* line :
         {"", "1,2,0,1,1,0,1", "1234567890123456789012345678901,1,0,1,1,0,1,1,1"})
    {
        WriteUserFile(std::string("[期权]\r\n个股期权=") + line + "\r\n");
        LoadOptionsDefaults(false);
        ExpectTold(kOptionsBuiltIn, TellOptions(0));
    }
}

TEST_F(DefaultTablesTest, OptionsAreWrittenWithThreeDecimals)
{
    LoadOptionsDefaults(false);
    OptionsDefaults[0].stopProfit = 0.1234;
    OptionsDefaults[0].dailyMax = 5;
    WriteOptionsDefault(OptionsDefaults[0]);
    EXPECT_EQ("[期权]\r\n个股期权=1,1,0.000,0.123,0.100,0.000,0.200,0.100,5\r\n",
              ReadBytes(kUserFile));
    LoadOptionsDefaults(false);
    ExpectTold({1, 1, 1, 12.3, 10, 20, 10, 0}, TellOptions(0));
}

TEST_F(DefaultTablesTest, BothRoadsShareOneFile)
{
    LoadContracts({{"SHFE", "ag"}});
    LoadStockDefaults();
    LoadOptionsDefaults(false);
    for (int volume = 1; volume <= 20; ++volume)
    {
        SetFutureDefault("SHFE", "ag", &volume, nullptr, nullptr, nullptr, nullptr, nullptr);
        OptionsDefaults[0].defaultVolume = volume;
        WriteOptionsDefault(OptionsDefaults[0]);
        SetStockDefault(0, &volume, nullptr, nullptr, nullptr, nullptr, nullptr);

        LoadContracts({{"SHFE", "ag"}});
        LoadStockDefaults();
        LoadOptionsDefaults(false);
        ASSERT_EQ(volume, TellFuture("SHFE", "ag").defaultVolume);
        ASSERT_EQ(volume, OptionsDefaults[0].defaultVolume);
        ASSERT_EQ(volume, StockDefaults[0].defaultVolume);
    }
}
