#include "controls/flex_grid_rows.h"

#include "base/runtime_error.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace {
constexpr size_t WasteWorthCompacting = 1 << 16;

/// Places are counted in 32 bits, which keeps the cells of large lists small.
quint32 PlaceNumber(size_t number)
{
    if (number > std::numeric_limits<quint32>::max())
        throw RuntimeError(7, QStringLiteral("Out of memory"));
    return quint32(number);
}
} // namespace

FlexGridRows::Place FlexGridRows::Append(std::string_view utf8)
{
    PlaceNumber(m_arena.size() + utf8.size());
    const Place place{quint32(m_arena.size()), quint32(utf8.size())};
    m_arena.append(utf8);
    return place;
}

void FlexGridRows::Add(std::string_view utf8)
{
    if (m_cells.size() - m_building == size_t(m_cols))
        throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
    m_cells.push_back(Append(utf8));
}

void FlexGridRows::Mark()
{
    m_marks.resize(m_rows.size());
    m_marks.push_back(true);
}

void FlexGridRows::EndRow(qint64 rowData)
{
    const quint32 end = PlaceNumber(m_cells.size());
    m_rows.push_back({rowData, m_building, end - m_building});
    m_building = end;
}

std::string_view FlexGridRows::Cell(int row, int col) const
{
    const Row& cells = m_rows[size_t(row)];
    if (quint32(col) >= cells.count)
        return {};
    const Place place = m_cells[cells.first + size_t(col)];
    return std::string_view(m_arena).substr(place.start, place.length);
}

void FlexGridRows::SetCell(int row, int col, std::string_view utf8)
{
    Row& cells = m_rows[size_t(row)];
    if (quint32(col) >= cells.count)
        Widen(cells, quint32(col) + 1);
    Place& place = m_cells[cells.first + size_t(col)];
    m_waste += place.length;
    place = Append(utf8);
    if (m_waste > WasteWorthCompacting && m_waste > m_arena.size() / 2)
        Compact();
}

void FlexGridRows::Widen(Row& row, quint32 count)
{
    if (row.first + size_t(row.count) != m_cells.size()) {
        m_waste += row.count * sizeof(Place);
        const quint32 first = PlaceNumber(m_cells.size());
        m_cells.resize(first + size_t(row.count));
        std::copy_n(m_cells.begin() + row.first, row.count, m_cells.begin() + first);
        row.first = first;
    }
    m_cells.resize(row.first + size_t(count));
    row.count = count;
    m_building = PlaceNumber(m_cells.size());
}

void FlexGridRows::Resize(int rows)
{
    const bool shrinks = rows < Count();
    m_rows.resize(size_t(rows));
    if (!shrinks)
        return;
    m_marks.resize(std::min(m_marks.size(), size_t(rows)));
    Compact();
}

void FlexGridRows::SetCols(int cols)
{
    m_cols = cols;
    for (Row& row : m_rows)
        row.count = qMin(row.count, quint32(cols));
}

void FlexGridRows::Compact()
{
    FlexGridRows kept(m_cols);
    for (const Row& row : m_rows) {
        for (quint32 col = 0; col < row.count; ++col) {
            const Place place = m_cells[row.first + size_t(col)];
            kept.Add(std::string_view(m_arena).substr(place.start, place.length));
        }
        kept.EndRow(row.data);
    }
    kept.m_marks = std::move(m_marks);
    *this = std::move(kept);
}
