// The lines of a tool tip and the size they need. Free of windows.h.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// Width and height in pixels.
struct TipSize
{
    int width;
    int height;
};

/// The lines of a tool tip's text, each without its "\r\n". What stands behind the last "\r\n" is no
/// line: whoever shows a tip ends every line.
std::vector<std::string> TipLines(const char* text);

/// What a tool tip's text needs.
struct TipMeasure
{
    TipSize window;
    int lineHeight; ///< of the last line; 0 without lines
};

/// @param extentOf the size of a line; an empty line is measured as one blank
TipMeasure MeasureTip(const std::vector<std::string>& lines,
                      const std::function<TipSize(const std::string& line)>& extentOf);
