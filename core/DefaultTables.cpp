#include "core/DefaultTables.h"

#include "core/Directory.h"
#include "iniwarden/IniWarden.h"

#include <windows.h>

std::vector<FutureDefault> FutureDefaults;
std::vector<ProductDefault> StockDefaults;
std::vector<ProductDefault> OptionsDefaults;

namespace
{
// The road of futures and stock. The options go through IniWarden.
StopDefaultValues ReadProfileLine(StopProduct product, const char* section, const char* key)
{
    char line[512];
    GetPrivateProfileStringA(section, key, "", line, sizeof(line), FactsOf(product).file);
    return ParseStopLine(product, line);
}

void WriteProfileLine(StopProduct product, const char* section, const char* key,
                      const StopDefaultValues& values)
{
    CreateDirectoryPath(".\\cfg\\Trade\\");
    WritePrivateProfileStringA(section, key, FormatStopLine(product, values).c_str(),
                               FactsOf(product).file);
}
} // namespace

void LoadFutureDefaults(const CPtkContract* contracts, int count)
{
    FutureDefaults.clear();
    if (!contracts)
        return;
    const char* record = reinterpret_cast<const char*>(contracts);
    for (int i = 0; i < count; ++i, record += kContractStride)
    {
        FutureDefault row = MakeFutureRow(record);
        static_cast<StopDefaultValues&>(row) =
            ReadProfileLine(StopProduct::Future, row.exchange, row.name);
        FutureDefaults.push_back(row);
    }
}

void LoadStockDefaults()
{
    StockDefaults.clear();
    const char* section = FactsOf(StopProduct::Stock).section;
    for (int id = 0; id < kStockRows; ++id)
        StockDefaults.push_back(
            {{id}, ReadProfileLine(StopProduct::Stock, section, StopDefaultKey(id))});
}

void LoadOptionsDefaults(bool fromPackage)
{
    const StopProductFacts& facts = FactsOf(StopProduct::Options);
    const char* key = StopDefaultKey(kOptionsKeyNumber);
    const std::string line =
        fromPackage ? IniWarden::ReadSysConfigWithDefault(facts.section, key, "", facts.file)
                    : IniWarden::ReadConfigWithDefault(facts.section, key, "", facts.file);
    OptionsDefaults.assign(1, {{0}, ParseStopLine(StopProduct::Options, line.c_str())});
}

void WriteFutureDefault(const FutureDefault& row)
{
    WriteProfileLine(StopProduct::Future, row.exchange, row.name, row);
}

void WriteStockDefault(const ProductDefault& row)
{
    const char* key = StopDefaultKey(row.id);
    if (key)
        WriteProfileLine(StopProduct::Stock, FactsOf(StopProduct::Stock).section, key, row);
}

void WriteOptionsDefault(const ProductDefault& row)
{
    const StopProductFacts& facts = FactsOf(StopProduct::Options);
    IniWarden::WriteConfig(facts.section, StopDefaultKey(kOptionsKeyNumber),
                           FormatStopLine(StopProduct::Options, row), facts.file);
}

int GetFutureDefault(const char* exchange, const char* contract, int* defaultVolume,
                     int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                     double* floatRange, int* dailyMax)
{
    const FutureDefault* row = FindFutureRow(FutureDefaults, exchange, contract);
    if (!row)
        return 0;
    TellStopValues(StopProduct::Future, *row, defaultVolume, tickVolume, stopProfit, maxFallback,
                   stopLoss, floatRange, dailyMax);
    return 1;
}

void SetFutureDefault(const char* exchange, const char* contract, int* defaultVolume,
                      int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                      double* floatRange)
{
    FutureDefault* row = FindFutureRow(FutureDefaults, exchange, contract);
    if (!row)
        return;
    TakeStopValues(StopProduct::Future, *row, defaultVolume, tickVolume, stopProfit, maxFallback,
                   stopLoss, floatRange);
    WriteFutureDefault(*row);
}

int GetStockDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                    double* maxFallback, double* stopLoss, double* floatRange, int* dailyMax)
{
    const ProductDefault* row = FindProductRow(StockDefaults, id);
    if (!row)
        return 0;
    // Alone of all outputs this one is written without a look at the pointer. This is meant.
    *defaultVolume = row->flag == 1 ? row->defaultVolume : 0;
    TellStopValues(StopProduct::Stock, *row, nullptr, tickVolume, stopProfit, maxFallback, stopLoss,
                   floatRange, dailyMax);
    return 1;
}

void SetStockDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                     double* maxFallback, double* stopLoss, double* floatRange)
{
    ProductDefault* row = FindProductRow(StockDefaults, id);
    if (!row)
        return;
    TakeStopValues(StopProduct::Stock, *row, defaultVolume, tickVolume, stopProfit, maxFallback,
                   stopLoss, floatRange);
    WriteStockDefault(*row);
}

int GetOptionsDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                      double* maxFallback, double* stopLoss, double* floatRange, int* dailyMax)
{
    const ProductDefault* row = FindProductRow(OptionsDefaults, id);
    if (!row)
        return 0;
    TellStopValues(StopProduct::Options, *row, defaultVolume, tickVolume, stopProfit, maxFallback,
                   stopLoss, floatRange, dailyMax);
    return 1;
}
