// What a window must look like, and its picture.
#pragma once

#include <windows.h>

#include <string>

/// Fails for each visible child that clips its text, stands on a sibling, or lies outside of a window
/// that does not scroll.
void CheckLayout(HWND window);

/// Leaves a picture in the folder that ZORVANE_PICTURES names; without it does nothing.
/// @param name of the file, without its ending
void LeavePicture(HWND window, const std::string& name);
