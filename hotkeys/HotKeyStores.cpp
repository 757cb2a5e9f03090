#include "hotkeys/HotKeyStores.h"

#include "hotkeys/HotKey.h"

std::vector<CHotKeyBase*> gHotKeyStores;

namespace
{
HotKeyRecord* FindRecord(int type, int row)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    return store ? store->GetRecord(row) : nullptr;
}

template <class Field, class Value>
int SetField(int type, int row, Field HotKeyRecord::*field, Value value)
{
    HotKeyRecord* record = FindRecord(type, row);
    if (!record)
        return 0;
    record->*field = static_cast<Field>(value);
    return 1;
}
} // namespace

void CreateHotKeyStores()
{
    for (int type : {2, 0, 1})
        gHotKeyStores.push_back(new CHotKey(type));
}

void DestroyHotKeyStores()
{
    for (CHotKeyBase* store : gHotKeyStores)
        delete static_cast<CHotKey*>(store);
    gHotKeyStores.clear();
}

CHotKeyBase* FindHotKeyStore(int type)
{
    for (CHotKeyBase* store : gHotKeyStores)
    {
        if (store && store->GetType() == type)
            return store;
    }
    return nullptr;
}

int LoadHotKeys(int type)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    if (!store)
        return 0;
    store->Load();
    return 1;
}

int LoadAllHotKeys()
{
    for (CHotKeyBase* store : gHotKeyStores)
    {
        if (store)
            store->Load();
    }
    return 1;
}

int SaveHotKeys(int type)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    if (!store)
        return 0;
    store->Save();
    return 1;
}

int SaveAllHotKeys()
{
    for (CHotKeyBase* store : gHotKeyStores)
    {
        if (store)
            store->Save();
    }
    return 1;
}

int GetHotKeyCount(int type)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    return store ? store->GetCount() : 0;
}

int GetHotKeyRecord(int type, int row, HotKeyRecord* out)
{
    const HotKeyRecord* record = FindRecord(type, row);
    if (!record)
        return 0;
    *out = *record;
    return 1;
}

void GetHotKeyName(int type, int row, char* out)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    if (store)
        store->GetKeyName(row, out);
}

int AddHotKeyRow(int type)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    return store ? store->AddRow() : -1;
}

void RemoveHotKeyRow(int type, int row)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    if (store)
        store->RemoveRow(row);
}

int SetHotKeyAction(int type, int row, int action)
{
    return SetField(type, row, &HotKeyRecord::action, action);
}

int SetHotKeyBuySell(int type, int row, char buySell)
{
    return SetField(type, row, &HotKeyRecord::buySell, buySell);
}

int SetHotKeyOverTicks(int type, int row, int overTicks)
{
    return SetField(type, row, &HotKeyRecord::overTicks, overTicks);
}

int SetHotKeyCovered(int type, int row, int covered)
{
    return SetField(type, row, &HotKeyRecord::covered, covered);
}

int SetHotKeyMultiple(int type, int row, int multiple)
{
    return SetField(type, row, &HotKeyRecord::multiple, multiple);
}

int SetHotKeyOpenClose(int type, int row, char openClose)
{
    return SetField(type, row, &HotKeyRecord::openClose, openClose);
}

int SetHotKeyPriceType(int type, int row, const char* text)
{
    HotKeyRecord* record = FindRecord(type, row);
    if (!record)
        return 0;
    SetPriceType(*record, text);
    return 1;
}

int CaptureHotKey(int type, int row, unsigned int vk, char* out)
{
    CHotKeyBase* store = FindHotKeyStore(type);
    return store && store->CaptureKey(row, vk, out);
}
