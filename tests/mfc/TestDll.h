#pragma once

#include <windows.h>

/// Talk between the test of DLLs and the test DLL: a variable of the process's environment, which
/// is there before the DLL is and after it is gone. The test writes what InitInstance shall do,
/// the DLL appends what has happened.
constexpr char kDllLog[] = "MFC_TEST_DLL";

constexpr char kRefuse[] = "refuse;"; ///< InitInstance returns FALSE
constexpr char kModal[] = "modal;";   ///< InitInstance runs a modal dialog

/// Runs a modal dialog of the DLL, which ends by a message that only the DLL's application object
/// sees; returns its result.
using RunDialogFunction = INT_PTR(WINAPI*)();
/// Makes a window of the DLL in the given parent.
using MakeWindowFunction = HWND(WINAPI*)(HWND parent);
/// TRUE when the caller's module state is what it was before another export was called.
using IsStateUntouchedFunction = BOOL(WINAPI*)();
/// Name of a window class that the DLL has registered.
using ClassNameFunction = LPCSTR(WINAPI*)();
