#pragma once

extern "C" int __cdecl strcmp(const char* left, const char* right);
extern "C" char* __cdecl strcpy(char* target, const char* source);
