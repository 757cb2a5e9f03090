// The text of an INI file in code page 936: finding a value in it and putting one in. Free of
// windows.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One INI text, parsed once. Whatever is no section and no key (comments, blank lines, garbage)
/// is kept byte for byte.
///
/// The text is read as the profile functions read it: names are compared without the case of ASCII
/// letters, the first of two equal sections or keys counts, `;` and `#` begin a comment line, and a
/// key without `=` has no value. One thing differs: a value whose `=` follows the key directly is
/// everything up to the line's end, blanks and quotes included, since that is how With() writes it
/// and what was written must come back. A blank before the `=` marks a line laid out by hand; its
/// value loses the blanks around it and one pair of quotes, as with the profile functions.
class IniText
{
public:
    IniText() = default;
    explicit IniText(std::string whole);

    const std::string& Text() const { return text; }

    /// The value of a key, or nothing when the text has no such key.
    std::optional<std::string> Find(const std::string& section, const std::string& key) const;

    /// This text with one value put in. A present key keeps its place and spelling; a new key goes to
    /// the end of its section, ahead of the blank lines there; a new section goes to the end of the
    /// text. Line ends follow the text's first one, CRLF in a text that has none.
    /// @pre CanHold(section, key, value)
    std::string With(const std::string& section, const std::string& key,
                     const std::string& value) const;

    /// Whether a value written under these names would be found again: refuses line breaks and NULs,
    /// and names that would be read back as something else (empty, blanks around them, a `=` or a
    /// comment mark in the wrong place, half a double-byte character at the end).
    static bool CanHold(const std::string& section, const std::string& key,
                        const std::string& value);

private:
    /// A name in the text, by its place and by a hash that its spellings share.
    struct Name
    {
        uint32_t hash;
        size_t begin;
        size_t end;

        bool operator<(const Name& other) const
        {
            return hash != other.hash ? hash < other.hash : begin < other.begin;
        }
    };

    struct Section : Name
    {
        size_t number;  ///< in the order of the text, from 0
        size_t bodyEnd; ///< behind the last line that is not blank
    };

    struct Entry : Name
    {
        size_t section;
        size_t valueBegin; ///< the key's end when there is no `=`
        size_t lineEnd;
    };

    void ReadLine(size_t begin, size_t end, size_t next);
    Name NameAt(size_t begin, size_t end) const;
    template <class Named, class Accept>
    const Named* FindName(const std::vector<Named>& names, const std::string& name,
                          Accept accept) const;
    const Section* FindSection(const std::string& name) const;
    const Entry* FindEntry(const Section& section, const std::string& key) const;
    std::string WithLines(size_t at, const std::string& lines) const;

    std::string text;
    std::vector<Section> sections; ///< sorted once all are read, as are the entries
    std::vector<Entry> entries;
};

/// The number at the front of a value, as GetPrivateProfileInt reads it: blanks, a sign and decimal
/// digits; what follows is ignored, and so is a pair of quotes around all. Digits beyond 32 bits wrap
/// around, so that an unsigned field keeps its bits.
/// @return 0 for a value that is no number, `fallback` for an empty one
int IniInteger(const std::string& value, int fallback);

/// The decimal number at the front of a value, with `.` as its point whatever the locale.
/// @return `fallback` for a value that does not begin with a finite number
double IniFloat(const std::string& value, double fallback);
