#include "tests/window/ModuleTest.h"
#include "tests/window/Records.h"

namespace
{

class SaveParam : public ModuleTest
{
};

} // namespace

TEST_F(SaveParam, FreshFileStandsInTheOrderOfWriting)
{
    TOParam record = PatternRecord();
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ(FileOf(record), ReadBytes(kUserFile));
}

TEST_F(SaveParam, LimitPriceKeysGoWithTheirFlag)
{
    TOParam record = PatternRecord();
    ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, true);
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ(FileOf(record, true), ReadBytes(kUserFile));
}

TEST_F(SaveParam, LimitPriceLinesStayWithoutTheirFlag)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nfMaxRatioHigherLimitPrice=3.25\r\n");
    TOParam record = {};
    record.fMaxRatioHigherLimitPrice = 9.5f;
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ("3.25", Stored("fMaxRatioHigherLimitPrice"));
    EXPECT_EQ("<absent>", Stored("bHigherLimitPriceNotice"));
}

TEST_F(SaveParam, KeepsWhatOthersWrote)
{
    const std::string before = "; by the client\r\n[Window]\r\nleft=7\r\n\r\n[TradeConfig]\r\n"
                               "; a note\r\nforeign=keep me\r\nbOneOpen=5\r\n"
                               "szTradedPlaySoundPath=.\\a.wav\r\n\r\n[Last]\r\nx=1\r\n";
    WriteBytes(kUserFile, before);
    TOParam record = {};
    ZorvaneInterface::SaveParam(&record);

    const std::string after = ReadBytes(kUserFile);
    EXPECT_EQ(0u, after.find("; by the client\r\n[Window]\r\nleft=7\r\n\r\n[TradeConfig]\r\n"
                             "; a note\r\nforeign=keep me\r\nbOneOpen=0\r\n"
                             "szTradedPlaySoundPath=.\\a.wav\r\n"));
    EXPECT_NE(std::string::npos, after.find("\r\n\r\n[Last]\r\nx=1\r\n"));
    EXPECT_EQ("keep me", Stored("foreign"));
}

TEST_F(SaveParam, NeverWritesTheHostsRecord)
{
    TOParam record = PatternRecord();
    const TOParam before = record;
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ(0, memcmp(&before, &record, sizeof(record)));
}

TEST_F(SaveParam, AnUnchangedFileIsNotTouched)
{
    TOParam record = PatternRecord();
    ZorvaneInterface::SaveParam(&record);
    WIN32_FILE_ATTRIBUTE_DATA before = {}, after = {};
    GetFileAttributesExA(kUserFile, GetFileExInfoStandard, &before);
    Sleep(50);
    ZorvaneInterface::SaveParam(&record);
    GetFileAttributesExA(kUserFile, GetFileExInfoStandard, &after);
    EXPECT_EQ(0, CompareFileTime(&before.ftLastWriteTime, &after.ftLastWriteTime));
}

TEST_F(SaveParam, AReadOnlyFileFailsSilently)
{
    TOParam record = {};
    ZorvaneInterface::SaveParam(&record);
    const std::string before = ReadBytes(kUserFile);
    SetFileAttributesA(kUserFile, FILE_ATTRIBUTE_READONLY);
    record.bOneOpen = 1;
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ(before, ReadBytes(kUserFile));
    SetFileAttributesA(kUserFile, FILE_ATTRIBUTE_NORMAL);
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ("1", Stored("bOneOpen"));
}

TEST_F(SaveParam, NoRecordWritesNothing)
{
    ZorvaneInterface::SaveParam(nullptr);
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_F(SaveParam, ThePackagedFileIsNeverWritten)
{
    WriteBytes(kPackagedFile, "[TradeConfig]\r\nbOneOpen=1\r\n");
    TOParam record = {};
    ZorvaneInterface::SaveParam(&record);
    EXPECT_EQ("[TradeConfig]\r\nbOneOpen=1\r\n", ReadBytes(kPackagedFile));
}
