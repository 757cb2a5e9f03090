#pragma once

extern "C" double __cdecl atof(const char* text);
