#include "iniwarden/IniText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace
{
constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kNoKeyBegins = "[;#";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr size_t kNone = std::string_view::npos;

bool IsLeadByte(char c)
{
    const unsigned char byte = static_cast<unsigned char>(c);
    return byte >= 0x81 && byte <= 0xFE;
}

// A lead byte takes whatever byte follows, as in the system's own conversion: only then do the
// profile functions see the same names as we do.
size_t CharacterLength(std::string_view text, size_t at)
{
    return IsLeadByte(text[at]) && at + 1 < text.size() ? 2 : 1;
}

size_t FindFirst(std::string_view text, char wanted)
{
    for (size_t at = 0; at < text.size(); at += CharacterLength(text, at))
        if (text[at] == wanted)
            return at;
    return kNone;
}

size_t FindLast(std::string_view text, char wanted)
{
    size_t found = kNone;
    for (size_t at = 0; at < text.size(); at += CharacterLength(text, at))
        if (text[at] == wanted)
            found = at;
    return found;
}

char FoldCase(char c)
{
    return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c;
}

/// Equal for all spellings of a name; that some other names share it does no harm.
uint32_t HashName(std::string_view name)
{
    uint32_t hash = 2166136261u;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(FoldCase(c))) * 16777619u;
    return hash;
}

/// Compares without the case of ASCII letters, but for those that are the second byte of a
/// character.
bool IsSameName(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t at = 0; at < a.size();)
    {
        const size_t length = CharacterLength(a, at);
        const bool isSame = length == 1 ? FoldCase(a[at]) == FoldCase(b[at])
                                        : a.compare(at, length, b, at, length) == 0;
        if (!isSame)
            return false;
        at += length;
    }
    return true;
}

/// A part of the text itself, even when nothing is left.
std::string_view Trim(std::string_view text)
{
    const size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// A value as the profile functions give it: without blanks around it and without a pair of quotes.
std::string_view Strip(std::string_view value)
{
    value = Trim(value);
    const bool quoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'') &&
                        value.front() == value.back();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// The name in a section's head, or nothing when the line is none.
std::optional<std::string_view> SectionName(std::string_view line)
{
    line = Trim(line);
    if (line.empty() || line.front() != '[')
        return std::nullopt;
    const size_t close = FindLast(line, ']');
    if (close == kNone)
        return std::nullopt;
    return Trim(line.substr(1, close - 1));
}

/// The key of a line, and where in the line its value begins: at the key's end without a `=`.
struct KeyLine
{
    std::string_view key;
    size_t valueBegin;
};

std::optional<KeyLine> ParseKeyLine(std::string_view line)
{
    const size_t begin = line.find_first_not_of(kBlanks);
    if (begin == kNone || kNoKeyBegins.find(line[begin]) != kNone)
        return std::nullopt;
    const size_t equals = FindFirst(line, '=');
    const std::string_view key = Trim(line.substr(0, equals));
    if (key.empty())
        return std::nullopt;
    return KeyLine{key, equals == kNone ? begin + key.size() : equals + 1};
}

size_t BodyBegin(std::string_view text)
{
    return text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
}

std::string LineBreak(const std::string& text)
{
    const size_t feed = text.find('\n');
    const bool bare = feed != kNone && (feed == 0 || text[feed - 1] != '\r');
    return bare ? "\n" : "\r\n";
}

bool FitsOneLine(const std::string& text)
{
    return text.find_first_of(std::string_view("\r\n\0", 3)) == kNone;
}

std::string_view WithoutSign(std::string_view digits)
{
    const bool hasSign = !digits.empty() && (digits.front() == '+' || digits.front() == '-');
    return digits.substr(hasSign ? 1 : 0);
}
} // namespace

IniText::IniText(std::string whole)
    : text(std::move(whole))
{
    for (size_t begin = BodyBegin(text); begin < text.size();)
    {
        const size_t feed = text.find('\n', begin);
        const size_t next = feed == kNone ? text.size() : feed + 1;
        size_t end = feed == kNone ? text.size() : feed;
        // A CR belongs to the line's end only where an LF follows it.
        if (feed != kNone && end > begin && text[end - 1] == '\r')
            --end;
        ReadLine(begin, end, next);
        begin = next;
    }
    std::sort(sections.begin(), sections.end());
    std::sort(entries.begin(), entries.end());
}

void IniText::ReadLine(size_t begin, size_t end, size_t next)
{
    const std::string_view line = std::string_view(text).substr(begin, end - begin);
    if (const auto name = SectionName(line))
    {
        const size_t nameBegin = name->data() - text.data();
        sections.push_back({NameAt(nameBegin, nameBegin + name->size()), sections.size(), next});
    }
    if (sections.empty() || Trim(line).empty())
        return;
    sections.back().bodyEnd = next;
    if (const auto parsed = ParseKeyLine(line))
    {
        const size_t keyBegin = parsed->key.data() - text.data();
        entries.push_back({NameAt(keyBegin, keyBegin + parsed->key.size()), sections.back().number,
                           begin + parsed->valueBegin, end});
    }
}

IniText::Name IniText::NameAt(size_t begin, size_t end) const
{
    return {HashName(std::string_view(text).substr(begin, end - begin)), begin, end};
}

/// The first in the text that bears the name and is accepted.
template <class Named, class Accept>
const Named* IniText::FindName(const std::vector<Named>& names, const std::string& name,
                               Accept accept) const
{
    const Name wanted = {HashName(name), 0, 0};
    auto place = std::lower_bound(names.begin(), names.end(), wanted);
    for (; place != names.end() && place->hash == wanted.hash; ++place)
    {
        const std::string_view found =
            std::string_view(text).substr(place->begin, place->end - place->begin);
        if (accept(*place) && IsSameName(found, name))
            return &*place;
    }
    return nullptr;
}

const IniText::Section* IniText::FindSection(const std::string& name) const
{
    return FindName(sections, name, [](const Section&) { return true; });
}

const IniText::Entry* IniText::FindEntry(const Section& section, const std::string& key) const
{
    return FindName(entries, key,
                    [&](const Entry& entry) { return entry.section == section.number; });
}

std::optional<std::string> IniText::Find(const std::string& section, const std::string& key) const
{
    const Section* place = FindSection(section);
    const Entry* entry = place ? FindEntry(*place, key) : nullptr;
    if (!entry || entry->valueBegin == entry->end)
        return std::nullopt;
    const std::string_view value =
        std::string_view(text).substr(entry->valueBegin, entry->lineEnd - entry->valueBegin);
    const bool byHand = entry->valueBegin > entry->end + 1;
    return std::string(byHand ? Strip(value) : value);
}

std::string IniText::With(const std::string& section, const std::string& key,
                          const std::string& value) const
{
    const std::string assignment = "=" + value;
    const Section* place = FindSection(section);
    if (const Entry* entry = place ? FindEntry(*place, key) : nullptr)
        return std::string(text).replace(entry->end, entry->lineEnd - entry->end, assignment);

    const std::string lineBreak = LineBreak(text);
    const std::string line = key + assignment + lineBreak;
    if (place)
        return WithLines(place->bodyEnd, line);
    return WithLines(text.size(), "[" + section + "]" + lineBreak + line);
}

std::string IniText::WithLines(size_t at, const std::string& lines) const
{
    const bool atLineBegin = at == BodyBegin(text) || text[at - 1] == '\n';
    if (atLineBegin)
        return std::string(text).insert(at, lines);
    // A last line that ends in a lone CR has it in its value and keeps it there.
    const std::string lineBreak = text[at - 1] == '\r' ? "\r\n" : LineBreak(text);
    return std::string(text).insert(at, lineBreak + lines);
}

bool IniText::CanHold(const std::string& section, const std::string& key, const std::string& value)
{
    if (!FitsOneLine(section) || !FitsOneLine(key) || !FitsOneLine(value))
        return false;
    const std::string head = "[" + section + "]";
    const std::string line = key + "=";
    const auto name = SectionName(head);
    const auto parsed = ParseKeyLine(line);
    return name && !name->empty() && *name == section && parsed && parsed->key == key;
}

int IniInteger(const std::string& value, int fallback)
{
    const std::string_view number = Strip(value);
    if (number.empty())
        return fallback;
    unsigned int magnitude = 0;
    for (const char c : WithoutSign(number))
    {
        if (c < '0' || c > '9')
            break;
        magnitude = magnitude * 10 + static_cast<unsigned int>(c - '0');
    }
    return static_cast<int>(number.front() == '-' ? 0 - magnitude : magnitude);
}

double IniFloat(const std::string& value, double fallback)
{
    const std::string_view number = Strip(value);
    const std::string_view digits = WithoutSign(number);
    double magnitude = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    // from_chars would take a second sign, and names such as "inf".
    if (result.ec != std::errc() || std::signbit(magnitude) || !std::isfinite(magnitude))
        return fallback;
    return number.front() == '-' ? -magnitude : magnitude;
}
