// A whole client, as small as it gets. SmallClient [--window]
//
// Without an argument it stores a record and reads a key back; with --window it opens the settings.
#include <zorvane/ZorvaneInterface.h>

#include <windows.h>

#include <stdio.h>
#include <string.h>

// Each client keeps contracts of its own; the module reads the two codes, 416 bytes apart.
class CPtkContract
{
public:
    char exchange[12];
    char product[12];
    char rest[392];
};
static_assert(sizeof(CPtkContract) == 416, "the module steps 416 bytes");

static const char kPackageFile[] = ".\\Cfg\\Trade\\TradePackageConfig.ini";

static unsigned long ZORVANE_CALL AnswerModule(unsigned int request, unsigned int argument, long)
{
    if (request == ZorvaneHostHotKeyFolder)
        strcpy(reinterpret_cast<char*>(argument), ".\\cfg\\trade");
    return 0; // no condition orders run in the cloud
}

static int ReadKey(const char* key, int absent)
{
    return static_cast<int>(GetPrivateProfileIntA("TradeConfig", key, absent, kPackageFile));
}

// A real client reads every key like this. The file belongs to the trader; what is missing in it has
// the default that docs/keys.md tells.
static TOParam LoadRecord()
{
    TOParam record = {};
    record.iLockScreen = ReadKey("iLockScreen", 10);
    record.cFSpeculationHedge = static_cast<char>(ReadKey("cFSpeculationHedge", '1'));
    return record;
}

static int OpenWindow()
{
    TOParam record = LoadRecord();
    if (ZorvaneInterface::DoModal(&record, ParamPageFuture) == IDOK)
        record =
            LoadRecord(); // the record is never written: what the trader confirmed is in the file
    printf("the screen locks after %d minutes\n", record.iLockScreen);
    return 0;
}

static int StoreAndReadBack()
{
    TOParam record = LoadRecord();
    record.iLockScreen = 25;
    ZorvaneInterface::SaveParam(&record);
    const int stored = ReadKey("iLockScreen", 0);
    printf("iLockScreen=%d\n", stored);
    return stored == 25 ? 0 : 1;
}

int main(int count, char** arguments)
{
    ZorvaneInterface::Init(AnswerModule);
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, true);
    CPtkContract contracts[] = {{"SHFE", "ag", ""}, {"CFFEX", "IF", ""}};
    ZorvaneInterface::LoadFuture(contracts, 2);

    const bool isWindow = count > 1 && strcmp(arguments[1], "--window") == 0;
    return isWindow ? OpenWindow() : StoreAndReadBack();
}
