#include "core/StopDefaults.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{
// A row that came from any line, and its line read again, must be the same row from then on.
void CheckLine(StopProduct product, const std::string& text)
{
    const StopProductFacts& facts = FactsOf(product);
    const StopDefaultValues row = ParseStopLine(product, text.c_str());
    const std::string line = FormatStopLine(product, row);
    if (line.size() >= facts.lineCapacity)
        abort();
    const std::string again = FormatStopLine(product, ParseStopLine(product, line.c_str()));
    const std::string builtIn = FormatStopLine(product, facts.builtIn);
    if (again != line && again != builtIn)
        abort();
}

void CheckLookup(const uint8_t* data, size_t size)
{
    if (size < 24)
        return;
    std::vector<char> record(data, data + 24);
    std::vector<FutureDefault> rows = {MakeFutureRow(record.data())};
    const std::string rest(data + 24, data + size);
    FindFutureRow(rows, rest.c_str(), rest.c_str());
    const bool hasDigit = strpbrk(rows[0].name, "0123456789") != nullptr;
    if (!hasDigit && !FindFutureRow(rows, rows[0].exchange, rows[0].name))
        abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (StopProduct product : {StopProduct::Future, StopProduct::Stock, StopProduct::Options})
        CheckLine(product, text);
    CheckLookup(data, size);
    return 0;
}
