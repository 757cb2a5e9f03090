// A trader's session without a trader: works the open settings window by the mouse and takes a
// picture of each page.
#pragma once

#include <string>

/// Starts the session: it waits for the window, opens every entry of the list, changes the two boxes
/// of "指标策略交易" and presses "确定". Runs on timers of the calling thread, so the window's own
/// message loop keeps it going.
/// @param pictureFolder where the pictures go, as BMP files
void StartSession(const std::string& pictureFolder);

/// Takes one picture of the window with the page that it starts with, and presses "取消".
/// @param name of the file, without its ending
void StartPicture(const std::string& pictureFolder, const std::string& name);
