// Default volumes and stop-profit and stop-loss settings of a product: the rows, how a row stands as
// a line of the file, and how its values pass to the host. Free of windows.h.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

enum class StopProduct
{
    Future,
    Stock,
    Options,
};

/// What all products have in common. The four settings are plain numbers for futures and fractions
/// for stock and options (0.1 is 10%).
struct StopDefaultValues
{
    int defaultVolume;     ///< default order volume
    int tickVolume;        ///< second volume, "最小变动量"
    double reservedProfit; ///< kept in the line, exposed nowhere
    double stopProfit;
    double maxFallback;  ///< greatest fallback
    double reservedLoss; ///< kept in the line, exposed nowhere
    double stopLoss;
    double floatRange; ///< floating range
    int dailyMax;      ///< daily maximum of indicator-strategy orders
    int flag;          ///< stock only: the getter tells `defaultVolume` only when this is 1
};

struct ContractCode
{
    char exchange[12]; ///< exchange code, also the section of the file; ends with a NUL
    char name[12];     ///< product code, also the key; ends with a NUL
};

struct FutureDefault : ContractCode, StopDefaultValues
{
};

struct ProductId
{
    int id; ///< row number: 0 to 2 for stock, 0 for options
};

/// Row of a class of security, or of the options.
struct ProductDefault : ProductId, StopDefaultValues
{
};

/// In what the products differ.
struct StopProductFacts
{
    const char* file;
    const char* section;    ///< null for futures, whose section is the exchange
    const char* lineFormat; ///< for printf, of all values in their order
    size_t lineCapacity;    ///< a line is cut to one byte less than this
    bool readsDailyMax;     ///< the line's ninth field is taken
    bool readsFlag;         ///< the ninth field is read over, the tenth is `flag`
    double exposedFactor;   ///< the host sees the four settings times this
    StopDefaultValues builtIn;
    StopDefaultValues restored; ///< see RestoreStopValues
};

const StopProductFacts& FactsOf(StopProduct product);

/// Key of a row of stock or options in the file: the classes of security 0 to 2, 3 for options. Null
/// for any other number.
const char* StopDefaultKey(int number);

const int kStockRows = 3;
const int kOptionsKeyNumber = 3;

/// The row's line as it goes to the file.
std::string FormatStopLine(StopProduct product, const StopDefaultValues& values);

/// Reads a line of the file. A missing field, or one of 31 bytes or more, makes the whole line bad,
/// and the built-in defaults are returned; so does an empty line. Only the tenth field of stock may be
/// missing; a ninth of the options is not looked at.
StopDefaultValues ParseStopLine(StopProduct product, const char* line);

/// Gives a row the values of "恢复默认". Both reserved numbers stay, and so does the daily maximum
/// where the line's ninth field is not taken.
void RestoreStopValues(StopProduct product, StopDefaultValues& values);

/// Distance of the host's contract records in bytes.
const size_t kContractStride = 416;

/// A row of built-in defaults for one contract record of the host: exchange code at its start,
/// product code 12 bytes in. Of a code that is not ended within its 12 bytes the first 11 count.
FutureDefault MakeFutureRow(const char* contractRecord);

/// The first row of that exchange whose product code is what `contract` has before its first digit;
/// codes are compared exactly. Null when there is none or an argument is null.
FutureDefault* FindFutureRow(std::vector<FutureDefault>& rows, const char* exchange,
                             const char* contract);

/// The row of that id, or null.
ProductDefault* FindProductRow(std::vector<ProductDefault>& rows, int id);

/// Hands values to the host, in its units. A null pointer skips the value.
void TellStopValues(StopProduct product, const StopDefaultValues& values, int* defaultVolume,
                    int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                    double* floatRange, int* dailyMax);

/// Takes values from the host, in its units. A null pointer leaves the value as it is.
void TakeStopValues(StopProduct product, StopDefaultValues& values, const int* defaultVolume,
                    const int* tickVolume, const double* stopProfit, const double* maxFallback,
                    const double* stopLoss, const double* floatRange);
