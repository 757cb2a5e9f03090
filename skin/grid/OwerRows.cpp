#include "skin/grid/OwerRows.h"

#include "skin/grid/GridArithmetic.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <utility>

namespace
{

using RowPointers = std::vector<std::unique_ptr<OwerRow>>;

/// Each text is converted once and not at each comparison. Descending compares the other way round:
/// negating the comparison would call equal keys ordered both ways, which the library's sort may
/// answer by leaving the array.
template <typename ReadKey>
void SortByKey(RowPointers& rows, ReadKey readKey, bool ascending)
{
    using Key = decltype(readKey(*rows.front()));
    using Entry = std::pair<Key, std::unique_ptr<OwerRow>>;

    std::vector<Entry> entries;
    entries.reserve(rows.size());
    for (auto& row : rows)
    {
        const Key key = readKey(*row);
        entries.emplace_back(key, std::move(row));
    }
    std::sort(entries.begin(), entries.end(),
              [ascending](const Entry& a, const Entry& b)
              { return ascending ? a.first < b.first : b.first < a.first; });
    std::transform(entries.begin(), entries.end(), rows.begin(),
                   [](Entry& entry) { return std::move(entry.second); });
}

int ParseInteger(const char* text)
{
    return Saturated(strtoll(text, nullptr, 10));
}

} // namespace

OwerCell MakeGrownCell()
{
    OwerCell cell;
    cell.backColor = kNoCellColor;
    return cell;
}

int OwerRows::Add(size_t columns, const char* firstCellText)
{
    if (columns == 0)
        return -1;

    OwerCell blank;
    blank.backColor = kNoCellColor;
    blank.textColor = kNoCellColor;
    try
    {
        auto row = std::make_unique<OwerRow>(columns, blank);
        CopyCellText(row->front().text, firstCellText);
        rows.push_back(std::move(row));
    }
    catch (const std::exception&) // no memory, or more cells than a row can ever have
    {
        return -1;
    }
    return Count() - 1;
}

bool OwerRows::Delete(int row)
{
    if (row < 0 || row >= Count())
        return false;
    rows.erase(rows.begin() + row);
    return true;
}

OwerCell* OwerRows::Find(int row, size_t column)
{
    if (row < 0 || row >= Count())
        return nullptr;
    OwerRow& cells = *rows[row];
    return column < cells.size() ? &cells[column] : nullptr;
}

OwerCell* OwerRows::FindGrown(int row, size_t column, size_t columns, const OwerCell& newCell)
{
    if (row < 0 || row >= Count() || column >= columns)
        return Find(row, column);

    OwerRow& cells = *rows[row];
    try
    {
        if (column >= cells.size())
            cells.resize(columns, newCell);
    }
    catch (const std::exception&)
    {
        return nullptr;
    }
    return &cells[column];
}

void OwerRows::Sort(RowOrder order, int column, bool ascending)
{
    if (column < 0)
        return;

    const auto textOf = [column](const OwerRow& row) -> const char*
    {
        return static_cast<size_t>(column) < row.size() ? row[column].text : "";
    };

    switch (order)
    {
    case RowOrder::Number:
        SortByKey(
            rows, [&](const OwerRow& row) { return Truncated(atof(textOf(row))); }, ascending);
        break;
    case RowOrder::Integer:
        SortByKey(
            rows, [&](const OwerRow& row) { return ParseInteger(textOf(row)); }, ascending);
        break;
    case RowOrder::Text:
        SortByKey(
            rows, [&](const OwerRow& row) { return std::string_view(textOf(row)); }, ascending);
        break;
    }
}
