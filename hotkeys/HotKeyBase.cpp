#include "hotkeys/HotKeyBase.h"

#include "hotkeys/HeldModifiers.h"
#include "hotkeys/KeyAssignment.h"
#include "hotkeys/KeyName.h"

#include <windows.h>

int CHotKeyBase::GetCount()
{
    return static_cast<int>(GetList().size());
}

HotKeyRecord* CHotKeyBase::GetRecord(int row)
{
    return row >= 0 && row < GetCount() ? &GetList()[row] : nullptr;
}

bool CHotKeyBase::GetKeyName(int row, char* out)
{
    const HotKeyRecord* record = GetRecord(row);
    if (!record)
        return false;
    MakeKeyName(record->modifiers, record->vk, out);
    return true;
}

int CHotKeyBase::AddRow()
{
    GetList().push_back(MakeDefaultHotKey());
    return GetCount() - 1;
}

void CHotKeyBase::RemoveRow(int row)
{
    if (GetRecord(row))
        GetList().erase(GetList().begin() + row);
}

bool CHotKeyBase::SetKeyCode(int row, unsigned int vk)
{
    HotKeyRecord* record = GetRecord(row);
    if (!record)
        return false;
    record->vk = static_cast<uint8_t>(vk);
    return true;
}

bool CHotKeyBase::CaptureKey(int row, unsigned int vk, char* out)
{
    if (!GetRecord(row))
        return false;
    if (AssignKey(GetList(), row, gReadHeldModifiers(), vk, out) != KeyAssignment::Duplicate)
        return true;
    MessageBoxA(nullptr, "快捷键重复!", "提示", MB_OK);
    return false;
}

HotKeyRecord* CHotKeyBase::FindHeldKey(unsigned int vk)
{
    return FindHeldRow(GetList(), gReadHeldModifiers(), vk);
}
