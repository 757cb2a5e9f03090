// Puts one value into an arbitrary text: the value comes back, and nothing else changes.
#include "iniwarden/IniText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace
{
void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// What an INI text is made of. ASCII bytes of the input stand for it, so that even short inputs say
// something; the others stand for themselves.
constexpr std::string_view kTokens[] = {
    "[s]",
    "[S]\n",
    "\n[s]\n",
    "[\xC4\x5D]\n",
    "[ s ]\r\n",
    "[s",
    "k=",
    "\nk=1",
    "\r\nK = 2 ",
    "K",
    "s",
    "=",
    "\r\n",
    "\n",
    "\r",
    " ",
    "\t",
    ";",
    "#",
    "\"",
    "'",
    "]",
    "[",
    "1",
    "\xC4\x41",
    "\xC4\x61",
    "\xC4\x5D",
    "\x81\x3D",
    "\xC4",
    "\x81",
    "j=1",
    "j=\r",
    "\xEF\xBB\xBF",
};
constexpr std::string_view kNames[] = {"s",        "S",        "k",        "j",
                                       "\xC4\x41", "\xC4\x61", "\xC4\x5D", "\x81\x3D"};

std::string Expand(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes)
    {
        const unsigned char byte = static_cast<unsigned char>(c);
        if (byte < 0x80)
            text += kTokens[byte % std::size(kTokens)];
        else
            text += c;
    }
    return text;
}

size_t TakeByte(std::string_view& rest)
{
    const size_t byte = rest.empty() ? 0 : static_cast<unsigned char>(rest.front());
    rest.remove_prefix(rest.empty() ? 0 : 1);
    return byte;
}

std::string TakeText(std::string_view& rest)
{
    constexpr size_t kLongest = 20;
    const size_t length = TakeByte(rest) % (kLongest + 1);
    const std::string_view bytes = rest.substr(0, length);
    rest.remove_prefix(bytes.size());
    return Expand(bytes);
}

std::string TakeName(std::string_view& rest)
{
    const size_t choice = TakeByte(rest);
    return choice < 0xC0 ? std::string(kNames[choice % std::size(kNames)]) : TakeText(rest);
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    for (size_t begin = 0; begin < text.size();)
    {
        const size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::string Bare(const std::string& text)
{
    const size_t begin = text.find_first_not_of(" \t");
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(" \t\r") + 1 - begin);
}

/// Names that the text may hold, found without any of the parser's knowledge.
void CollectNames(const std::string& text, std::vector<std::string>& sections,
                  std::vector<std::string>& keys)
{
    for (const std::string& line : Lines(text))
    {
        const std::string bare = Bare(line);
        if (bare.size() > 2 && bare.front() == '[')
            sections.push_back(Bare(bare.substr(1, bare.rfind(']') - 1)));
        keys.push_back(Bare(bare.substr(0, bare.find('='))));
    }
}

std::string Fold(std::string text)
{
    for (size_t at = 0; at < text.size(); ++at)
    {
        const unsigned char byte = static_cast<unsigned char>(text[at]);
        if (byte >= 0x81 && byte <= 0xFE)
            ++at;
        else if (byte >= 'A' && byte <= 'Z')
            text[at] += 32;
    }
    return text;
}

void RequireSameBytesAround(const std::string& before, const std::string& after)
{
    const size_t shorter = std::min(before.size(), after.size());
    size_t front = 0;
    while (front < shorter && before[front] == after[front])
        ++front;
    size_t back = 0;
    while (back < shorter - front &&
           before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;
    // What went away is a part of one line.
    const std::string lost = before.substr(front, before.size() - front - back);
    Require(lost.find('\n') == std::string::npos);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const std::string section = TakeName(rest);
    const std::string key = TakeName(rest);
    const std::string value = TakeText(rest);
    const std::string text = Expand(rest);

    const IniText before(text);
    Require(before.Text() == text);
    IniInteger(value, 1);
    IniFloat(value, 1);
    before.Find(section, key);
    if (!IniText::CanHold(section, key, value))
        return 0;

    const IniText after(before.With(section, key, value));
    Require(after.Find(section, key) == value);
    Require(after.With(section, key, value) == after.Text());
    RequireSameBytesAround(text, after.Text());

    std::vector<std::string> sections;
    std::vector<std::string> keys;
    CollectNames(text, sections, keys);
    sections.resize(std::min<size_t>(sections.size(), 32));
    keys.resize(std::min<size_t>(keys.size(), 64));
    for (const std::string& otherSection : sections)
        for (const std::string& otherKey : keys)
            if (Fold(otherSection) != Fold(section) || Fold(otherKey) != Fold(key))
                Require(before.Find(otherSection, otherKey) == after.Find(otherSection, otherKey));
    return 0;
}
