// The choice of a sound file by the trader.
#pragma once

#include <windows.h>

#include <string>

/// Lets the trader choose a *.wav file. The working directory stays, wherever the trader went.
/// @return the path, below 1024 bytes; empty when nothing was chosen
std::string ChooseSoundFile(HWND owner);
