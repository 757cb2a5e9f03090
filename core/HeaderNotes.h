// What the comments of a public header say, for documents that are made from them. Free of windows.h.
#pragma once

#include <map>
#include <string>
#include <vector>

struct EnumeratorNote
{
    std::string name;
    int value;
    std::string note;
};

struct HeaderNotes
{
    std::map<std::string, std::string> fields; ///< the `///` lines above a field, by its name
    std::map<std::string, std::vector<EnumeratorNote>>
        enums; ///< the `///<` notes, by the enum's name
};

/// Reads a header in the form of this tree: a field a line, a value for each enumerator.
HeaderNotes ReadHeaderNotes(const std::string& header);
