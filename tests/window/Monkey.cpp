// A monkey at the settings window: clicks, keys and texts of all kinds into whatever is on show, change
// of pages, restore, confirm and cancel, all drawn from a seed. The module must not crash, hang or
// leave a damaged file.
//
//   monkey [events] [seed]
#include "resources/resource.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/Files.h"

#include <zorvane/ZorvaneInterface.h>

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr DWORD kPatience = 30000; // ms until a window that does not answer counts as hung
const char kTitle[] = "参数设置";
const char kUserFile[] = "Cfg\\Trade\\TradePackageConfig.ini";

std::mt19937 chance;
std::atomic<long> eventsDone{0};
std::atomic<bool> isOver{false}; // the last window is closed
long eventsWanted = 0;
unsigned seed = 1;

int Draw(int count)
{
    return static_cast<int>(chance() % static_cast<unsigned>(count));
}

template <typename T, size_t N>
const T& OneOf(const T (&values)[N])
{
    return values[Draw(static_cast<int>(N))];
}

/// What was done last, for the report of a fault.
constexpr size_t kRemembered = 8;
std::string remembered[kRemembered];

void Remember(const std::string& what, HWND target)
{
    char className[64] = "";
    GetClassNameA(target, className, sizeof(className));
    remembered[eventsDone % kRemembered] =
        what + " " + className + " " + std::to_string(GetDlgCtrlID(target));
}

[[noreturn]] void Fail(const std::string& what)
{
    printf("monkey: %s after %ld events of seed %u, the last ones being\n", what.c_str(),
           eventsDone.load(), seed);
    for (size_t i = 1; i <= kRemembered; ++i)
        printf("  %s\n", remembered[(eventsDone + i) % kRemembered].c_str());
    fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 1);
    abort();
}

LONG WINAPI TellCrash(EXCEPTION_POINTERS* exception)
{
    char text[64];
    snprintf(text, sizeof(text), "crash %08lX at %p", exception->ExceptionRecord->ExceptionCode,
             exception->ExceptionRecord->ExceptionAddress);
    Fail(text);
}

BOOL CALLBACK CollectVisible(HWND child, LPARAM list)
{
    if (IsWindowVisible(child))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
    return TRUE;
}

BOOL CALLBACK MatchSettings(HWND window, LPARAM found)
{
    char title[32] = "";
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    GetWindowTextA(window, title, sizeof(title));
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) || strcmp(title, kTitle) != 0)
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND SettingsWindow()
{
    HWND window = nullptr;
    EnumWindows(MatchSettings, reinterpret_cast<LPARAM>(&window));
    return window;
}

struct OwnedBox
{
    HWND owner;
    HWND box;
};

BOOL CALLBACK MatchBox(HWND window, LPARAM found)
{
    OwnedBox& wanted = *reinterpret_cast<OwnedBox*>(found);
    char className[32] = "";
    GetClassNameA(window, className, sizeof(className));
    if (GetWindow(window, GW_OWNER) != wanted.owner || !IsWindowVisible(window) ||
        strcmp(className, "#32770") != 0)
        return TRUE;
    wanted.box = window;
    return FALSE;
}

/// The topmost box that waits over a window, active or not; the window itself when there is none.
HWND TopBox(HWND window)
{
    OwnedBox top = {window, nullptr};
    EnumWindows(MatchBox, reinterpret_cast<LPARAM>(&top));
    return top.box ? TopBox(top.box) : window;
}

// Lives on the window's thread and tells when what was posted before has been handled.
HWND marker = nullptr;
HANDLE reached = nullptr;

LRESULT CALLBACK TellReached(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP)
        SetEvent(reached);
    return DefWindowProcA(window, message, wParam, lParam);
}

void CreateMarker()
{
    reached = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    marker =
        CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongA(marker, GWL_WNDPROC, reinterpret_cast<LONG>(TellReached));
}

void Settle()
{
    PostMessageA(marker, WM_APP, 0, 0);
    if (WaitForSingleObject(reached, kPatience) != WAIT_OBJECT_0)
        Fail("the window hangs");
}

/// Whether a trader could reach a window: not while a box over it waits for an answer.
bool IsReachable(HWND window)
{
    return IsWindow(window) && IsWindowEnabled(GetAncestor(window, GA_ROOT));
}

std::string RandomText()
{
    static const std::string kTexts[] = {"",
                                         "0",
                                         "-1",
                                         "1",
                                         "00012",
                                         "-0",
                                         "4294967296",
                                         "99999999999999999999",
                                         "1.5",
                                         "0.5",
                                         "1e308",
                                         "nan",
                                         "-2147483648",
                                         "   7",
                                         "%s%n%s%n",
                                         "a=b",
                                         "[TradeConfig]",
                                         "\r\nbOneOpen=9",
                                         "\t",
                                         "中文文本",
                                         "\x81",
                                         "中\x81",
                                         "C:\\a b\\声音.wav",
                                         std::string(300, '9'),
                                         std::string(5000, 'x'),
                                         std::string(2000, '\xB0'),
                                         "a,b,,c",
                                         "\"'`",
                                         "1,000",
                                         "５"};
    return OneOf(kTexts);
}

LPARAM RandomPoint(HWND window)
{
    RECT area;
    GetClientRect(window, &area);
    return MAKELPARAM(Draw(std::max<int>(area.right, 1)), Draw(std::max<int>(area.bottom, 1)));
}

void Click(HWND target)
{
    const LPARAM point = RandomPoint(target);
    PostMessageA(target, WM_MOUSEMOVE, 0, point);
    PostMessageA(target, WM_LBUTTONDOWN, MK_LBUTTON, point);
    if (Draw(8) == 0)
        PostMessageA(target, WM_MOUSEMOVE, MK_LBUTTON, RandomPoint(target));
    PostMessageA(target, WM_LBUTTONUP, 0, point);
    Settle();
    if (Draw(4) == 0 && IsReachable(target))
    {
        PostMessageA(target, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        PostMessageA(target, WM_LBUTTONUP, 0, point);
    }
}

void PressKey(HWND target)
{
    static const WORD kKeys[] = {VK_LEFT,   VK_RIGHT, VK_UP,   VK_DOWN,  VK_HOME,    VK_END,
                                 VK_PRIOR,  VK_NEXT,  VK_TAB,  VK_SPACE, VK_DELETE,  VK_BACK,
                                 VK_RETURN, VK_F1,    VK_F4,   VK_F12,   'A',        'X',
                                 '5',       '0',      VK_MENU, VK_SHIFT, VK_CONTROL, VK_OEM_MINUS};
    const WORD key = OneOf(kKeys);
    // Alt with F4 closes: that is drawn elsewhere.
    const bool withAlt = Draw(10) == 0 && key != VK_F4;
    PostMessageA(target, withAlt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, withAlt ? 0x20000001 : 1);
    PostMessageA(target, withAlt ? WM_SYSKEYUP : WM_KEYUP, key, withAlt ? 0xE0000001 : 0xC0000001);
}

void TypeCharacter(HWND target)
{
    static const BYTE kCharacters[] = {'0', '1', '9', '-', '.', 'a', ' ', '%', 0x81, 0xD6, 0xFF, 8};
    PostMessageA(target, WM_CHAR, OneOf(kCharacters), 1);
}

void PutText(HWND target)
{
    char className[32] = "";
    GetClassNameA(target, className, sizeof(className));
    if (_stricmp(className, "Static") == 0 || _stricmp(className, "Button") == 0)
        return; // what no trader can write into
    const std::string text = RandomText();
    SendMessageTimeoutA(target, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), SMTO_NORMAL,
                        kPatience, nullptr);
}

void TurnWheel(HWND target)
{
    PostMessageA(target, WM_MOUSEWHEEL, MAKEWPARAM(0, Draw(2) ? 120 : -120), RandomPoint(target));
}

void OpenRow(HWND window)
{
    const HWND list = GetDlgItem(window, IDC_PAGE_LIST);
    RECT row = {};
    SendMessageTimeoutA(list, LB_GETITEMRECT, Draw(6), reinterpret_cast<LPARAM>(&row), SMTO_NORMAL,
                        kPatience, nullptr);
    const LPARAM point = MAKELPARAM(10, row.top + 10);
    PostMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageA(list, WM_LBUTTONUP, 0, point);
}

void PressTab(const std::vector<HWND>& shown)
{
    for (HWND child : shown)
    {
        if (GetDlgCtrlID(child) != IDC_TAB_STRIP)
            continue;
        const LPARAM point = MAKELPARAM(Draw(6) * 100 + 50, 20);
        PostMessageA(child, WM_LBUTTONDOWN, MK_LBUTTON, point);
        PostMessageA(child, WM_LBUTTONUP, 0, point);
        return;
    }
}

void AnswerPopup(HWND popup)
{
    std::vector<HWND> shown;
    EnumChildWindows(popup, CollectVisible, reinterpret_cast<LPARAM>(&shown));
    if (!shown.empty() && Draw(3) == 0)
        PutText(shown[Draw(static_cast<int>(shown.size()))]);
    // A box of the system with a lone button knows only its own.
    PostMessageA(popup, WM_COMMAND, GetDlgItem(popup, IDCANCEL) && Draw(2) ? IDCANCEL : IDOK, 0);
    if (Draw(4) == 0)
        PostMessageA(popup, WM_CLOSE, 0, 0);
}

/// The button that opens the system's chooser of files: that is not the module's, and could wander
/// over the whole disk.
bool OpensFileChooser(HWND control)
{
    char text[16] = "";
    SendMessageTimeoutA(control, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text),
                        SMTO_NORMAL, kPatience, nullptr);
    return strcmp(text, "浏览") == 0;
}

void ActOnPage(HWND window)
{
    std::vector<HWND> shown;
    EnumChildWindows(window, CollectVisible, reinterpret_cast<LPARAM>(&shown));
    if (shown.empty())
        return;
    // OK, cancel and restore come by their own draw: left to clicks the window would be closed
    // before anything was tried.
    const HWND target = shown[Draw(static_cast<int>(shown.size()))];
    const int id = GetDlgCtrlID(target);
    if ((GetParent(target) == window && (id == IDOK || id == IDCANCEL)) || OpensFileChooser(target))
        return;
    struct Deed
    {
        const char* name;
        void (*act)(HWND);
    };
    static const Deed kDeeds[] = {{"click", Click},  {"click", Click},
                                  {"click", Click},  {"key", PressKey},
                                  {"key", PressKey}, {"character", TypeCharacter},
                                  {"text", PutText}, {"wheel", TurnWheel}};
    const Deed& deed = OneOf(kDeeds);
    Remember(deed.name, target);
    deed.act(target);
}

void Act(HWND window)
{
    const HWND popup = TopBox(window);
    if (popup != window)
    {
        char title[32] = "";
        GetWindowTextA(popup, title, sizeof(title));
        Remember(std::string("answer ") + title, popup);
        AnswerPopup(popup);
        return Settle();
    }
    const int draw = Draw(200);
    Remember("entry, tab or button " + std::to_string(draw), window);
    if (draw < 8)
        OpenRow(window);
    else if (draw < 16)
    {
        std::vector<HWND> shown;
        EnumChildWindows(window, CollectVisible, reinterpret_cast<LPARAM>(&shown));
        PressTab(shown);
    }
    else if (draw < 19)
        PostMessageA(window, WM_COMMAND, IDC_RESTORE_DEFAULTS, 0);
    else if (draw < 20)
        PostMessageA(window, WM_COMMAND, Draw(3) ? IDOK : IDCANCEL, 0);
    else
        ActOnPage(window);
    Settle();
}

void Play()
{
    while (eventsDone < eventsWanted)
    {
        DWORD waited = 0;
        HWND window = nullptr;
        while (!(window = SettingsWindow()) && waited < kPatience)
        {
            Sleep(10);
            waited += 10;
        }
        if (!window)
            Fail("no window");
        while (IsWindow(window) && eventsDone < eventsWanted)
        {
            Act(window);
            ++eventsDone;
        }
    }
    // Whatever is open or about to open is left by cancel.
    while (!isOver)
    {
        if (const HWND window = SettingsWindow())
            PostMessageA(TopBox(window), WM_COMMAND, IDCANCEL, 0);
        Sleep(50);
    }
}

/// Sections and whole lines of keys, each key once in its section.
void CheckFile(const std::string& path)
{
    const std::string text = ReadBytes(path);
    if (text.find('\0') != std::string::npos)
        Fail(path + " has NULs");
    std::map<std::string, int> keys;
    std::string section, line;
    std::istringstream lines(text);
    while (std::getline(lines, line))
    {
        if (line.empty() || line.back() != '\r')
            Fail(path + " has a torn line: " + line);
        line.pop_back();
        if (line.empty())
            continue;
        if (line[0] == '[' && line.back() == ']')
            section = line;
        else if (line.find('=') == std::string::npos || section.empty())
            Fail(path + " has a line that is none: " + line);
        else if (++keys[section + line.substr(0, line.find('='))] > 1)
            Fail(path + " has twice: " + line);
    }
}

} // namespace

int main(int count, char** arguments)
{
    eventsWanted = count > 1 ? atol(arguments[1]) : 10000;
    seed = count > 2 ? static_cast<unsigned>(atoi(arguments[2])) : 1;
    chance.seed(seed);
    SetUnhandledExceptionFilter(TellCrash);
    RemoveTree("Cfg");
    RemoveTree("Sys");

    static const TParamSetPage kStarts[] = {
        ParamPagePublic, ParamPageOptions, ParamPageOptionsKeys, ParamPageOptionsQuickKeys,
        ParamPageFuture, ParamPageStock,   ParamPageIndicator,   ParamPageOtherOptions};
    ZorvaneInterface::Init([](unsigned int, unsigned int, long) { return 0ul; });
    TOParam record = FactoryRecord();
    CreateMarker();
    std::thread player(Play);
    int openings = 0;
    int saved = 0;
    while (eventsDone < eventsWanted)
    {
        ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, openings % 2 != 0);
        ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, openings % 3 != 0);
        ++openings;
        saved += ZorvaneInterface::DoModal(&record, kStarts[openings % std::size(kStarts)]) == IDOK;
        CheckFile(kUserFile);
    }
    isOver = true;
    player.join();
    printf("monkey: %ld events, %d openings, %d confirmed, seed %u\n1 passed, 0 failed\n",
           eventsDone.load(), openings, saved, seed);
    return 0;
}
