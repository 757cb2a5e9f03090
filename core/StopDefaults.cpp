#include "core/StopDefaults.h"

#include "core/Text.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace
{
const size_t kProductCodeOffset = 12;
const size_t kTokenCapacity = 31;

const StopProductFacts kFacts[] = {
    {".\\cfg\\Trade\\StopProfitLoss.ini",
     nullptr,
     "%d,%d,%.03lf,%.6lf,%.6lf,%.03lf,%.6lf,%.6lf,%d",
     512,
     true,
     false,
     1.0,
     {1, 1, 0, 20.0, 4.0, 0, 20.0, 4.0, 10, 0},
     {1, 1, 0, 20.0, 4.0, 0, 20.0, 4.0, 10, 0}},
    {".\\cfg\\Trade\\StopProfitLoss.ini",
     "证券",
     "%d,%d,%.03lf,%.6lf,%.6lf,%.03lf,%.6lf,%.6lf,%d,%d",
     256,
     // The daily maximum is written and never read back: it lives for one run only. This is meant.
     false,
     true,
     100.0,
     {0, 0, 0, 0.15, 0.05, 0, 0.15, 0.05, 0, 0},
     // Restored values are others than the built-in ones here and below. This is meant.
     {100, 100, 0, 0.1, 0.01, 0, 0.1, 0.01, 0, 0}},
    {"Cfg\\Trade\\StopProfitLoss.ini",
     "期权",
     // Three decimals, where the others have six. This is meant.
     "%d,%d,%.03lf,%.3lf,%.3lf,%.03lf,%.3lf,%.3lf,%d",
     256,
     false,
     false,
     100.0,
     {1, 1, 0, 0.2, 0.1, 0, 0.2, 0.1, 0, 0},
     {1, 1, 0, 0.1, 0.01, 0, 0.1, 0.01, 0, 0}},
};

const char* const kKeys[] = {"股票", "基金", "债券", "个股期权"};

// Reads the fields of a line one after the other. A field that can't be read makes the line bad, and
// it and all later ones give 0.
class LineReader
{
public:
    explicit LineReader(const char* line)
        : rest(line)
    {
    }

    int Integer()
    {
        const long value = strtol(Next(), nullptr, 10);
        return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
    }

    double Number() { return strtod(Next(), nullptr); }

    bool AtEnd() const { return !rest || *rest == '\0'; }

    bool IsBad() const { return !rest; }

private:
    const char* Next()
    {
        rest = ReadCsvToken(rest, token, sizeof(token));
        return token;
    }

    const char* rest;
    char token[kTokenCapacity] = {};
};

int ReadFlag(LineReader& line)
{
    line.Integer();
    return line.AtEnd() ? 0 : line.Integer();
}

void CopyCode(char (&code)[12], const char* from)
{
    memcpy(code, from, sizeof(code) - 1);
    code[sizeof(code) - 1] = '\0';
    const size_t length = strlen(code);
    memset(code + length, 0, sizeof(code) - length);
}

template <class Value>
void Tell(Value* out, Value value)
{
    if (out)
        *out = value;
}

template <class Value>
void Take(Value& field, const Value* in, Value factor = 1)
{
    if (in)
        field = *in / factor;
}
} // namespace

const StopProductFacts& FactsOf(StopProduct product)
{
    return kFacts[static_cast<int>(product)];
}

const char* StopDefaultKey(int number)
{
    return number >= 0 && number <= kOptionsKeyNumber ? kKeys[number] : nullptr;
}

std::string FormatStopLine(StopProduct product, const StopDefaultValues& values)
{
    const StopProductFacts& facts = FactsOf(product);
    std::string line(facts.lineCapacity, '\0');
    PrintTo(line.data(), line.size(), facts.lineFormat, values.defaultVolume, values.tickVolume,
            values.reservedProfit, values.stopProfit, values.maxFallback, values.reservedLoss,
            values.stopLoss, values.floatRange, values.dailyMax, values.flag);
    line.resize(strlen(line.c_str()));
    return line;
}

StopDefaultValues ParseStopLine(StopProduct product, const char* text)
{
    const StopProductFacts& facts = FactsOf(product);
    LineReader line(text);
    StopDefaultValues values = {};
    values.defaultVolume = line.Integer();
    values.tickVolume = line.Integer();
    values.reservedProfit = line.Number();
    values.stopProfit = line.Number();
    values.maxFallback = line.Number();
    values.reservedLoss = line.Number();
    values.stopLoss = line.Number();
    values.floatRange = line.Number();
    if (facts.readsDailyMax)
        values.dailyMax = line.Integer();
    if (facts.readsFlag)
        values.flag = ReadFlag(line);
    return line.IsBad() ? facts.builtIn : values;
}

void RestoreStopValues(StopProduct product, StopDefaultValues& values)
{
    const StopProductFacts& facts = FactsOf(product);
    StopDefaultValues restored = facts.restored;
    restored.reservedProfit = values.reservedProfit;
    restored.reservedLoss = values.reservedLoss;
    if (!facts.readsDailyMax)
        restored.dailyMax = values.dailyMax;
    values = restored;
}

FutureDefault MakeFutureRow(const char* contractRecord)
{
    FutureDefault row = {};
    CopyCode(row.exchange, contractRecord);
    CopyCode(row.name, contractRecord + kProductCodeOffset);
    static_cast<StopDefaultValues&>(row) = FactsOf(StopProduct::Future).builtIn;
    return row;
}

FutureDefault* FindFutureRow(std::vector<FutureDefault>& rows, const char* exchange,
                             const char* contract)
{
    if (!exchange || !contract)
        return nullptr;
    const std::string_view product(contract, strcspn(contract, "0123456789"));
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const FutureDefault& candidate) {
                                      return strcmp(candidate.exchange, exchange) == 0 &&
                                             candidate.name == product;
                                  });
    return row == rows.end() ? nullptr : &*row;
}

ProductDefault* FindProductRow(std::vector<ProductDefault>& rows, int id)
{
    const auto row =
        std::find_if(rows.begin(), rows.end(),
                     [id](const ProductDefault& candidate) { return candidate.id == id; });
    return row == rows.end() ? nullptr : &*row;
}

void TellStopValues(StopProduct product, const StopDefaultValues& values, int* defaultVolume,
                    int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                    double* floatRange, int* dailyMax)
{
    const double factor = FactsOf(product).exposedFactor;
    Tell(defaultVolume, values.defaultVolume);
    Tell(tickVolume, values.tickVolume);
    Tell(stopProfit, values.stopProfit * factor);
    Tell(maxFallback, values.maxFallback * factor);
    Tell(stopLoss, values.stopLoss * factor);
    Tell(floatRange, values.floatRange * factor);
    Tell(dailyMax, values.dailyMax);
}

void TakeStopValues(StopProduct product, StopDefaultValues& values, const int* defaultVolume,
                    const int* tickVolume, const double* stopProfit, const double* maxFallback,
                    const double* stopLoss, const double* floatRange)
{
    const double factor = FactsOf(product).exposedFactor;
    Take(values.defaultVolume, defaultVolume);
    Take(values.tickVolume, tickVolume);
    Take(values.stopProfit, stopProfit, factor);
    Take(values.maxFallback, maxFallback, factor);
    Take(values.stopLoss, stopLoss, factor);
    Take(values.floatRange, floatRange, factor);
}
