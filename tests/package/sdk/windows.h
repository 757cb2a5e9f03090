// What the example host needs of the system's header, for a compiler that has none.
#pragma once

enum
{
    IDOK = 1
};

extern "C" __declspec(dllimport) unsigned long __stdcall GetPrivateProfileStringA(
    const char* section, const char* key, const char* absent, char* text, unsigned long capacity,
    const char* file);
