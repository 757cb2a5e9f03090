// What loading the futures defaults costs: time a contract for growing lists, and as a ratio to the
// plain profile calls for the same keys, which the loading can't do without. In its own folder of
// the temporary files.
#include "bench/Timing.h"
#include "core/DefaultTables.h"

#include <cfloat>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <windows.h>

namespace
{
const char kFile[] = ".\\cfg\\Trade\\StopProfitLoss.ini";
const char* const kExchanges[] = {"SHFE", "DCE", "CZCE", "CFFEX", "INE", "GFEX"};
const int kSizes[] = {100, 1000, 10000};
const int kProducts = 100; // rows of the file in the everyday case
const int kLeastRounds = 5;
const int kLeastReads = 20000;

std::string ExchangeOf(int contract)
{
    return kExchanges[contract % std::size(kExchanges)];
}

// Letters only, as products are named: "a" to "zzz".
std::string ProductOf(int contract)
{
    std::string name;
    for (int rest = contract; rest >= 0; rest = rest / 26 - 1)
        name.insert(name.begin(), static_cast<char>('a' + rest % 26));
    return name;
}

std::vector<char> MakeContracts(int count)
{
    std::vector<char> records(count * kContractStride, '\0');
    for (int i = 0; i < count; ++i)
    {
        char* record = &records[i * kContractStride];
        strcpy(record, ExchangeOf(i).c_str());
        strcpy(record + 12, ProductOf(i).c_str());
    }
    return records;
}

void WriteFileOf(int lines)
{
    std::filesystem::create_directories("cfg\\Trade");
    std::ofstream file(kFile, std::ios::binary);
    const std::string line =
        FormatStopLine(StopProduct::Future, FactsOf(StopProduct::Future).builtIn);
    for (size_t exchange = 0; exchange < std::size(kExchanges); ++exchange)
    {
        file << "[" << kExchanges[exchange] << "]\r\n";
        for (int i = static_cast<int>(exchange); i < lines; i += std::size(kExchanges))
            file << ProductOf(i) << "=" << line << "\r\n";
    }
}

void ReadPlainly(const std::vector<char>& records, int count)
{
    char line[512];
    for (int i = 0; i < count; ++i)
    {
        const char* record = &records[i * kContractStride];
        GetPrivateProfileStringA(record, record + 12, "", line, sizeof(line), kFile);
    }
}

void PrintRow(const char* file, int count, int lines)
{
    WriteFileOf(lines);
    const std::vector<char> records = MakeContracts(count);
    const auto* contracts = reinterpret_cast<const CPtkContract*>(records.data());
    // The fastest of many rounds, taken in turns: the machine may have other work to do.
    double loading = DBL_MAX;
    double plain = DBL_MAX;
    for (int round = 0; round < std::max(kLeastRounds, kLeastReads / count); ++round)
    {
        loading = std::min(loading, Milliseconds([&] { LoadFutureDefaults(contracts, count); }));
        plain = std::min(plain, Milliseconds([&] { ReadPlainly(records, count); }));
    }
    Report("load the defaults of " + std::to_string(count) + " contracts, " + file, loading,
           "profile functions", plain);
}
} // namespace

int main()
{
    const auto folder = std::filesystem::temp_directory_path() /
                        ("load_future_bench" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);

    for (int count : kSizes)
        PrintRow("a line a product", count, kProducts);
    for (int count : kSizes)
        PrintRow("a line a contract", count, count);

    std::filesystem::current_path(folder.parent_path());
    std::filesystem::remove_all(folder);
    return 0;
}
