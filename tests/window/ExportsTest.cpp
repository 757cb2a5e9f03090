// What the module offers to a linker, and what it needs at run time.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace
{

const char* const kVisualCppNames[] = {
    "?DoModal@ZorvaneInterface@@SAHPAUTOParam@@W4TParamSetPage@@@Z",
    "?SaveParam@ZorvaneInterface@@SAXPAUTOParam@@@Z",
    "?Init@ZorvaneInterface@@SAXP6AKIIJ@Z@Z",
    "?LoadFuture@ZorvaneInterface@@SAXPAVCPtkContract@@H@Z",
    "?LoadFuture@ZorvaneInterface@@SAXPAUCPtkContract@@H@Z",
    "?LoadStock@ZorvaneInterface@@SAXXZ",
    "?SetSpecialUI@ZorvaneInterface@@SAXW4SpecialUI@@_N@Z",
    "?GetStopProfitLossDefSetingFuture@ZorvaneInterface@@SAHPBD0PAH1PAN2221@Z",
    "?SetStopProfitLossDefSetingFuture@ZorvaneInterface@@SAXPBD0PAH1PAN222@Z",
    "?GetStopProfitLossDefSetingStock@ZorvaneInterface@@SAHHPAH0PAN1110@Z",
    "?SetStopProfitLossDefSetingStock@ZorvaneInterface@@SAXHPAH0PAN111@Z",
    "?GetStopProfitLossDefSetingOptions@ZorvaneInterface@@SAHHPAH0PAN1110@Z",
    "??0ZorvaneInterface@@QAE@XZ",
    "??0ZorvaneInterface@@QAE@ABV0@@Z",
    "??4ZorvaneInterface@@QAEAAV0@ABV0@@Z",
    "??1ZorvaneInterface@@UAE@XZ",
    "??_7ZorvaneInterface@@6B@",
};

const char* const kGccNames[] = {
    "_ZN16ZorvaneInterface7DoModalEP7TOParam13TParamSetPage",
    "_ZN16ZorvaneInterface9SaveParamEP7TOParam",
    "_ZN16ZorvaneInterface4InitEPFmjjlE",
    "_ZN16ZorvaneInterface10LoadFutureEP12CPtkContracti",
    "_ZN16ZorvaneInterface9LoadStockEv",
    "_ZN16ZorvaneInterface12SetSpecialUIE9SpecialUIb",
    "_ZN16ZorvaneInterface32GetStopProfitLossDefSetingFutureEPKcS1_PiS2_PdS3_S3_S3_S2_",
    "_ZN16ZorvaneInterface32SetStopProfitLossDefSetingFutureEPKcS1_PiS2_PdS3_S3_S3_",
    "_ZN16ZorvaneInterface31GetStopProfitLossDefSetingStockEiPiS0_PdS1_S1_S1_S0_",
    "_ZN16ZorvaneInterface31SetStopProfitLossDefSetingStockEiPiS0_PdS1_S1_S1_",
    "_ZN16ZorvaneInterface33GetStopProfitLossDefSetingOptionsEiPiS0_PdS1_S1_S1_S0_",
    "_ZN16ZorvaneInterfaceC1Ev",
    "_ZN16ZorvaneInterfaceC1ERKS_",
    "_ZN16ZorvaneInterfaceaSERKS_",
    "_ZN16ZorvaneInterfaceD1Ev",
    "_ZTV16ZorvaneInterface",
};

} // namespace

TEST(Exports, BothNameStylesAreThere)
{
    const HMODULE module = GetModuleHandleA("Zorvane.dll");
    for (const char* name : kVisualCppNames)
        EXPECT_NE(nullptr, GetProcAddress(module, name)) << name;
    for (const char* name : kGccNames)
        EXPECT_NE(nullptr, GetProcAddress(module, name)) << name;
}

TEST(Exports, TheModuleNeedsNothingButTheSystemAndIniWarden)
{
    const auto* const base = reinterpret_cast<const uint8_t*>(GetModuleHandleA("Zorvane.dll"));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (const auto* entry =
             reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
         entry->Name != 0; ++entry)
    {
        std::string name = reinterpret_cast<const char*>(base + entry->Name);
        for (char& character : name)
            character = static_cast<char>(tolower(character));
        EXPECT_THAT(name, testing::AnyOf("iniwarden.dll", "advapi32.dll", "comctl32.dll",
                                         "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msimg32.dll",
                                         "msvcrt.dll", "shell32.dll", "user32.dll"));
    }
}
