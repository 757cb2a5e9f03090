// What the example host needs of the system's header, for a compiler that has none.
#pragma once

enum
{
    IDOK = 1
};

extern "C" __declspec(dllimport) unsigned int __stdcall GetPrivateProfileIntA(const char* section,
                                                                              const char* key,
                                                                              int absent,
                                                                              const char* file);
