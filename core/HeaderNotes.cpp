#include "core/HeaderNotes.h"

#include <regex>
#include <sstream>

namespace
{

std::map<std::string, std::string> FieldNotes(const std::string& header)
{
    static const std::regex noteLine(R"(\s*///\s*(.*))");
    static const std::regex fieldLine(R"(\s*\w+ (\w+)(\[\d+\])?;)");
    std::map<std::string, std::string> notes;
    std::string note;
    std::istringstream lines(header);
    std::smatch match;
    for (std::string line; std::getline(lines, line);)
    {
        if (std::regex_match(line, match, noteLine))
        {
            note += (note.empty() ? "" : " ") + match[1].str();
            continue;
        }
        if (!note.empty() && std::regex_match(line, match, fieldLine))
            notes[match[1]] = note;
        note.clear();
    }
    return notes;
}

std::vector<EnumeratorNote> EnumeratorNotes(const std::string& body)
{
    static const std::regex enumerator(R"((\w+)\s*=\s*(\d+),\s*///<\s*([^\n]*))");
    std::vector<EnumeratorNote> notes;
    for (std::sregex_iterator at(body.begin(), body.end(), enumerator), end; at != end; ++at)
        notes.push_back({(*at)[1], std::stoi((*at)[2]), (*at)[3]});
    return notes;
}

} // namespace

HeaderNotes ReadHeaderNotes(const std::string& header)
{
    static const std::regex enumeration(R"(enum (\w+)\s*\{([^}]*)\};)");
    HeaderNotes notes = {FieldNotes(header), {}};
    for (std::sregex_iterator at(header.begin(), header.end(), enumeration), end; at != end; ++at)
        notes.enums[(*at)[1]] = EnumeratorNotes((*at)[2]);
    return notes;
}
