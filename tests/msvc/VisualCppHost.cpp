// A host of the Visual C++ ABI, without any runtime: built by clang for that ABI, linked by the
// decorated names against Zorvane.lib. Every call is made with the stack aligned to 4 bytes only, as
// that compiler leaves it.
#include <zorvane/ZorvaneInterface.h>

extern "C"
{
    typedef void* Handle;

    __declspec(dllimport) Handle __stdcall GetStdHandle(unsigned long which);
    __declspec(dllimport) int __stdcall WriteFile(Handle file, const void* bytes,
                                                  unsigned long count, unsigned long* written,
                                                  void* overlapped);
    __declspec(dllimport) void __stdcall ExitProcess(unsigned int code);
    __declspec(dllimport) Handle __stdcall GetProcessHeap();
    __declspec(dllimport) void* __stdcall HeapAlloc(Handle heap, unsigned long flags,
                                                    unsigned long bytes);
    __declspec(dllimport) int __stdcall HeapFree(Handle heap, unsigned long flags, void* block);
    __declspec(dllimport) int __stdcall HeapValidate(Handle heap, unsigned long flags,
                                                     const void* block);
    __declspec(dllimport) int __stdcall DeleteFileA(const char* path);
    __declspec(dllimport) unsigned int __stdcall GetPrivateProfileIntA(const char* section,
                                                                       const char* key,
                                                                       int defaultValue,
                                                                       const char* file);
    __declspec(dllimport) Handle __stdcall FindWindowA(const char* className, const char* title);
    __declspec(dllimport) int __stdcall PostMessageA(Handle window, unsigned int message,
                                                     unsigned int wParam, long lParam);
    typedef void(__stdcall* TimerProc)(Handle window, unsigned int message, unsigned int timer,
                                       unsigned long time);
    __declspec(dllimport) unsigned int __stdcall SetTimer(Handle window, unsigned int id,
                                                          unsigned int milliseconds,
                                                          TimerProc proc);
    __declspec(dllimport) int __stdcall KillTimer(Handle window, unsigned int id);

    int _fltused = 0; // the compiler asks for it where floating point is used

    void* __cdecl memset(void* target, int value, unsigned int count)
    {
        for (unsigned int i = 0; i < count; ++i)
            static_cast<volatile char*>(target)[i] = static_cast<char>(value);
        return target;
    }

    void* __cdecl memcpy(void* target, const void* source, unsigned int count)
    {
        for (unsigned int i = 0; i < count; ++i)
            static_cast<volatile char*>(target)[i] = static_cast<const char*>(source)[i];
        return target;
    }
}

void* __cdecl operator new(unsigned int bytes)
{
    return HeapAlloc(GetProcessHeap(), 0, bytes);
}

void __cdecl operator delete(void* block) noexcept
{
    HeapFree(GetProcessHeap(), 0, block);
}

void __cdecl operator delete(void* block, unsigned int) noexcept
{
    HeapFree(GetProcessHeap(), 0, block);
}

class CPtkContract
{
public:
    char exchange[12];
    char product[12];
    char rest[392];
};

namespace
{

int passed = 0;
int failed = 0;

void Print(const char* text)
{
    unsigned long length = 0;
    while (text[length])
        ++length;
    WriteFile(GetStdHandle(static_cast<unsigned long>(-11)), text, length, &length, nullptr);
}

void PrintNumber(int number)
{
    char text[12];
    int at = sizeof(text) - 1;
    text[at] = '\0';
    do
        text[--at] = static_cast<char>('0' + number % 10);
    while (number /= 10);
    Print(text + at);
}

void Check(bool holds, const char* what)
{
    ++(holds ? passed : failed);
    if (holds)
        return;
    Print("failed: ");
    Print(what);
    Print("\r\n");
}

unsigned long __cdecl AnswerModule(unsigned int, unsigned int, long)
{
    return 0;
}

void CheckRecord()
{
    const char file[] = ".\\Cfg\\Trade\\TradePackageConfig.ini";
    DeleteFileA(file);
    TOParam record;
    memset(&record, 0, sizeof(record));
    record.iLockScreen = 77;
    record.uMarginBuyStrategy = 3;
    ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, true);
    record.bHigherLimitPriceNotice = 1;
    ZorvaneInterface::SaveParam(&record);
    Check(GetPrivateProfileIntA("TradeConfig", "iLockScreen", 0, file) == 77, "SaveParam, a key");
    Check(GetPrivateProfileIntA("TradeConfig", "uMarginBuyStrategy", 0, file) == 3,
          "SaveParam, the last key");
    Check(GetPrivateProfileIntA("TradeConfig", "bHigherLimitPriceNotice", 0, file) == 1,
          "SetSpecialUI");
}

void CheckFutures()
{
    static CPtkContract contracts[2] = {{"SHFE", "ag", {}}, {"CFFEX", "IF", {}}};
    ZorvaneInterface::LoadFuture(contracts, 2);
    int volume = 4, ticks = 5, read = 0, daily = 0;
    double profit = 1.5, fallback = 2.5, loss = 3.5, range = 4.5, readProfit = 0, readRange = 0;
    ZorvaneInterface::SetStopProfitLossDefSetingFuture("CFFEX", "IF2612", &volume, &ticks, &profit,
                                                       &fallback, &loss, &range);
    Check(ZorvaneInterface::GetStopProfitLossDefSetingFuture("CFFEX", "IF2612", &read, nullptr,
                                                             &readProfit, nullptr, nullptr,
                                                             &readRange, &daily) == 1,
          "futures getter finds its row");
    Check(read == 4 && readProfit == 1.5 && readRange == 4.5, "futures values");
    Check(ZorvaneInterface::GetStopProfitLossDefSetingFuture(
              "SHFE", "IF2612", &read, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr) == 0,
          "futures getter finds no row");
}

void CheckStockAndOptions()
{
    ZorvaneInterface::LoadStock();
    int volume = 100, read = -1;
    double profit = 12.5, readProfit = 0;
    ZorvaneInterface::SetStopProfitLossDefSetingStock(1, &volume, nullptr, &profit, nullptr,
                                                      nullptr, nullptr);
    Check(ZorvaneInterface::GetStopProfitLossDefSetingStock(1, &read, nullptr, &readProfit, nullptr,
                                                            nullptr, nullptr, nullptr) == 1,
          "securities getter finds its row");
    Check(read == 0 && readProfit == 12.5, "securities values");
    Check(ZorvaneInterface::GetStopProfitLossDefSetingOptions(0, &read, nullptr, nullptr, nullptr,
                                                              nullptr, nullptr, nullptr) == 1,
          "options getter finds its row");
    Check(ZorvaneInterface::GetStopProfitLossDefSetingOptions(1, &read, nullptr, nullptr, nullptr,
                                                              nullptr, nullptr, nullptr) == 0,
          "options getter finds no row");
}

void CheckInstance()
{
    ZorvaneInterface* const first = new ZorvaneInterface;
    ZorvaneInterface* const copy = new ZorvaneInterface(*first);
    Check(&(*copy = *first) == copy, "assignment returns the object as it is");
    Check(*reinterpret_cast<void**>(first) == *reinterpret_cast<void**>(copy),
          "instances share their table");
    delete first;
    Check(!HeapValidate(GetProcessHeap(), 0, first), "delete frees the memory");
    delete copy;
    ZorvaneInterface local;
    Check(*reinterpret_cast<void**>(&local) != nullptr, "a local instance has a table");
}

void __stdcall CloseWindow(Handle, unsigned int, unsigned int timer, unsigned long)
{
    const Handle window = FindWindowA(nullptr, "\xB2\xCE\xCA\xFD\xC9\xE8\xD6\xC3"); // "参数设置"
    if (!window)
        return;
    KillTimer(nullptr, timer);
    PostMessageA(window, 0x111 /* WM_COMMAND */, 2 /* IDCANCEL */, 0);
}

void CheckWindow()
{
    TOParam record;
    memset(&record, 0, sizeof(record));
    ZorvaneInterface::Init(AnswerModule);
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, true);
    SetTimer(nullptr, 0, 100, CloseWindow);
    Check(ZorvaneInterface::DoModal(&record, ParamPageIndicator) == 2, "DoModal is cancelled");
}

void CheckAll()
{
    CheckRecord();
    CheckFutures();
    CheckStockAndOptions();
    CheckInstance();
    CheckWindow();
}

/// Calls with the stack `offset` bytes above a 16-byte border.
void CallWithStackAt(unsigned int offset, void (*function)())
{
    __asm__ volatile("movl %%esp, %%esi\n"
                     "andl $-16, %%esp\n"
                     "subl %0, %%esp\n"
                     "call *%1\n"
                     "movl %%esi, %%esp\n"
                     :
                     : "r"(offset), "r"(function)
                     : "eax", "ecx", "edx", "esi", "memory");
}

} // namespace

extern "C" void __cdecl Start()
{
    for (unsigned int offset = 0; offset < 16; offset += 4)
        CallWithStackAt(offset, CheckAll);
    PrintNumber(passed);
    Print(" passed, ");
    PrintNumber(failed);
    Print(" failed\r\n");
    ExitProcess(failed ? 1 : 0);
}
