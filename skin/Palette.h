// Every colour of the window, in one place.
#pragma once

#include <windows.h>

// Texts
constexpr COLORREF kControlText = RGB(17, 18, 19);
constexpr COLORREF kDarkText = RGB(32, 32, 32);
constexpr COLORREF kListText = RGB(108, 114, 147);
constexpr COLORREF kWhiteText = RGB(255, 255, 255);
constexpr COLORREF kBlackText = RGB(0, 0, 0);

// Surfaces
constexpr COLORREF kPageSheet = RGB(255, 255, 255);
constexpr COLORREF kPageSurround = RGB(239, 243, 246);
constexpr COLORREF kFieldBack = RGB(245, 248, 250);
constexpr COLORREF kSelectedListBack = RGB(234, 242, 255);
constexpr COLORREF kSelectedIconListBack = RGB(222, 222, 222);
constexpr COLORREF kScriptBack = RGB(225, 225, 225);
constexpr COLORREF kTipBack = RGB(255, 255, 231);

// Lines and accents
constexpr COLORREF kThinFrame = RGB(232, 236, 239);
constexpr COLORREF kAccent = RGB(56, 125, 255);
constexpr COLORREF kSelectedListBar = RGB(56, 119, 255);
constexpr COLORREF kTipFrame = RGB(0, 0, 0);

// Dialog buttons
constexpr COLORREF kOkButton = RGB(56, 125, 239);
constexpr COLORREF kOkButtonHover = RGB(74, 136, 252);
constexpr COLORREF kOkButtonPressed = RGB(50, 113, 230);
constexpr COLORREF kCancelButton = RGB(133, 144, 179);
constexpr COLORREF kCancelButtonHover = RGB(151, 163, 204);
constexpr COLORREF kCancelButtonPressed = RGB(113, 123, 153);
constexpr COLORREF kUndecidedButton = RGB(133, 144, 179);
constexpr COLORREF kDialogButtonText = RGB(247, 249, 250);

// Dark buttons: top and bottom of each gradient, the edge, and the caption while disabled
constexpr COLORREF kDarkButtonTop = RGB(56, 56, 56);
constexpr COLORREF kDarkButtonBottom = RGB(26, 26, 26);
constexpr COLORREF kDarkButtonPressedTop = RGB(40, 40, 40);
constexpr COLORREF kDarkButtonPressedBottom = RGB(16, 16, 16);
constexpr COLORREF kDarkButtonThirdTop = RGB(84, 84, 84);
constexpr COLORREF kDarkButtonThirdBottom = RGB(30, 30, 30);
constexpr COLORREF kDarkButtonEdge = RGB(81, 81, 81);
constexpr COLORREF kDarkButtonDisabledText = RGB(112, 112, 112);
constexpr COLORREF kDarkButtonSpare = RGB(243, 243, 243);

// Scroll bars
constexpr COLORREF kScrollBack = RGB(240, 245, 249);
constexpr COLORREF kScrollArrowBack = RGB(255, 255, 255);
constexpr COLORREF kScrollLine = RGB(204, 214, 224);
constexpr COLORREF kScrollThumb = RGB(210, 214, 226);

/// Stands for "no colour set" wherever the kit stores a colour; so does anything above 0xFFFFFF.
constexpr COLORREF kNoColor = 0x1000000;

// Grid
constexpr COLORREF kGridBack = RGB(255, 255, 255);
constexpr COLORREF kGridSelectedRow = RGB(216, 237, 242);
constexpr COLORREF kGridBand = RGB(229, 229, 229);
constexpr COLORREF kGridLine = RGB(178, 178, 178);
constexpr COLORREF kGridText = RGB(85, 85, 85);
constexpr COLORREF kGridSpareLine = RGB(155, 155, 155);
constexpr COLORREF kGridSpareHighlight = RGB(255, 255, 0);

/// What is transparent in the arrow of a cell.
constexpr COLORREF kCellArrowGround = RGB(244, 245, 249);
