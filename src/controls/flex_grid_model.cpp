#include "controls/flex_grid_model.h"

#include "base/numbers.h"

#include <algorithm>

namespace {
constexpr int FirstCols = 2;
// More than any screen shows; a cell that holds a whole file would be converted with each painting.
constexpr size_t ShownBytes = 1 << 13;
// Nor is it laid out to its end.
constexpr int ShownCharacters = 2000;

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

} // namespace

FlexGridModel::FlexGridModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_rows(FirstCols)
    , m_columns(FirstCols)
{
}

int FlexGridModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return IsFiltered() ? int(m_shown.size()) : Count();
}

int FlexGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant FlexGridModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = RowAt(index.row());
    const int col = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return ShownText(row, col);
    case Qt::TextAlignmentRole:
        return QVariant(CellAlignment(row, col));
    case Qt::UserRole:
        return col == 0 ? QVariant(RowData(row)) : QVariant();
    case Qt::ToolTipRole:
        return IsMarked(row, col) ? m_markMeaning : QVariant();
    case Qt::AccessibleTextRole:
        return IsMarked(row, col) ? QStringLiteral("%1, %2").arg(Text(row, col), m_markMeaning) : QVariant();
    default:
        return {};
    }
}

CellLook FlexGridModel::Look(const QModelIndex& cell) const
{
    const int row = RowAt(cell.row());
    const int col = cell.column();
    return {ShownText(row, col), CellAlignment(row, col), IsMarked(row, col), row == m_tinted};
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

QString FlexGridModel::ShownText(int row, int col) const
{
    return FromUtf8(Start(m_rows.Cell(row, col), ShownBytes));
}

void FlexGridModel::SetText(int row, int col, const QString& text)
{
    ++m_rowChanges;
    m_rows.SetCell(row, col, text.toStdString());
    const QModelIndex cell = index(row, col);
    emit dataChanged(cell, cell);
}

void FlexGridModel::SetRowData(int row, qint64 data)
{
    ++m_rowChanges;
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

void FlexGridModel::SetMark(int col, const QString& meaning)
{
    m_markedColumn = col;
    m_markMeaning = meaning;
}

void FlexGridModel::SetRowCount(int rows)
{
    const int before = Count();
    ++m_rowChanges;
    if (rows < before) {
        const int shownBefore = rowCount();
        const int shown = ShownAmong(rows);
        if (shown < shownBefore)
            beginRemoveRows({}, shown, shownBefore - 1);
        m_rows.Resize(rows);
        m_search.Forget();
        if (IsFiltered())
            m_shown.resize(size_t(shown));
        if (shown < shownBefore)
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
    ++m_rowChanges;
    const auto change = [&] {
        m_columns.resize(size_t(cols));
        m_rows.SetCols(cols);
        m_search.Forget();
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

void FlexGridModel::ReplaceRow(int row, const FlexGridRows& cells)
{
    ++m_rowChanges;
    for (int col = 0; col < columnCount(); ++col)
        m_rows.SetCell(row, col, cells.Cell(0, col));
    m_rows.SetData(row, cells.Data(0));
    m_search.Forget();
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void FlexGridModel::AppendRow(const FlexGridRows& cells)
{
    ++m_rowChanges;
    beginInsertRows({}, Count(), Count());
    for (int col = 0; col < cells.CellsOf(0); ++col)
        m_rows.Add(cells.Cell(0, col));
    m_rows.EndRow(cells.Data(0));
    m_search.Forget();
    endInsertRows();
}

void FlexGridModel::Replace(FlexGridRows rows)
{
    if (rows.Cols() != columnCount())
        rows.SetCols(columnCount());
    beginResetModel();
    ++m_rowChanges;
    m_rows = std::move(rows);
    m_search.Forget();
    FindShown();
    endResetModel();
}

void FlexGridModel::SetFilter(const QString& words)
{
    if (words == m_filter)
        return;
    beginResetModel();
    m_filter = words;
    m_words = words.simplified().split(u' ', Qt::SkipEmptyParts);
    FindShown();
    endResetModel();
}

void FlexGridModel::FindShown()
{
    if (IsFiltered()) {
        m_shown = m_search.RowsWith(m_words, m_rows);
    } else {
        m_shown = {};
        m_search.Forget();
    }
}

void FlexGridModel::Reveal(int row)
{
    if (!IsFiltered())
        return;
    const int place = ShownAmong(row);
    if (place < rowCount() && RowAt(place) == row)
        return;
    beginInsertRows({}, place, place);
    m_shown.insert(m_shown.begin() + place, row);
    endInsertRows();
}

void FlexGridModel::FilterAnew()
{
    if (!IsFiltered())
        return;
    beginResetModel();
    FindShown();
    endResetModel();
}

int FlexGridModel::ShownAmong(int rows) const
{
    if (!IsFiltered())
        return rows;
    return int(std::lower_bound(m_shown.begin(), m_shown.end(), rows) - m_shown.begin());
}

int FlexGridModel::NearestPlace(int row) const
{
    return std::min(ShownAmong(row), rowCount() - 1);
}

int FlexGridModel::FindStart(int col, const QString& start, int fromPlace) const
{
    const int places = rowCount();
    for (int i = 0; i < places; ++i) {
        const int row = RowAt((fromPlace + i) % places);
        if (OnOneLine(ShownText(row, col)).startsWith(start, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

QString FlexGridModel::OnOneLine(QString text)
{
    text.truncate(ShownCharacters);
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    return text.replace(u'\n', u' ');
}

Qt::Alignment FlexGridModel::CellAlignment(int row, int col) const
{
    const CellAlign alignment = m_columns[size_t(col)].alignment;
    if (alignment == CellAlign::General && IsNumeric(Text(row, col)))
        return Qt::AlignRight | Qt::AlignVCenter;
    return QtAlignment(alignment);
}
