#include "tests/window/Records.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace
{

int SampleNumber(const ParamKey& key, int place, bool first)
{
    const int number = (first ? 100 : 500) + place;
    switch (key.key[0])
    {
    case 'b':
        return (first ? place : place / 2) % 2;
    case 'c':
        return (first ? place : place / 3) % 3;
    default:
        return key.form == TextForm::Seconds || key.form == TextForm::GuardedSeconds ? 10 * number
                                                                                     : number;
    }
}

/// The lines with their ends.
std::vector<std::string> LinesOf(const std::string& file)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < file.size();)
    {
        const size_t end = std::min(file.find('\n', start), file.size() - 1) + 1;
        lines.push_back(file.substr(start, end - start));
        start = end;
    }
    return lines;
}

} // namespace

TOParam PatternRecord()
{
    TOParam record;
    auto* bytes = reinterpret_cast<unsigned char*>(&record);
    for (size_t i = 0; i < sizeof(record); ++i)
        bytes[i] = static_cast<unsigned char>(i * 7 + 1);
    // Floats must stay numbers.
    for (const ParamKey& key : ParamKeys())
        if (key.field.type == FieldType::Float)
            SetFloat(record, key.field, static_cast<float>(key.field.offset) + 0.5f);
    return record;
}

const TOParam* FindWorkingRecord(const TOParam& record)
{
    const auto* const base = reinterpret_cast<const char*>(GetModuleHandleA("Zorvane.dll"));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_SECTION_HEADER* const sections = IMAGE_FIRST_SECTION(nt);
    for (int i = 0; i < nt->FileHeader.NumberOfSections; ++i)
    {
        if (!(sections[i].Characteristics & IMAGE_SCN_MEM_WRITE))
            continue;
        const char* const start = base + sections[i].VirtualAddress;
        const char* const end = start + sections[i].Misc.VirtualSize;
        const auto* const run = reinterpret_cast<const char*>(record.reserved3);
        const char* const found = std::search(start, end, run, run + sizeof(record.reserved3));
        if (found != end)
            return reinterpret_cast<const TOParam*>(found - offsetof(TOParam, reserved3));
    }
    return nullptr;
}

TOParam SampleRecord(Sample sample)
{
    const bool first = sample == Sample::First;
    TOParam record = {};
    int place = 0;
    for (const ParamKey& key : ParamKeys())
    {
        SetInt(record, key.field, SampleNumber(key, place, first));
        SetFloat(record, key.field, static_cast<float>(place) + (first ? 0.25f : 0.5f));
        ++place;
    }
    // Where only some values are any.
    record.cFSpeculationHedge = record.cOSpeculationHedge = first ? '3' : '1';
    record.cFCloseTodayPriority = first;
    record.enumListFontType = first;
    record.iXZDLimit = first;
    record.iPriceOut = first ? 20 : 30;
    record.uPosExecPriceRank = first;
    record.uMarginBuyStrategy = first;
    record.uUseCloudMode = 0;
    // What a save sets by itself.
    record.bInsertOrderNotice = record.bStopProfitLossNotice = record.bEarlyWarningNotice = 0;
    record.iFStopContinuousTimesLoss = record.iFStopContinuousTimesProfit = 1;
    record.iOStopContinuousTimesLoss = record.iOStopContinuousTimesProfit = 1;
    record.SplitOrder[2].cSplitOrderType = record.SplitOrder[3].cSplitOrderType = first ? 1 : 2;
    record.SplitOrder[1] = record.SplitOrder[3];
    return record;
}

const ParamKey& KeyNamed(const std::string& key)
{
    for (const ParamKey& row : ParamKeys())
        if (row.key == key)
            return row;
    throw std::runtime_error("no key " + key);
}

std::string FileOf(const TOParam& record, bool withLimitPrice)
{
    std::string text = "[TradeConfig]\r\n";
    for (const StoredText& stored : StoredTexts(record, withLimitPrice))
        text += stored.key + "=" + stored.text + "\r\n";
    return text;
}

std::string WithoutPageKeys(const std::string& file)
{
    std::string rest;
    for (const std::string& line : LinesOf(file))
    {
        const std::string key = line.substr(0, line.find('='));
        const bool isPageKey =
            std::any_of(PageOwnedKeys().begin(), PageOwnedKeys().end(),
                        [&key](const PageOwnedKey& owned) { return owned.key == key; });
        if (!isPageKey)
            rest += line;
    }
    return rest;
}

std::string Differences(const std::string& expected, const std::string& actual)
{
    std::vector<std::string> left = LinesOf(expected), right = LinesOf(actual);
    left.resize(std::max(left.size(), right.size()), "<none>");
    right.resize(left.size(), "<none>");
    std::string differences;
    for (size_t i = 0; i < left.size(); ++i)
        if (left[i] != right[i])
            differences += left[i] + " | " + right[i];
    return differences;
}
