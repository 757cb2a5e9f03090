#include "pages/MarginStrategies.h"

#include <algorithm>
#include <map>

namespace
{

constexpr size_t kMostChoices = 4; // control ids
constexpr char kBlanks[] = " \t\r\n";

const std::map<std::string, const char*>& Labels()
{
    static const std::map<std::string, const char*> labels = {
        {"3", "融资优先"},
        {"1", "仅融资买入"},
        {"0", "仅普通买入"},
    };
    return labels;
}

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string> Split(const std::string& text)
{
    std::vector<std::string> pieces;
    size_t start = 0;
    while (start <= text.size())
    {
        const size_t end = std::min(text.find('|', start), text.size());
        if (end > start)
            pieces.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return pieces;
}

} // namespace

const char* MarginStrategyLabel(const std::string& value)
{
    const auto label = Labels().find(value);
    return label == Labels().end() ? nullptr : label->second;
}

std::vector<std::string> OfferedStrategies(const std::string& items)
{
    std::vector<std::string> offered;
    for (const std::string& piece : Split(Trimmed(items)))
        if (MarginStrategyLabel(piece) && offered.size() < kMostChoices)
            offered.push_back(piece);
    if (offered.empty())
        offered = {"3", "1", "0"};
    return offered;
}
