#include "core/ParamKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>

namespace
{

// Every key in the order of writing, with the place of its field, how the test fills it, and what the
// file must then say. Written out on purpose: hosts rely on each line.
struct ExpectedKey
{
    const char* key;
    size_t offset;
    char kind; // I i32, U u32, B byte, F float
    const char* text;
    bool limitPriceOnly;
    char read; // of the factory value: i int, t text, r real, - none
    const char* factory;
};

const ExpectedKey kExpected[] = {
    {"bInsertNoConfirm", 0, 'I', "1000000", false, 'i', "0"},
    {"bCancelNoConfirm", 4, 'I', "1000004", false, 'i', "0"},
    {"bIllegalPrompt", 8, 'I', "1000008", false, 'i', "1"},
    {"bManualOpponentsPrice", 12, 'I', "1000012", false, 'i', "0"},
    {"imoPriceTick", 16, 'I', "1000016", false, 't', "0"},
    {"bRestoreOpponentsPrice", 20, 'I', "1000020", false, 'i', "1"},
    {"iLockScreen", 24, 'I', "1000024", false, 't', "10"},
    {"bPointOrderInsert", 28, 'I', "1000028", false, 'i', "0"},
    {"bInsertOrderNotice", 32, 'I', "1000032", false, 'i', "1"},
    {"bStopProfitLossNotice", 36, 'I', "1000036", false, 'i', "1"},
    {"bEarlyWarningNotice", 40, 'I', "1000040", false, 'i', "1"},
    {"enumListFontType", 44, 'I', "1000044", false, 'i', "0"},
    {"cFSpeculationHedge", 48, 'B', "48", false, 'i', "49"},
    {"cFInsertPrice", 49, 'B', "49", false, 'i', "0"},
    {"bFRestoreOpenFlag", 50, 'I', "1000050", false, 'i', "1"},
    {"cFFastClosePrice", 54, 'B', "54", false, 'i', "0"},
    {"iFfcPriceTick", 55, 'I', "1000055", false, 't', "0"},
    {"bFAutoCancelOrder", 59, 'I', "1000059", false, 'i', "0"},
    {"cFSuperBuy1", 63, 'B', "63", false, 'i', "0"},
    {"cFSuperBuy2", 64, 'B', "64", false, 'i', "1"},
    {"cFSuperSell1", 65, 'B', "65", false, 'i', "0"},
    {"cFSuperSell2", 66, 'B', "66", false, 'i', "1"},
    {"cFCloseTodayPriority", 67, 'B', "67", false, 'i', "0"},
    {"cFAutoChasePriceFlag", 68, 'B', "68", false, 'i', "0"},
    {"iFacPriceTick", 69, 'I', "1000069", false, 't', "0"},
    {"iFAutoCancelOrderDelay", 73, 'I', "1000.07", false, '-', ""},
    {"iFRepeatTimes", 77, 'I', "1000077", false, 't', "2"},
    {"bFManualOrderByChasePrice", 81, 'I', "1000081", false, 'i', "0"},
    {"bFLastOrderCancel", 85, 'I', "1000085", false, 'i', "0"},
    {"iFStopContinuousTimesLoss", 89, 'I', "1000089", false, 't', "1"},
    {"cFStopPriceLoss", 93, 'B', "93", false, 'i', "0"},
    {"iFStopContinuousTimesProfit", 94, 'I', "1000094", false, 't', "1"},
    {"cFStopPriceProfit", 98, 'B', "98", false, 'i', "0"},
    {"cFStopInsertPriceLoss", 99, 'B', "99", false, 'i', "0"},
    {"cFStopInsertPriceProfit", 100, 'B', "100", false, 'i', "0"},
    {"cFStopProfitPriceTick", 101, 'I', "1000101", false, 't', "0"},
    {"cFStopLossPriceTick", 105, 'I', "1000105", false, 't', "0"},
    {"bFUseChasePrice", 109, 'I', "1000109", false, 'i', "0"},
    {"bFForever", 113, 'I', "1000113", false, 'i', "0"},
    {"cSInsertPrice", 117, 'B', "117", false, 'i', "0"},
    {"uSVolumeLimit", 118, 'U', "3000000118", false, 't', "999900"},
    {"cSFastClosePrice", 122, 'B', "122", false, 'i', "0"},
    {"iSfcPriceTick", 123, 'I', "1000123", false, 't', "0"},
    {"cSSuperBuy1", 127, 'B', "127", false, '-', ""},
    {"cSSuperBuy2", 128, 'B', "128", false, '-', ""},
    {"cSSuperSell1", 129, 'B', "129", false, '-', ""},
    {"cSSuperSell2", 130, 'B', "130", false, '-', ""},
    {"cSAutoChasePriceFlag", 131, 'B', "131", false, 'i', "0"},
    {"iSacPriceTick", 132, 'I', "1000132", false, 't', "0"},
    {"iSAutoCancelOrderDelay", 136, 'I', "1000.14", false, 'r', "5.0"},
    {"iSRepeatTimes", 140, 'I', "1000140", false, 'i', "2"},
    {"bSManualOrderByChasePrice", 144, 'I', "1000144", false, 'i', "0"},
    {"bSLastOrderCancel", 148, 'I', "1000148", false, 'i', "0"},
    {"iSStopContinuousTimesLoss", 152, 'I', "1000152", false, 't', "1"},
    {"cSStopPriceLoss", 156, 'B', "156", false, 'i', "1"},
    {"iSStopContinuousTimesProfit", 157, 'I', "1000157", false, 't', "1"},
    {"cSStopPriceProfit", 161, 'B', "161", false, 'i', "1"},
    {"cSStopInsertPriceLoss", 162, 'B', "162", false, 'i', "0"},
    {"cSStopInsertPriceProfit", 163, 'B', "163", false, 'i', "0"},
    {"cSStopProfitPriceTick", 164, 'I', "1000164", false, 't', "0"},
    {"cSStopLossPriceTick", 168, 'I', "1000168", false, 't', "0"},
    {"bSUseChasePrice", 172, 'I', "1000172", false, 'i', "0"},
    {"bSForever", 176, 'I', "1000176", false, 'i', "0"},
    {"cOSpeculationHedge", 180, 'B', "60", false, '-', ""},
    {"cOInsertPrice", 181, 'B', "181", false, 'i', "0"},
    {"bORestoreOpenFlag", 182, 'I', "1000182", false, 'i', "1"},
    {"cOFastClosePrice", 186, 'B', "186", false, 'i', "0"},
    {"iOfcPriceTick", 187, 'I', "1000187", false, 't', "0"},
    {"bOAutoCancelOrder", 191, 'I', "1000191", false, 'i', "0"},
    {"cOSuperBuy1", 195, 'B', "195", false, 'i', "0"},
    {"cOSuperBuy2", 196, 'B', "196", false, 'i', "1"},
    {"cOSuperSell1", 197, 'B', "197", false, 'i', "0"},
    {"cOSuperSell2", 198, 'B', "198", false, 'i', "1"},
    {"iPriceOut", 199, 'I', "1000199", false, 'i', "10"},
    {"iExpire", 203, 'I', "1000203", false, 't', "7"},
    {"iXZDLimit", 207, 'I', "1000207", false, 'i', "0"},
    {"iLevel", 211, 'I', "1000211", false, '-', ""},
    {"bOCostPrompt", 216, 'I', "1000216", false, 'i', "0"},
    {"cOAutoChasePriceFlag", 220, 'B', "220", false, 'i', "0"},
    {"iOacPriceTick", 221, 'I', "1000221", false, 't', "0"},
    {"iOAutoCancelOrderDelay", 225, 'I', "1000.23", false, 'r', "5.0"},
    {"iORepeatTimes", 229, 'I', "1000229", false, 'i', "2"},
    {"bOManualOrderByChasePrice", 233, 'I', "1000233", false, 'i', "0"},
    {"bOLastOrderCancel", 237, 'I', "1000237", false, 'i', "0"},
    {"iOStopContinuousTimesLoss", 241, 'I', "1000241", false, 't', "1"},
    {"cOStopPriceLoss", 245, 'B', "245", false, 'i', "1"},
    {"iOStopContinuousTimesProfit", 246, 'I', "1000246", false, 't', "1"},
    {"cOStopPriceProfit", 250, 'B', "250", false, 'i', "1"},
    {"cOStopInsertPriceLoss", 251, 'B', "0", false, 'i', "0"},
    {"cOStopInsertPriceProfit", 252, 'B', "1", false, 'i', "0"},
    {"cOStopProfitPriceTick", 253, 'I', "1000253", false, 't', "0"},
    {"cOStopLossPriceTick", 257, 'I', "1000257", false, 't', "0"},
    {"bOUseChasePrice", 261, 'I', "1000261", false, 'i', "0"},
    {"bOForever", 265, 'I', "1000265", false, 'i', "0"},
    {"bOneOpen", 269, 'I', "1000269", false, 'i', "1"},
    {"bOpenPrompt", 273, 'I', "1000273", false, 'i', "0"},
    {"bStockAutoOpen", 277, 'I', "1000277", false, '-', ""},
    {"bFutureAutoOpen", 281, 'I', "1000281", false, '-', ""},
    {"bDerivativeAutoOpen", 285, 'I', "1000285", false, '-', ""},
    {"bGoldAutoOpen", 289, 'I', "1000289", false, '-', ""},
    {"bQuickNoConfirm", 304, 'I', "1000304", false, 'i', "0"},
    {"bOrderPrompt", 308, 'I', "1000308", false, 'i', "0"},
    {"uOVolumeLimit", 312, 'U', "3000000312", false, 't', "1000"},
    {"cSplitOrderType_1", 389, 'B', "138", false, 'i', "0"},
    {"uIfVolume1_1", 390, 'U', "-1294966906", false, 't', "10000"},
    {"uMinVolume1_1", 394, 'U', "-1294966902", false, 't', "1000"},
    {"uMaxVolume1_1", 398, 'U', "-1294966898", false, 't', "2000"},
    {"fInterval1_1", 402, 'F', "402.25", false, 't', "5.00"},
    {"uIfVolume2_1", 406, 'U', "-1294966890", false, 't', "10000"},
    {"uVolume2_1", 410, 'U', "-1294966886", false, 't', "1000"},
    {"fInterval2_1", 414, 'F', "414.25", false, 't', "5.00"},
    {"uIfVolume1_Market_1", 418, 'U', "-1294966878", false, 't', "10000"},
    {"uMinVolume1_Market_1", 422, 'U', "-1294966874", false, 't', "1000"},
    {"uMaxVolume1_Market_1", 426, 'U', "-1294966870", false, 't', "2000"},
    {"fInterval1_Market_1", 430, 'F', "430.25", false, 't', "5.00"},
    {"uIfVolume2_Market_1", 434, 'U', "-1294966862", false, 't', "10000"},
    {"uVolume2_Market_1", 438, 'U', "-1294966858", false, 't', "1000"},
    {"fInterval2_Market_1", 442, 'F', "442.25", false, 't', "5.00"},
    {"cSplitOrderType_2", 446, 'B', "195", false, 'i', "0"},
    {"uIfVolume1_2", 447, 'U', "-1294966849", false, 't', "50"},
    {"uMinVolume1_2", 451, 'U', "-1294966845", false, 't', "1"},
    {"uMaxVolume1_2", 455, 'U', "-1294966841", false, 't', "50"},
    {"fInterval1_2", 459, 'F', "459.25", false, 't', "0.30"},
    {"uIfVolume2_2", 463, 'U', "-1294966833", false, 't', "50"},
    {"uVolume2_2", 467, 'U', "-1294966829", false, 't', "50"},
    {"fInterval2_2", 471, 'F', "471.25", false, 't', "0.30"},
    {"uIfVolume1_Market_2", 475, 'U', "-1294966821", false, 't', "10"},
    {"uMinVolume1_Market_2", 479, 'U', "-1294966817", false, 't', "1"},
    {"uMaxVolume1_Market_2", 483, 'U', "-1294966813", false, 't', "10"},
    {"fInterval1_Market_2", 487, 'F', "487.25", false, 't', "0.30"},
    {"uIfVolume2_Market_2", 491, 'U', "-1294966805", false, 't', "10"},
    {"uVolume2_Market_2", 495, 'U', "-1294966801", false, 't', "10"},
    {"fInterval2_Market_2", 499, 'F', "499.25", false, 't', "0.30"},
    {"cSplitOrderType_3", 503, 'B', "1", false, '-', ""},
    {"uIfVolume1_3", 504, 'U', "-1294966792", false, '-', ""},
    {"uMinVolume1_3", 508, 'U', "-1294966788", false, '-', ""},
    {"uMaxVolume1_3", 512, 'U', "-1294966784", false, '-', ""},
    {"fInterval1_3", 516, 'F', "516.25", false, '-', ""},
    {"uIfVolume2_3", 520, 'U', "-1294966776", false, '-', ""},
    {"uVolume2_3", 524, 'U', "-1294966772", false, '-', ""},
    {"fInterval2_3", 528, 'F', "528.25", false, '-', ""},
    {"uIfVolume1_Market_3", 532, 'U', "-1294966764", false, '-', ""},
    {"uMinVolume1_Market_3", 536, 'U', "-1294966760", false, '-', ""},
    {"uMaxVolume1_Market_3", 540, 'U', "-1294966756", false, '-', ""},
    {"fInterval1_Market_3", 544, 'F', "544.25", false, '-', ""},
    {"uIfVolume2_Market_3", 548, 'U', "-1294966748", false, '-', ""},
    {"uVolume2_Market_3", 552, 'U', "-1294966744", false, '-', ""},
    {"fInterval2_Market_3", 556, 'F', "556.25", false, '-', ""},
    {"bRestoreVolume", 316, 'I', "1000316", false, 'i', "0"},
    {"bTradedPlaySound", 320, 'I', "1000320", false, 'i', "0"},
    {"bOQueryMaxOpen", 324, 'I', "1000324", false, 'i', "1"},
    {"bCancelAllNoConfirm", 328, 'I', "1000328", false, 'i', "0"},
    {"bLinkage", 717, 'I', "1000717", false, 'i', "1"},
    {"bHideAccountInfo", 721, 'I', "1000721", false, 'i', "0"},
    {"uOCPositionPrompt", 617, 'U', "3000000617", false, 't', "3"},
    {"uUseCloudMode", 621, 'U', "1", false, '-', ""},
    {"bPositionStatistics", 713, 'I', "1000713", false, 'i', "0"},
    {"fMaxRatioHigherLimitPrice", 729, 'F', "729.25", true, 't', "8.00"},
    {"fMinRatioLowerLimitPrice", 737, 'F', "737.25", true, 't', "0.20"},
    {"bHigherLimitPriceNotice", 725, 'I', "1000725", true, 'i', "1"},
    {"bLowerLimitPriceNotice", 733, 'I', "1000733", true, 'i', "1"},
    {"bOuterFusingLimitPriceNotice", 741, 'I', "1000741", true, 'i', "1"},
    {"uPosExecPriceRank", 745, 'U', "3000000745", false, 'i', "1"},
    {"uMarginBuyStrategy", 749, 'U', "3000000749", false, 'i', "3"},
};

template <typename T>
void Put(TOParam& record, size_t offset, T value)
{
    memcpy(reinterpret_cast<char*>(&record) + offset, &value, sizeof(value));
}

/// A record with another value in every field, told from the field's offset.
TOParam DistinctRecord()
{
    TOParam record = {};
    for (const ExpectedKey& expected : kExpected)
    {
        const size_t offset = expected.offset;
        switch (expected.kind)
        {
        case 'I':
            Put(record, offset, static_cast<int32_t>(1000000 + offset));
            break;
        case 'U':
            Put(record, offset, static_cast<uint32_t>(3000000000u + offset));
            break;
        case 'B':
            Put(record, offset,
                static_cast<uint8_t>(offset == 48 || offset == 180 ? offset % 120 : offset % 251));
            break;
        default:
            Put(record, offset, static_cast<float>(offset) + 0.25f);
        }
    }
    return record;
}

const ParamKey& Find(const std::string& name)
{
    for (const ParamKey& key : ParamKeys())
        if (key.key == name)
            return key;
    throw std::runtime_error("no key " + name);
}

std::string Text(const TOParam& record, const std::string& key)
{
    return FormatParam(record, Find(key));
}

} // namespace

TEST(StoredTexts, EveryKeyInOrderWithItsText)
{
    const std::vector<StoredText> texts = StoredTexts(DistinctRecord(), true);
    ASSERT_EQ(std::size(kExpected), texts.size());
    for (size_t i = 0; i < texts.size(); ++i)
    {
        EXPECT_EQ(kExpected[i].key, texts[i].key) << i;
        EXPECT_EQ(kExpected[i].text, texts[i].text) << texts[i].key;
    }
}

TEST(StoredTexts, LimitPriceKeysOnlyOnRequest)
{
    std::vector<std::string> expected;
    for (const ExpectedKey& key : kExpected)
        if (!key.limitPriceOnly)
            expected.push_back(key.key);

    std::vector<std::string> keys;
    for (const StoredText& text : StoredTexts(DistinctRecord(), false))
        keys.push_back(text.key);
    EXPECT_EQ(expected, keys);
    EXPECT_EQ(std::size(kExpected) - 5, keys.size());
}

TEST(StoredTexts, LeavesOutWhatPagesOwnAndWhatIsReserved)
{
    std::set<std::string> keys;
    for (const StoredText& text : StoredTexts(DistinctRecord(), true))
        keys.insert(text.key);
    for (const char* absent :
         {"iPriceOutPrompt", "iOptionPriceAmountLayout", "iShowZeroPosition", "iOptionQuickBSMode",
          "bShowPositionLine", "bShowConditionOrder", "szTradedPlaySoundPath", "cSplitOrderType_0",
          "cSplitOrderType_4", "reserved1"})
        EXPECT_EQ(0u, keys.count(absent)) << absent;
}

TEST(ParamKeys, CoverEveryByteThatIsNotReservedOnce)
{
    std::set<size_t> covered;
    for (const ParamKey& key : ParamKeys())
    {
        const bool isByte = key.field.type == FieldType::Byte || key.field.type == FieldType::Char;
        for (size_t i = 0; i < (isByte ? 1u : 4u); ++i)
            EXPECT_TRUE(covered.insert(key.field.offset + i).second) << key.key;
    }
    // Reserved runs, split orders 0 and 4, and the four fields whose pages write the file.
    const size_t uncovered = 1 + 11 + 88 + 42 + 2 * sizeof(TSplitOrder) + 4 * 4;
    EXPECT_EQ(sizeof(TOParam) - uncovered, covered.size());
}

TEST(FormatParam, OptionsDelayBelowTenMillisecondsIsFiveSeconds)
{
    TOParam record = {};
    record.iOAutoCancelOrderDelay = 9;
    record.iFAutoCancelOrderDelay = 9;
    record.iSAutoCancelOrderDelay = 9;
    EXPECT_EQ("5.00", Text(record, "iOAutoCancelOrderDelay"));
    EXPECT_EQ("0.01", Text(record, "iFAutoCancelOrderDelay"));
    EXPECT_EQ("0.01", Text(record, "iSAutoCancelOrderDelay"));

    record.iOAutoCancelOrderDelay = 10;
    EXPECT_EQ("0.01", Text(record, "iOAutoCancelOrderDelay"));
    record.iOAutoCancelOrderDelay = -1;
    EXPECT_EQ("5.00", Text(record, "iOAutoCancelOrderDelay"));
    record.iFAutoCancelOrderDelay = -1500;
    EXPECT_EQ("-1.50", Text(record, "iFAutoCancelOrderDelay"));
}

TEST(FormatParam, IntervalLosesItsThirdDecimal)
{
    TOParam record = {};
    record.SplitOrder[2].fInterval1 = 0.346f;
    EXPECT_EQ("0.35", Text(record, "fInterval1_2"));
    // The client reads the rounded value at its next start.
    ParseParam(record, Find("fInterval1_2"), Text(record, "fInterval1_2"));
    EXPECT_EQ(0.35f, GetFloat(record, Find("fInterval1_2").field));
}

TEST(FormatParam, HedgeFlagIsItsCharacterCode)
{
    TOParam record = {};
    record.cFSpeculationHedge = '3';
    EXPECT_EQ("51", Text(record, "cFSpeculationHedge"));
}

TEST(FormatParam, SplitVolumesAreSigned)
{
    TOParam record = {};
    record.SplitOrder[1].uIfVolume1 = 4294967295u;
    record.uSVolumeLimit = 4294967295u;
    EXPECT_EQ("-1", Text(record, "uIfVolume1_1"));
    EXPECT_EQ("4294967295", Text(record, "uSVolumeLimit"));
}

TEST(FormatParam, CloudModeIsASwitch)
{
    TOParam record = {};
    record.uUseCloudMode = 7;
    EXPECT_EQ("1", Text(record, "uUseCloudMode"));
    record.uUseCloudMode = 0;
    EXPECT_EQ("0", Text(record, "uUseCloudMode"));
}

TEST(FormatParam, AnyFloatFits)
{
    TOParam record = {};
    record.fMaxRatioHigherLimitPrice = -3.4028235e38f;
    EXPECT_EQ("-340282346638528859811704183484516925440.00",
              Text(record, "fMaxRatioHigherLimitPrice"));
}

TEST(ParseParam, IsTheInverseOfFormat)
{
    TOParam record = DistinctRecord();
    // A switch keeps only whether it is on.
    record.uUseCloudMode = 1;
    TOParam read = {};
    for (const ParamKey& key : ParamKeys())
        ParseParam(read, key, FormatParam(record, key));
    for (const ParamKey& key : ParamKeys())
        EXPECT_EQ(FormatParam(record, key), FormatParam(read, key)) << key.key;
    for (const ParamKey& key : ParamKeys())
    {
        // A delay is rounded to hundredths of a second.
        const int unit =
            key.form == TextForm::Seconds || key.form == TextForm::GuardedSeconds ? 10 : 1;
        EXPECT_NEAR(GetInt(record, key.field), GetInt(read, key.field), unit - 1) << key.key;
        EXPECT_EQ(GetFloat(record, key.field), GetFloat(read, key.field)) << key.key;
    }
}

TEST(ParseParam, LeavesReservedBytesAlone)
{
    TOParam record;
    auto* const bytes = reinterpret_cast<unsigned char*>(&record);
    for (size_t i = 0; i < sizeof(record); ++i)
        bytes[i] = static_cast<unsigned char>(i * 13 + 5);
    TOParam read = record;
    std::set<size_t> written;
    for (const ParamKey& key : ParamKeys())
    {
        ParseParam(read, key, "1");
        const bool isByte = key.field.type == FieldType::Byte || key.field.type == FieldType::Char;
        for (size_t i = 0; i < (isByte ? 1u : 4u); ++i)
            written.insert(key.field.offset + i);
    }
    // Between and around the fields nothing moves, split orders 0 and 4 included.
    for (size_t i = 0; i < sizeof(record); ++i)
        EXPECT_TRUE(written.count(i) || bytes[i] == reinterpret_cast<unsigned char*>(&read)[i])
            << i;
    EXPECT_EQ(0, memcmp(&record.SplitOrder[0], &read.SplitOrder[0], sizeof(TSplitOrder)));
    EXPECT_EQ(0, memcmp(&record.SplitOrder[4], &read.SplitOrder[4], sizeof(TSplitOrder)));
}

TEST(ParseParam, BringsForeignTextIntoRange)
{
    TOParam record = {};
    ParseParam(record, Find("cFInsertPrice"), "999");
    EXPECT_EQ(255, record.cFInsertPrice);
    ParseParam(record, Find("iLockScreen"), "99999999999999999999");
    EXPECT_EQ(2147483647, GetInt(record, FIELD(iLockScreen)));
    ParseParam(record, Find("iLockScreen"), "nan");
    EXPECT_EQ(0, GetInt(record, FIELD(iLockScreen)));
    ParseParam(record, Find("iFAutoCancelOrderDelay"), "1e300");
    EXPECT_EQ(2147483647, GetInt(record, FIELD(iFAutoCancelOrderDelay)));
    ParseParam(record, Find("fMinRatioLowerLimitPrice"), "1e300");
    EXPECT_EQ(3.4028235e38f, GetFloat(record, FIELD(fMinRatioLowerLimitPrice)));
    ParseParam(record, Find("uOVolumeLimit"), "many");
    EXPECT_EQ(0, GetInt(record, FIELD(uOVolumeLimit)));
}

TEST(FactoryDefault, TellsItsValueAndHowItIsRead)
{
    const std::map<char, DefaultRead> reads = {{'-', DefaultRead::None},
                                               {'i', DefaultRead::Int},
                                               {'t', DefaultRead::Text},
                                               {'r', DefaultRead::Real}};
    for (const ExpectedKey& expected : kExpected)
    {
        EXPECT_EQ(reads.at(expected.read), FactoryDefault(expected.key).read) << expected.key;
        EXPECT_STREQ(expected.factory, FactoryDefault(expected.key).text) << expected.key;
    }
    EXPECT_EQ(DefaultRead::None, FactoryDefault("noSuchKey").read);
}

TEST(FactoryDefault, OfTheKeysThatPagesOwn)
{
    const struct
    {
        const char* key;
        DefaultRead read;
        const char* text;
    } expected[] = {
        {"iPriceOutPrompt", DefaultRead::Int, "1"},
        {"iOptionPriceAmountLayout", DefaultRead::Int, "0"},
        {"iShowZeroPosition", DefaultRead::Int, "0"},
        {"iOptionQuickBSMode", DefaultRead::Int, "0"},
        {"bShowPositionLine", DefaultRead::Int, "1"},
        {"bShowConditionOrder", DefaultRead::Int, "1"},
        {"szTradedPlaySoundPath", DefaultRead::Text, ".\\TradedSound.wav"},
    };
    EXPECT_EQ(std::size(expected), PageOwnedKeys().size());
    for (const auto& owned : expected)
    {
        EXPECT_EQ(owned.read, FactoryDefault(owned.key).read) << owned.key;
        EXPECT_STREQ(owned.text, FactoryDefault(owned.key).text) << owned.key;
    }
}

TEST(ParamField, FloatAndWholeFieldsDoNotMix)
{
    TOParam record = {};
    SetInt(record, FIELD(fMaxRatioHigherLimitPrice), 1);
    EXPECT_EQ(0.0f, GetFloat(record, FIELD(fMaxRatioHigherLimitPrice)));
    SetFloat(record, FIELD(bOneOpen), 1.0f);
    EXPECT_EQ(0, GetInt(record, FIELD(bOneOpen)));
    SetInt(record, FIELD(cFInsertPrice), 263);
    EXPECT_EQ(7, GetInt(record, FIELD(cFInsertPrice)));
    EXPECT_EQ(0, GetInt(record, FIELD(bFRestoreOpenFlag)));
}
