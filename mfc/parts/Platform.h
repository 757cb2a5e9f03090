#pragma once

#if defined(UNICODE) || defined(_UNICODE)
#error The framework subset is for ANSI builds.
#endif

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <richedit.h>
#include <tchar.h>

// Macros with arguments of these names would break the methods. The first is from windows.h, the
// others from windowsx.h.
#undef GetNextWindow
#undef CopyRgn
#undef SubclassWindow

// Markers of the framework's declarations; they say nothing to this compiler.
#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_DATA
#define AFX_EXT_CLASS
#define afx_msg
