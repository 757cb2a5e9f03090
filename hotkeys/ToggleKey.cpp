#include "hotkeys/ToggleKey.h"

#include "core/Text.h"

#include <algorithm>

namespace
{

constexpr size_t kLongestToken = 24;
constexpr size_t kShortestToken = 2;

bool EqualsIgnoringCase(const std::string& text, const std::string& lowerCase)
{
    const auto lower = [](char c)
    {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    };
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                      [lower](char a, char b) { return lower(a) == b; });
}

bool IsModifier(const std::string& token)
{
    return EqualsIgnoringCase(token, "ctrl") || EqualsIgnoringCase(token, "alt") ||
           EqualsIgnoringCase(token, "shift");
}

/// A text that is written piece by piece, each ended by a NUL, with NULs where nothing was written.
class PiecewiseText
{
public:
    void WriteModifier(const std::string& name)
    {
        const std::string piece = name + " + ";
        Write(0, piece);
        m_position += piece.size();
    }

    void WriteKey(char key) { Write(m_position, std::string(1, key)); }

    /// Up to the first NUL.
    std::string Shown() const { return m_bytes.c_str(); }

private:
    void Write(size_t position, const std::string& piece)
    {
        m_bytes.resize(std::max(m_bytes.size(), position + piece.size() + 1));
        m_bytes.replace(position, piece.size() + 1, piece.c_str(), piece.size() + 1);
    }

    std::string m_bytes;
    size_t m_position = 0;
};

} // namespace

std::string ToggleKeyText(const std::string& setting)
{
    PiecewiseText text;
    size_t begin = std::string::npos;
    for (size_t i = 0; i < setting.size(); ++i)
    {
        if (setting[i] == '[')
            begin = i + 1;
        if (setting[i] != ']' || begin == std::string::npos)
            continue;
        const std::string token = setting.substr(begin, std::min(i - begin, kLongestToken));
        if (token.size() < kShortestToken)
            continue;
        if (IsModifier(token))
            text.WriteModifier(token);
        else
            text.WriteKey(static_cast<char>(ParseInt(token.c_str())));
    }
    return text.Shown();
}
