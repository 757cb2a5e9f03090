// The default tables of the products, filled from the file and written to it row by row, and the
// host's access to them. Used on the host's user-interface thread only. Windows only.
#pragma once

#include "core/StopDefaults.h"

#include <vector>

/// The host's contract record: 416 bytes, of which the first 24 are read here.
class CPtkContract;

/// One row a futures product, in the order of the host's contracts; empty until the host loads them.
extern std::vector<FutureDefault> FutureDefaults;

/// Shares, funds and bonds, ids 0 to 2.
extern std::vector<ProductDefault> StockDefaults;

/// One row, id 0.
extern std::vector<ProductDefault> OptionsDefaults;

/// Rebuilds `FutureDefaults`: a row for each of the `count` contract records, which lie 416 bytes
/// apart. A count below 1 leaves the table empty.
void LoadFutureDefaults(const CPtkContract* contracts, int count);

/// Rebuilds `StockDefaults`. The daily maximum is 0 after every load, whatever the file says.
void LoadStockDefaults();

/// Rebuilds `OptionsDefaults` from the user's file, or from the packaged one.
void LoadOptionsDefaults(bool fromPackage);

/// Write one row to the user's file. A failure goes unnoticed.
void WriteFutureDefault(const FutureDefault& row);
void WriteOptionsDefault(const ProductDefault& row);

/// Does nothing for an id outside 0 to 3.
void WriteStockDefault(const ProductDefault& row);

/// Tells the row of a contract, by exchange code and contract code such as "ag2412".
/// A null output is skipped.
/// @return 1, or 0 when there is no such row, which leaves the outputs alone
int GetFutureDefault(const char* exchange, const char* contract, int* defaultVolume,
                     int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                     double* floatRange, int* dailyMax);

/// Changes the row of a contract and writes it, even when every input is null. A null input leaves
/// its value. Without such a row nothing happens.
void SetFutureDefault(const char* exchange, const char* contract, int* defaultVolume,
                      int* tickVolume, double* stopProfit, double* maxFallback, double* stopLoss,
                      double* floatRange);

/// Tells the row of a class of security, the four settings in percent. A null output is skipped,
/// except `defaultVolume`, which must not be null: it gets 0 unless the row's flag is 1.
/// @return 1, or 0 when there is no such row, which leaves the outputs alone
int GetStockDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                    double* maxFallback, double* stopLoss, double* floatRange, int* dailyMax);

/// As SetFutureDefault, the four settings in percent.
void SetStockDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                     double* maxFallback, double* stopLoss, double* floatRange);

/// Tells the options row, the four settings in percent. A null output is skipped.
/// @return 1, or 0 when there is no such row, which leaves the outputs alone
int GetOptionsDefault(int id, int* defaultVolume, int* tickVolume, double* stopProfit,
                      double* maxFallback, double* stopLoss, double* floatRange, int* dailyMax);
