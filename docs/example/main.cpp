// A whole client, as small as it gets. SmallClient [--window]
//
// Without an argument it stores a record and reads it back; with --window it opens the settings.
#include "Record.h"

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

static unsigned long ZORVANE_CALL AnswerModule(unsigned int request, unsigned int argument, long)
{
    if (request == ZorvaneHostHotKeyFolder)
        strcpy(reinterpret_cast<char*>(argument), ".\\cfg\\trade");
    return 0; // no condition orders run in the cloud
}

static int OpenWindow()
{
    TOParam record = LoadRecord();
    // The record is never written: what the trader confirmed is in the file.
    if (ZorvaneInterface::DoModal(&record, ParamPageFuture) == IDOK)
        record = LoadRecord();
    printf("the screen locks after %d minutes\n", record.iLockScreen);
    return 0;
}

static int StoreAndReadBack()
{
    TOParam record = LoadRecord();
    record.iLockScreen = 25;
    ZorvaneInterface::SaveParam(&record);
    record = LoadRecord();
    printf("iLockScreen=%d\n", record.iLockScreen);
    return record.iLockScreen == 25 ? 0 : 1;
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
