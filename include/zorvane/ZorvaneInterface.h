// The whole outside of Zorvane.dll. A host includes this header and links the import library of its
// toolchain; it needs no framework. In which order and on which thread to call is told in
// docs/for-programmers.md.
#pragma once

#include <zorvane/TOParam.h>

#if defined(ZORVANE_BUILDING)
#define ZORVANE_API __declspec(dllexport)
#elif defined(_WIN32)
#define ZORVANE_API __declspec(dllimport)
#else
#define ZORVANE_API
#endif

// Hosts may be compiled with another default; GCC would write it into the name of Init.
#if defined(_MSC_VER)
#define ZORVANE_CALL __cdecl
#else
#define ZORVANE_CALL
#endif

/// A contract of the host. The module reads the NUL-terminated exchange code at its start and the
/// NUL-terminated product code 12 bytes in, and steps 416 bytes from one to the next.
class CPtkContract;

/// What the module asks the host through its callback.
enum ZorvaneHostRequest
{
    /// Do condition orders run in the cloud? Both arguments 0; non-zero refuses the switch from
    /// cloud to local condition orders.
    ZorvaneHostCloudOrdersRunning = 2054,
    /// Where is the client's HotKey.ini? The second argument is the address of a buffer of 260 bytes
    /// that receives the folder; the third is 0.
    ZorvaneHostHotKeyFolder = 4100,
};

/// The host's answer to a request. Called on the user-interface thread while the window is open.
typedef unsigned long(ZORVANE_CALL* ZorvaneHostCallback)(unsigned int request,
                                                         unsigned int argument, long reserved);

/// The module's operations. All are static; an instance has no data. An instance that was made by
/// `new` is freed in the process heap when it is deleted through a virtual destructor call.
class ZORVANE_API ZorvaneInterface
{
public:
    ZorvaneInterface();
    ZorvaneInterface(const ZorvaneInterface& other);
    ZorvaneInterface& operator=(const ZorvaneInterface& other);
    virtual ~ZorvaneInterface();

    /// Opens the settings window and waits for its end. The record is read, never written: after
    /// IDOK the host reads the package file again.
    /// @param param the host's record, 811 bytes, every field filled: confirming writes them all, also
    ///              those of pages that were not opened
    /// @param page  the page to open; one that does not exist opens the first
    /// @return 1 (IDOK) when the user confirmed, 2 (IDCANCEL) when not, -1 for a null record, while a
    ///         window is open, and when the window could not be made. A key that could not be written
    ///         keeps its old text in the file
    static int ZORVANE_CALL DoModal(TOParam* param, TParamSetPage page);

    /// Writes the whole record to the package file: every field must be filled. A null record writes
    /// nothing. Needs no window, no skin and no callback.
    static void ZORVANE_CALL SaveParam(TOParam* param);

    /// Stores the host's callback and replaces an earlier one. The first request to a null one faults.
    static void ZORVANE_CALL Init(ZorvaneHostCallback callback);

    /// Rebuilds the futures defaults: one row a contract, from Cfg\Trade\StopProfitLoss.ini or built
    /// in. Null contracts or a count below 1 empty the table. The contracts are not kept.
    static void ZORVANE_CALL LoadFuture(CPtkContract* contracts, int count);

    /// Does nothing: the securities defaults are loaded with the module.
    static void ZORVANE_CALL LoadStock();

    /// Turns a feature on or off for the life of the module.
    static void ZORVANE_CALL SetSpecialUI(SpecialUI key, bool on);

    /// The defaults of a futures contract: its row is the one with this exchange and with the
    /// product code that `contract` has before its first digit, both compared exactly; null has no
    /// row. Any output may be null. Values are plain numbers.
    /// @return 1 when there is such a row, else 0, and the outputs stay
    static int ZORVANE_CALL GetStopProfitLossDefSetingFuture(const char* exchange,
                                                             const char* contract,
                                                             int* defaultVolume, int* tickVolume,
                                                             double* stopProfit,
                                                             double* maxFallback, double* stopLoss,
                                                             double* floatRange, int* dailyMax);

    /// Changes the fields of a futures row whose inputs are not null and writes its line to the file.
    /// Does nothing when there is no such row.
    static void ZORVANE_CALL SetStopProfitLossDefSetingFuture(
        const char* exchange, const char* contract, int* defaultVolume, int* tickVolume,
        double* stopProfit, double* maxFallback, double* stopLoss, double* floatRange);

    /// The defaults of a class of securities: 0 shares, 1 funds, 2 bonds. The four values are
    /// percent. Outputs may be null, except `defaultVolume`: it is always written, with 0 unless the
    /// row's flag is 1.
    /// @return 1 when there is such a row, else 0, and the outputs stay
    static int ZORVANE_CALL GetStopProfitLossDefSetingStock(int id, int* defaultVolume,
                                                            int* tickVolume, double* stopProfit,
                                                            double* maxFallback, double* stopLoss,
                                                            double* floatRange, int* dailyMax);

    /// Changes the fields of a securities row whose inputs are not null, percent again, and writes
    /// its line to the file. Does nothing when there is no such row.
    static void ZORVANE_CALL SetStopProfitLossDefSetingStock(int id, int* defaultVolume,
                                                             int* tickVolume, double* stopProfit,
                                                             double* maxFallback, double* stopLoss,
                                                             double* floatRange);

    /// The defaults of options, id 0. The four values are percent. Any output may be null.
    /// @return 1 when there is such a row, else 0, and the outputs stay
    static int ZORVANE_CALL GetStopProfitLossDefSetingOptions(int id, int* defaultVolume,
                                                              int* tickVolume, double* stopProfit,
                                                              double* maxFallback, double* stopLoss,
                                                              double* floatRange, int* dailyMax);
};
