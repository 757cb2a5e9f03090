#include "core/ParamKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
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
};

const ExpectedKey kExpected[] = {
    {"bInsertNoConfirm", 0, 'I', "1000000", false},
    {"bCancelNoConfirm", 4, 'I', "1000004", false},
    {"bIllegalPrompt", 8, 'I', "1000008", false},
    {"bManualOpponentsPrice", 12, 'I', "1000012", false},
    {"imoPriceTick", 16, 'I', "1000016", false},
    {"bRestoreOpponentsPrice", 20, 'I', "1000020", false},
    {"iLockScreen", 24, 'I', "1000024", false},
    {"bPointOrderInsert", 28, 'I', "1000028", false},
    {"bInsertOrderNotice", 32, 'I', "1000032", false},
    {"bStopProfitLossNotice", 36, 'I', "1000036", false},
    {"bEarlyWarningNotice", 40, 'I', "1000040", false},
    {"enumListFontType", 44, 'I', "1000044", false},
    {"cFSpeculationHedge", 48, 'B', "48", false},
    {"cFInsertPrice", 49, 'B', "49", false},
    {"bFRestoreOpenFlag", 50, 'I', "1000050", false},
    {"cFFastClosePrice", 54, 'B', "54", false},
    {"iFfcPriceTick", 55, 'I', "1000055", false},
    {"bFAutoCancelOrder", 59, 'I', "1000059", false},
    {"cFSuperBuy1", 63, 'B', "63", false},
    {"cFSuperBuy2", 64, 'B', "64", false},
    {"cFSuperSell1", 65, 'B', "65", false},
    {"cFSuperSell2", 66, 'B', "66", false},
    {"cFCloseTodayPriority", 67, 'B', "67", false},
    {"cFAutoChasePriceFlag", 68, 'B', "68", false},
    {"iFacPriceTick", 69, 'I', "1000069", false},
    {"iFAutoCancelOrderDelay", 73, 'I', "1000.07", false},
    {"iFRepeatTimes", 77, 'I', "1000077", false},
    {"bFManualOrderByChasePrice", 81, 'I', "1000081", false},
    {"bFLastOrderCancel", 85, 'I', "1000085", false},
    {"iFStopContinuousTimesLoss", 89, 'I', "1000089", false},
    {"cFStopPriceLoss", 93, 'B', "93", false},
    {"iFStopContinuousTimesProfit", 94, 'I', "1000094", false},
    {"cFStopPriceProfit", 98, 'B', "98", false},
    {"cFStopInsertPriceLoss", 99, 'B', "99", false},
    {"cFStopInsertPriceProfit", 100, 'B', "100", false},
    {"cFStopProfitPriceTick", 101, 'I', "1000101", false},
    {"cFStopLossPriceTick", 105, 'I', "1000105", false},
    {"bFUseChasePrice", 109, 'I', "1000109", false},
    {"bFForever", 113, 'I', "1000113", false},
    {"cSInsertPrice", 117, 'B', "117", false},
    {"uSVolumeLimit", 118, 'U', "3000000118", false},
    {"cSFastClosePrice", 122, 'B', "122", false},
    {"iSfcPriceTick", 123, 'I', "1000123", false},
    {"cSSuperBuy1", 127, 'B', "127", false},
    {"cSSuperBuy2", 128, 'B', "128", false},
    {"cSSuperSell1", 129, 'B', "129", false},
    {"cSSuperSell2", 130, 'B', "130", false},
    {"cSAutoChasePriceFlag", 131, 'B', "131", false},
    {"iSacPriceTick", 132, 'I', "1000132", false},
    {"iSAutoCancelOrderDelay", 136, 'I', "1000.14", false},
    {"iSRepeatTimes", 140, 'I', "1000140", false},
    {"bSManualOrderByChasePrice", 144, 'I', "1000144", false},
    {"bSLastOrderCancel", 148, 'I', "1000148", false},
    {"iSStopContinuousTimesLoss", 152, 'I', "1000152", false},
    {"cSStopPriceLoss", 156, 'B', "156", false},
    {"iSStopContinuousTimesProfit", 157, 'I', "1000157", false},
    {"cSStopPriceProfit", 161, 'B', "161", false},
    {"cSStopInsertPriceLoss", 162, 'B', "162", false},
    {"cSStopInsertPriceProfit", 163, 'B', "163", false},
    {"cSStopProfitPriceTick", 164, 'I', "1000164", false},
    {"cSStopLossPriceTick", 168, 'I', "1000168", false},
    {"bSUseChasePrice", 172, 'I', "1000172", false},
    {"bSForever", 176, 'I', "1000176", false},
    {"cOSpeculationHedge", 180, 'B', "60", false},
    {"cOInsertPrice", 181, 'B', "181", false},
    {"bORestoreOpenFlag", 182, 'I', "1000182", false},
    {"cOFastClosePrice", 186, 'B', "186", false},
    {"iOfcPriceTick", 187, 'I', "1000187", false},
    {"bOAutoCancelOrder", 191, 'I', "1000191", false},
    {"cOSuperBuy1", 195, 'B', "195", false},
    {"cOSuperBuy2", 196, 'B', "196", false},
    {"cOSuperSell1", 197, 'B', "197", false},
    {"cOSuperSell2", 198, 'B', "198", false},
    {"iPriceOut", 199, 'I', "1000199", false},
    {"iExpire", 203, 'I', "1000203", false},
    {"iXZDLimit", 207, 'I', "1000207", false},
    {"iLevel", 211, 'I', "1000211", false},
    {"bOCostPrompt", 216, 'I', "1000216", false},
    {"cOAutoChasePriceFlag", 220, 'B', "220", false},
    {"iOacPriceTick", 221, 'I', "1000221", false},
    {"iOAutoCancelOrderDelay", 225, 'I', "1000.23", false},
    {"iORepeatTimes", 229, 'I', "1000229", false},
    {"bOManualOrderByChasePrice", 233, 'I', "1000233", false},
    {"bOLastOrderCancel", 237, 'I', "1000237", false},
    {"iOStopContinuousTimesLoss", 241, 'I', "1000241", false},
    {"cOStopPriceLoss", 245, 'B', "245", false},
    {"iOStopContinuousTimesProfit", 246, 'I', "1000246", false},
    {"cOStopPriceProfit", 250, 'B', "250", false},
    {"cOStopInsertPriceLoss", 251, 'B', "0", false},
    {"cOStopInsertPriceProfit", 252, 'B', "1", false},
    {"cOStopProfitPriceTick", 253, 'I', "1000253", false},
    {"cOStopLossPriceTick", 257, 'I', "1000257", false},
    {"bOUseChasePrice", 261, 'I', "1000261", false},
    {"bOForever", 265, 'I', "1000265", false},
    {"bOneOpen", 269, 'I', "1000269", false},
    {"bOpenPrompt", 273, 'I', "1000273", false},
    {"bStockAutoOpen", 277, 'I', "1000277", false},
    {"bFutureAutoOpen", 281, 'I', "1000281", false},
    {"bDerivativeAutoOpen", 285, 'I', "1000285", false},
    {"bGoldAutoOpen", 289, 'I', "1000289", false},
    {"bQuickNoConfirm", 304, 'I', "1000304", false},
    {"bOrderPrompt", 308, 'I', "1000308", false},
    {"uOVolumeLimit", 312, 'U', "3000000312", false},
    {"cSplitOrderType_1", 389, 'B', "138", false},
    {"uIfVolume1_1", 390, 'U', "-1294966906", false},
    {"uMinVolume1_1", 394, 'U', "-1294966902", false},
    {"uMaxVolume1_1", 398, 'U', "-1294966898", false},
    {"fInterval1_1", 402, 'F', "402.25", false},
    {"uIfVolume2_1", 406, 'U', "-1294966890", false},
    {"uVolume2_1", 410, 'U', "-1294966886", false},
    {"fInterval2_1", 414, 'F', "414.25", false},
    {"uIfVolume1_Market_1", 418, 'U', "-1294966878", false},
    {"uMinVolume1_Market_1", 422, 'U', "-1294966874", false},
    {"uMaxVolume1_Market_1", 426, 'U', "-1294966870", false},
    {"fInterval1_Market_1", 430, 'F', "430.25", false},
    {"uIfVolume2_Market_1", 434, 'U', "-1294966862", false},
    {"uVolume2_Market_1", 438, 'U', "-1294966858", false},
    {"fInterval2_Market_1", 442, 'F', "442.25", false},
    {"cSplitOrderType_2", 446, 'B', "195", false},
    {"uIfVolume1_2", 447, 'U', "-1294966849", false},
    {"uMinVolume1_2", 451, 'U', "-1294966845", false},
    {"uMaxVolume1_2", 455, 'U', "-1294966841", false},
    {"fInterval1_2", 459, 'F', "459.25", false},
    {"uIfVolume2_2", 463, 'U', "-1294966833", false},
    {"uVolume2_2", 467, 'U', "-1294966829", false},
    {"fInterval2_2", 471, 'F', "471.25", false},
    {"uIfVolume1_Market_2", 475, 'U', "-1294966821", false},
    {"uMinVolume1_Market_2", 479, 'U', "-1294966817", false},
    {"uMaxVolume1_Market_2", 483, 'U', "-1294966813", false},
    {"fInterval1_Market_2", 487, 'F', "487.25", false},
    {"uIfVolume2_Market_2", 491, 'U', "-1294966805", false},
    {"uVolume2_Market_2", 495, 'U', "-1294966801", false},
    {"fInterval2_Market_2", 499, 'F', "499.25", false},
    {"cSplitOrderType_3", 503, 'B', "1", false},
    {"uIfVolume1_3", 504, 'U', "-1294966792", false},
    {"uMinVolume1_3", 508, 'U', "-1294966788", false},
    {"uMaxVolume1_3", 512, 'U', "-1294966784", false},
    {"fInterval1_3", 516, 'F', "516.25", false},
    {"uIfVolume2_3", 520, 'U', "-1294966776", false},
    {"uVolume2_3", 524, 'U', "-1294966772", false},
    {"fInterval2_3", 528, 'F', "528.25", false},
    {"uIfVolume1_Market_3", 532, 'U', "-1294966764", false},
    {"uMinVolume1_Market_3", 536, 'U', "-1294966760", false},
    {"uMaxVolume1_Market_3", 540, 'U', "-1294966756", false},
    {"fInterval1_Market_3", 544, 'F', "544.25", false},
    {"uIfVolume2_Market_3", 548, 'U', "-1294966748", false},
    {"uVolume2_Market_3", 552, 'U', "-1294966744", false},
    {"fInterval2_Market_3", 556, 'F', "556.25", false},
    {"bRestoreVolume", 316, 'I', "1000316", false},
    {"bTradedPlaySound", 320, 'I', "1000320", false},
    {"bOQueryMaxOpen", 324, 'I', "1000324", false},
    {"bCancelAllNoConfirm", 328, 'I', "1000328", false},
    {"bLinkage", 717, 'I', "1000717", false},
    {"bHideAccountInfo", 721, 'I', "1000721", false},
    {"uOCPositionPrompt", 617, 'U', "3000000617", false},
    {"uUseCloudMode", 621, 'U', "1", false},
    {"bPositionStatistics", 713, 'I', "1000713", false},
    {"fMaxRatioHigherLimitPrice", 729, 'F', "729.25", true},
    {"fMinRatioLowerLimitPrice", 737, 'F', "737.25", true},
    {"bHigherLimitPriceNotice", 725, 'I', "1000725", true},
    {"bLowerLimitPriceNotice", 733, 'I', "1000733", true},
    {"bOuterFusingLimitPriceNotice", 741, 'I', "1000741", true},
    {"uPosExecPriceRank", 745, 'U', "3000000745", false},
    {"uMarginBuyStrategy", 749, 'U', "3000000749", false},
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

TEST(FactoryDefault, TellsHowItIsRead)
{
    EXPECT_EQ(DefaultRead::Int, FactoryDefault("bOneOpen").read);
    EXPECT_STREQ("1", FactoryDefault("bOneOpen").text);
    EXPECT_EQ(DefaultRead::Text, FactoryDefault("uSVolumeLimit").read);
    EXPECT_STREQ("999900", FactoryDefault("uSVolumeLimit").text);
    EXPECT_EQ(DefaultRead::Real, FactoryDefault("iSAutoCancelOrderDelay").read);
    EXPECT_EQ(DefaultRead::None, FactoryDefault("iFAutoCancelOrderDelay").read);
    EXPECT_STREQ("2000", FactoryDefault("uMaxVolume1_1").text);
    EXPECT_STREQ("10", FactoryDefault("uVolume2_Market_2").text);
    EXPECT_EQ(DefaultRead::None, FactoryDefault("uVolume2_Market_3").read);
    EXPECT_STREQ(".\\TradedSound.wav", FactoryDefault("szTradedPlaySoundPath").text);
    EXPECT_EQ(DefaultRead::None, FactoryDefault("noSuchKey").read);
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
