#include "skin/ColorMarkup.h"

#include <string_view>

namespace
{

constexpr std::string_view kTagStart = "<COLOR#";
constexpr size_t kDigits = 9;

/// The value of three decimal digits, cut to eight bits.
unsigned long Channel(std::string_view digits)
{
    return ((digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0')) & 0xFF;
}

/// The nine digits of the tag that begins at a place of the text; empty when it is no whole tag.
std::string_view TagDigits(std::string_view text, size_t tag)
{
    const std::string_view rest = text.substr(tag + kTagStart.size());
    const bool isWhole = rest.find_first_not_of("0123456789") == kDigits && rest[kDigits] == '>';
    return isWhole ? rest.substr(0, kDigits) : std::string_view();
}

} // namespace

bool ParseColorMarkup(const char* text, unsigned long* color)
{
    if (!text)
        return false;
    const std::string_view all = text;
    if (all.find_first_of("\r\n") != std::string_view::npos)
        return false;

    for (size_t tag = all.rfind(kTagStart); tag != std::string_view::npos;
         tag = tag == 0 ? std::string_view::npos : all.rfind(kTagStart, tag - 1))
    {
        const std::string_view digits = TagDigits(all, tag);
        if (digits.empty())
            continue;
        *color = Channel(digits) | Channel(digits.substr(3)) << 8 | Channel(digits.substr(6)) << 16;
        return true;
    }
    return false;
}
