#include "controls/flex_grid_model.h"

#include "base/numbers.h"
#include "base/runtime_error.h"

#include <algorithm>
#include <limits>

namespace {
constexpr int FirstCols = 2;
constexpr size_t WasteWorthCompacting = 1 << 16;
// More than any screen shows; a cell that holds a whole file would be converted with each painting.
constexpr size_t ShownBytes = 1 << 13;

Qt::Alignment QtAlignment(CellAlign alignment)
{
    switch (alignment) {
    case CellAlign::LeftTop:
        return Qt::AlignLeft | Qt::AlignTop;
    case CellAlign::CenterTop:
        return Qt::AlignHCenter | Qt::AlignTop;
    case CellAlign::CenterCenter:
        return Qt::AlignCenter;
    case CellAlign::RightTop:
        return Qt::AlignRight | Qt::AlignTop;
    case CellAlign::RightCenter:
        return Qt::AlignRight | Qt::AlignVCenter;
    case CellAlign::LeftCenter:
    case CellAlign::General:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QString FromUtf8(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// The start of a text, cut between characters.
std::string_view Start(std::string_view utf8, size_t bytes)
{
    constexpr auto IsInsideCharacter = [](char byte) { return (byte & 0xC0) == 0x80; };
    while (bytes < utf8.size() && bytes > 0 && IsInsideCharacter(utf8[bytes]))
        --bytes;
    return utf8.substr(0, bytes);
}

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
    if (shrinks)
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
    *this = std::move(kept);
}

FlexGridModel::FlexGridModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_rows(FirstCols)
    , m_columns(FirstCols)
{
}

int FlexGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.Count();
}

int FlexGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant FlexGridModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return FromUtf8(Start(m_rows.Cell(index.row(), index.column()), ShownBytes));
    case Qt::TextAlignmentRole:
        return QVariant(CellAlignment(index.row(), index.column()));
    case Qt::UserRole:
        return index.column() == 0 ? QVariant(RowData(index.row())) : QVariant();
    default:
        return {};
    }
}

QVariant FlexGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    const Column& column = m_columns[size_t(section)];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::TextAlignmentRole)
        return QVariant(QtAlignment(column.titleAlignment));
    return {};
}

QString FlexGridModel::Text(int row, int col) const
{
    return FromUtf8(m_rows.Cell(row, col));
}

void FlexGridModel::SetText(int row, int col, const QString& text)
{
    m_rows.SetCell(row, col, text.toStdString());
    const QModelIndex cell = index(row, col);
    emit dataChanged(cell, cell);
}

void FlexGridModel::SetRowData(int row, qint64 data)
{
    m_rows.SetData(row, data);
}

void FlexGridModel::SetTitle(int col, const QString& title)
{
    m_columns[size_t(col)].title = title;
    emit headerDataChanged(Qt::Horizontal, col, col);
}

void FlexGridModel::SetTitleAlignment(int col, CellAlign alignment)
{
    m_columns[size_t(col)].titleAlignment = alignment;
    emit headerDataChanged(Qt::Horizontal, col, col);
}

void FlexGridModel::SetAlignment(int col, CellAlign alignment)
{
    m_columns[size_t(col)].alignment = alignment;
    if (rowCount() > 0)
        emit dataChanged(index(0, col), index(rowCount() - 1, col));
}

void FlexGridModel::SetRowCount(int rows)
{
    const int before = rowCount();
    if (rows < before) {
        beginRemoveRows({}, rows, before - 1);
        m_rows.Resize(rows);
        endRemoveRows();
    } else if (rows > before) {
        beginInsertRows({}, before, rows - 1);
        m_rows.Resize(rows);
        endInsertRows();
    }
}

void FlexGridModel::SetColumnCount(int cols)
{
    const int before = columnCount();
    const auto change = [&] {
        m_columns.resize(size_t(cols));
        m_rows.SetCols(cols);
    };
    if (cols < before) {
        beginRemoveColumns({}, cols, before - 1);
        change();
        endRemoveColumns();
    } else if (cols > before) {
        beginInsertColumns({}, before, cols - 1);
        change();
        endInsertColumns();
    }
}

void FlexGridModel::Replace(FlexGridRows rows)
{
    if (rows.Cols() != columnCount())
        rows.SetCols(columnCount());
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

Qt::Alignment FlexGridModel::CellAlignment(int row, int col) const
{
    const CellAlign alignment = m_columns[size_t(col)].alignment;
    if (alignment == CellAlign::General && IsNumeric(Text(row, col)))
        return Qt::AlignRight | Qt::AlignVCenter;
    return QtAlignment(alignment);
}
