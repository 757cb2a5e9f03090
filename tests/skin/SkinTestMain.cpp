// Runs the tests on a skin: --skin=flat (the default) or one that a deployment might break.
#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestBitmap.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

CWinApp theApp;

namespace
{

constexpr int kColumns = 13;
constexpr const char* kBitmaps[] = {"skin\\ctrl\\Check.bmp", "skin\\ctrl\\ComboBoxArrow.bmp",
                                    "skin\\ctrl\\ListBoxItem.bmp", "skin\\ctrl\\Spin.bmp"};

constexpr char kIni[] = "skin\\ctrl\\Ctrl.ini";

void SetColumns(const char* columns)
{
    WriteFlatSkin(kColumns);
    WriteFileBytes(kIni, std::string("[ListBoxItem]\r\nBmpNum=") + columns + "\r\n");
}

void WriteFlatSkinWithoutIni()
{
    WriteFlatSkin(kColumns);
    DeleteFileA(kIni);
}

void WriteFlatSkinWithoutKey()
{
    WriteFlatSkin(kColumns);
    WriteFileBytes(kIni, "[ListBoxItem]\r\n");
}

void WriteBitmaps(int width, int height)
{
    WriteFlatSkin(kColumns);
    for (const char* path : kBitmaps)
        WriteFileBytes(path, FlatBitmap(1, width, height, {RGB(1, 2, 3)}));
}

void WriteBytes(const std::string& bytes)
{
    WriteFlatSkin(kColumns);
    for (const char* path : kBitmaps)
        WriteFileBytes(path, bytes);
}

std::string RandomBytes()
{
    std::string bytes = "BM";
    unsigned value = 12345;
    for (int i = 0; i < 5000; ++i)
        bytes += static_cast<char>((value = value * 1103515245 + 12345) >> 16);
    return bytes;
}

/// A file that claims a size of its own choice and holds next to nothing.
std::string Liar(int width, int height)
{
    struct
    {
        BITMAPINFOHEADER info{};
        char pixels[64] = {};
    } body;
    body.info.biSize = sizeof(BITMAPINFOHEADER);
    body.info.biWidth = width;
    body.info.biHeight = height;
    body.info.biPlanes = 1;
    body.info.biBitCount = 24;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(BITMAPINFOHEADER);
    file.bfSize = sizeof(file) + sizeof(body);
    return std::string(reinterpret_cast<const char*>(&file), sizeof(file)) +
           std::string(reinterpret_cast<const char*>(&body), sizeof(body));
}

const std::map<std::string, std::function<void()>> kSkins = {
    {"flat",
     []
     {
         WriteFlatSkin(kColumns);
     }},
    {"missing",
     [] {
     }},
    {"random",
     []
     {
         WriteBytes(RandomBytes());
     }},
    {"empty",
     []
     {
         WriteBytes("");
     }},
    {"huge",
     []
     {
         WriteBytes(Liar(2147483647, 2147483647));
     }},
    {"negative",
     []
     {
         WriteBytes(Liar(-100, -100));
     }},
    {"upside-down",
     []
     {
         WriteBytes(Liar(4, -4));
     }},
    {"short",
     []
     {
         WriteBytes(Liar(1000, 1000));
     }},
    {"dot",
     []
     {
         WriteBitmaps(1, 1);
     }},
    {"narrow",
     []
     {
         WriteBitmaps(7, 2000);
     }},
    {"wide",
     []
     {
         WriteBitmaps(20000, 1);
     }},
    {"no-ini", WriteFlatSkinWithoutIni},
    {"no-key", WriteFlatSkinWithoutKey},
    {"no-columns",
     []
     {
         SetColumns("0");
     }},
    {"minus-columns",
     []
     {
         SetColumns("-3");
     }},
    {"many-columns",
     []
     {
         SetColumns("2147483647");
     }},
    {"words-for-columns",
     []
     {
         SetColumns("many");
     }},
};

std::string ChosenSkin(int argc, char** argv)
{
    constexpr char kOption[] = "--skin=";
    for (int i = 1; i < argc; ++i)
        if (strncmp(argv[i], kOption, strlen(kOption)) == 0)
            return argv[i] + strlen(kOption);
    return "flat";
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (GetACP() != 936 ||
        !AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOWNORMAL) ||
        !AfxInitRichEdit2())
    {
        fputs("code page 936 and the framework are needed\n", stderr);
        return 1;
    }
    const auto folder =
        std::filesystem::temp_directory_path() / ("skin" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);
    kSkins.at(ChosenSkin(argc, argv))();
    const int result = RUN_ALL_TESTS();
    std::filesystem::current_path(folder.parent_path());
    std::filesystem::remove_all(folder);
    AfxWinTerm();
    return result;
}
