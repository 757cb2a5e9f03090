#pragma once

extern "C" void* __cdecl memcpy(void* target, const void* source, unsigned int size);
extern "C" int __cdecl strcmp(const char* left, const char* right);
extern "C" char* __cdecl strcpy(char* target, const char* source);
