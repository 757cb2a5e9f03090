// Every colour of the window, in one place.
#pragma once

#include <windows.h>

// Texts
constexpr COLORREF kControlText = RGB(17, 18, 19);
constexpr COLORREF kListText = RGB(108, 114, 147);
constexpr COLORREF kWhiteText = RGB(255, 255, 255);
constexpr COLORREF kBlackText = RGB(0, 0, 0);

// Surfaces
constexpr COLORREF kPageSheet = RGB(255, 255, 255);
constexpr COLORREF kPageSurround = RGB(239, 243, 246);
constexpr COLORREF kFieldBack = RGB(245, 248, 250);
constexpr COLORREF kSelectedListBack = RGB(234, 242, 255);
constexpr COLORREF kScriptBack = RGB(225, 225, 225);
constexpr COLORREF kTipBack = RGB(255, 255, 231);

// Lines and accents
constexpr COLORREF kThinFrame = RGB(232, 236, 239);
constexpr COLORREF kAccent = RGB(56, 125, 255);
constexpr COLORREF kSelectedListBar = RGB(56, 119, 255);
constexpr COLORREF kTipFrame = RGB(0, 0, 0);

/// Stands for "no colour set" wherever the kit stores a colour; so does anything above 0xFFFFFF.
constexpr COLORREF kNoColor = 0x1000000;
