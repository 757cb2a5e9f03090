#pragma once

extern "C" int __cdecl printf(const char* format, ...);
