// Works the settings window from inside its own message loop, by messages instead of input: for tests
// and benchmarks that open it often, or that time it.
#pragma once

#include <zorvane/ZorvaneInterface.h>

#include <windows.h>

#include <functional>

/// Opens the window by DoModal and calls `work` on the same thread as soon as it is shown, before it
/// is painted. The window is cancelled afterwards, if `work` leaves it open.
/// @return what DoModal returned
int RunInsideSettingsWindow(TOParam& record, TParamSetPage page,
                            const std::function<void(HWND window)>& work);

/// Opens the entry of a row of the list, as a click on it does.
void OpenRow(HWND window, int row);

/// The rows of the list.
int RowCount(HWND window);

/// The page on show; a host without tabs is its own page.
HWND PageOnShow(HWND window);

/// Opens each entry of the list, and each tab in it, and calls `visit` with the page on show.
void WalkPages(HWND window, const std::function<void(HWND page)>& visit);

/// Paints the window and what stands in it, now.
void PaintNow(HWND window);
