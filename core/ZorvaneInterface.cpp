#include <zorvane/ZorvaneInterface.h>

#include "core/DefaultTables.h"
#include "core/HostHooks.h"
#include "core/WorkingParam.h"
#include "core/ZorvaneApp.h"
#include "frame/MainDlg.h"
#include "hotkeys/HotKeyStores.h"

#include <afxcmn.h>

ZorvaneInterface::ZorvaneInterface() = default;

ZorvaneInterface::ZorvaneInterface(const ZorvaneInterface&) = default;

ZorvaneInterface& ZorvaneInterface::operator=(const ZorvaneInterface&)
{
    return *this;
}

ZorvaneInterface::~ZorvaneInterface() = default;

int ZorvaneInterface::DoModal(TOParam* param, TParamSetPage page)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    // An open window has the stores and the relay of clicks to itself.
    const bool isOpen = !gHotKeyStores.empty();
    if (!param || isOpen)
        return -1;

    // The host's record is only read. What the user confirms reaches the host through the file.
    CopyToWorkingParam(*param);
    AfxInitRichEdit2();
    CreateHotKeyStores();
    CMainDlg window(page);
    theApp.SetOpenWindow(&window);
    const INT_PTR result = window.DoModal();
    theApp.SetOpenWindow(nullptr);
    DestroyHotKeyStores();
    return static_cast<int>(result);
}

void ZorvaneInterface::SaveParam(TOParam* param)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!param)
        return;
    CopyToWorkingParam(*param);
    CMainDlg(ParamPagePublic).SaveAll();
}

void ZorvaneInterface::Init(ZorvaneHostCallback callback)
{
    SetHostCallback(callback);
}

void ZorvaneInterface::LoadFuture(CPtkContract* contracts, int count)
{
    LoadFutureDefaults(contracts, count);
}

// Nothing to do: the securities table is loaded with the module. Hosts call it all the same.
void ZorvaneInterface::LoadStock() {}

void ZorvaneInterface::SetSpecialUI(SpecialUI key, bool on)
{
    ::SetSpecialUI(key, on);
}

int ZorvaneInterface::GetStopProfitLossDefSetingFuture(const char* exchange, const char* contract,
                                                       int* defaultVolume, int* tickVolume,
                                                       double* stopProfit, double* maxFallback,
                                                       double* stopLoss, double* floatRange,
                                                       int* dailyMax)
{
    return GetFutureDefault(exchange, contract, defaultVolume, tickVolume, stopProfit, maxFallback,
                            stopLoss, floatRange, dailyMax);
}

void ZorvaneInterface::SetStopProfitLossDefSetingFuture(const char* exchange, const char* contract,
                                                        int* defaultVolume, int* tickVolume,
                                                        double* stopProfit, double* maxFallback,
                                                        double* stopLoss, double* floatRange)
{
    SetFutureDefault(exchange, contract, defaultVolume, tickVolume, stopProfit, maxFallback,
                     stopLoss, floatRange);
}

int ZorvaneInterface::GetStopProfitLossDefSetingStock(int id, int* defaultVolume, int* tickVolume,
                                                      double* stopProfit, double* maxFallback,
                                                      double* stopLoss, double* floatRange,
                                                      int* dailyMax)
{
    return GetStockDefault(id, defaultVolume, tickVolume, stopProfit, maxFallback, stopLoss,
                           floatRange, dailyMax);
}

void ZorvaneInterface::SetStopProfitLossDefSetingStock(int id, int* defaultVolume, int* tickVolume,
                                                       double* stopProfit, double* maxFallback,
                                                       double* stopLoss, double* floatRange)
{
    SetStockDefault(id, defaultVolume, tickVolume, stopProfit, maxFallback, stopLoss, floatRange);
}

int ZorvaneInterface::GetStopProfitLossDefSetingOptions(int id, int* defaultVolume, int* tickVolume,
                                                        double* stopProfit, double* maxFallback,
                                                        double* stopLoss, double* floatRange,
                                                        int* dailyMax)
{
    return GetOptionsDefault(id, defaultVolume, tickVolume, stopProfit, maxFallback, stopLoss,
                             floatRange, dailyMax);
}
