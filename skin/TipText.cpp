#include "skin/TipText.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr char kLineEnd[] = "\r\n";
constexpr int kExtraWidth = 5;
constexpr int kExtraHeight = 2;
} // namespace

std::vector<std::string> TipLines(const char* text)
{
    std::vector<std::string> lines;
    while (const char* end = strstr(text, kLineEnd))
    {
        lines.emplace_back(text, end);
        text = end + strlen(kLineEnd);
    }
    return lines;
}

TipMeasure MeasureTip(const std::vector<std::string>& lines,
                      const std::function<TipSize(const std::string& line)>& extentOf)
{
    TipMeasure measure = {};
    for (const std::string& line : lines)
    {
        const TipSize extent = extentOf(line.empty() ? " " : line);
        measure.window.width = std::max(measure.window.width, extent.width);
        measure.window.height += extent.height;
        measure.lineHeight = extent.height;
    }
    measure.window.width += kExtraWidth;
    measure.window.height += kExtraHeight;
    return measure;
}
