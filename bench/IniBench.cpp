// Saves 190 keys through the configuration library, through the profile functions, and by the least
// work that leaves a whole file after every changed key. Prints medians and ratios.
#include "bench/Timing.h"
#include "iniwarden/IniWarden.h"

#include <cstdio>
#include <string>
#include <vector>

#include <windows.h>

namespace
{
constexpr int kKeys = 190;
constexpr int kRounds = 21;
const char kSection[] = "TradeConfig";
const std::string kFolder = "ini_bench.work";
const std::string kFile = kFolder + "\\TradePackageConfig.ini";

std::string KeyName(int key)
{
    return "uIfVolume_Market_" + std::to_string(key);
}

std::string Value(int key)
{
    return std::to_string(1000 + key);
}

/// One pair for each key, made ahead of the clock.
struct Setting
{
    std::string key;
    std::string value;
    bool needsWriting;
};

std::string FileOf(int keys)
{
    std::string text = std::string("[") + kSection + "]\r\n";
    for (int key = 0; key < keys; ++key)
        text += KeyName(key) + "=" + Value(key) + "\r\n";
    return text;
}

std::string FullPath(const std::string& path)
{
    char full[MAX_PATH];
    GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr);
    return full;
}

void WriteWhole(const std::string& path, const std::string& bytes)
{
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_FLAG_WRITE_THROUGH, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}

/// As a file that nobody touched for a while.
void MakeOld(const std::string& path)
{
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    time.dwHighDateTime -= 10; // more than an hour
    SetFileTime(file, nullptr, nullptr, &time);
    CloseHandle(file);
}

/// What a save meets: how many keys the file has already, and which of those have another value.
struct Situation
{
    const char* name;
    int present;
    int changeEvery; ///< 0: no key of the file is changed
    const char* goal;

    bool WritesAny() const { return present < kKeys || changeEvery != 0; }

    std::vector<Setting> Settings() const
    {
        std::vector<Setting> settings;
        for (int key = 0; key < kKeys; ++key)
        {
            const bool isChanged = changeEvery != 0 && key % changeEvery == 0;
            settings.push_back(
                {KeyName(key), Value(key) + (isChanged ? "1" : ""), key >= present || isChanged});
        }
        return settings;
    }
};

const Situation kSituations[] = {
    {"nothing changed", kKeys, 0, "0.05"},
    {"five changed", kKeys, kKeys / 5, "0.1"},
    {"all new", 0, 0, "1"},
};

using Save = void (*)(const Setting& setting);

void SaveByWarden(const Setting& setting)
{
    static const std::string section = kSection;
    IniWarden::WriteConfig(section, setting.key, setting.value, kFile);
}

void SaveByProfile(const Setting& setting)
{
    static const std::string path = FullPath(kFile);
    WritePrivateProfileStringA(kSection, setting.key.c_str(), setting.value.c_str(), path.c_str());
}

void SaveByReplacing(const Setting& setting)
{
    static const std::string text = FileOf(kKeys);
    static const std::string temporary = kFile + ".tmp";
    if (!setting.needsWriting)
        return;
    WriteWhole(temporary, text);
    MoveFileExA(temporary.c_str(), kFile.c_str(),
                MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

const Save kRoads[] = {SaveByWarden, SaveByProfile, SaveByReplacing};
constexpr size_t kRoadCount = sizeof(kRoads) / sizeof(kRoads[0]);

void Prepare(const Situation& situation)
{
    DeleteFileA(kFile.c_str());
    if (situation.present == 0)
        return;
    WriteWhole(kFile, FileOf(situation.present));
    MakeOld(kFile);
}

double TimeSave(const Situation& situation, Save save)
{
    const std::vector<Setting> settings = situation.Settings();
    Prepare(situation);
    const Stopwatch watch;
    for (const Setting& setting : settings)
        save(setting);
    return watch.Milliseconds();
}

void Compare(const Situation& situation)
{
    // The roads take turns, so that a slow moment of the machine hits all of them, and in both
    // directions, so that none always follows the one that left the disk busy.
    std::vector<double> times[kRoadCount];
    for (int round = 0; round < kRounds; ++round)
        for (size_t turn = 0; turn < kRoadCount; ++turn)
        {
            const size_t road = round % 2 == 0 ? turn : kRoadCount - 1 - turn;
            times[road].push_back(TimeSave(situation, kRoads[road]));
        }

    const double warden = Median(times[0]);
    const double profile = Median(times[1]);
    const double limit = Median(times[2]);
    const std::string what = "save " + std::to_string(kKeys) + " keys, " + situation.name;
    Report(what, warden, "profile functions", profile, situation.goal);
    if (situation.WritesAny())
        Report(what, warden, "replacing a file once a key", limit);
}
} // namespace

int main()
{
    CreateDirectoryA(kFolder.c_str(), nullptr);
    for (const Situation& situation : kSituations)
        Compare(situation);
    DeleteFileA(kFile.c_str());
    RemoveDirectoryA(kFolder.c_str());
    return 0;
}
