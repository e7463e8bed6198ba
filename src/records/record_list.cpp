#include "records/record_list.h"

#include "base/numbers.h"
#include "base/regional_formats.h"
#include "base/settings_store.h"
#include "controls/flex_grid_model.h"
#include "controls/hourglass.h"

#include <algorithm>
#include <cstring>

namespace {

// Wider than any screen: a stored width beyond it comes from a damaged store and would push the other columns away.
constexpr int WidestColumn = 100'000;

QString WidthKey(const RecordList* list, int col)
{
    return list->objectName() + QStringLiteral("ColWidth") + QString::number(col);
}

/// Painting stops while a list is filled, and resumes also when its statement fails.
class RedrawOff {
public:
    explicit RedrawOff(FlexGrid* grid)
        : m_grid(grid)
    {
        m_grid->SetRedraw(false);
    }
    ~RedrawOff() { m_grid->SetRedraw(true); }
    RedrawOff(const RedrawOff&) = delete;
    RedrawOff& operator=(const RedrawOff&) = delete;

private:
    FlexGrid* m_grid;
};

} // namespace

RecordList::RecordList(QWidget* parent)
    : FlexGrid(parent)
{
    QObject::connect(this, &FlexGrid::Click, this, &RecordList::SortByTitle);
    QObject::connect(this, &FlexGrid::DblClick, this, [this] {
        if (MouseRow() != 0)
            emit Opened();
    });
}

void RecordList::SetColumns(const QList<ListColumn>& columns)
{
    m_columns = columns;
    m_source = {};
    m_sorts = std::any_of(columns.begin(), columns.end(), [](const ListColumn& column) { return column.order; });
    SetCols(int(columns.size()));
    for (int col = 0; col < Cols(); ++col)
        SetColAlignment(col, columns.at(col).alignment);
    SetUpColumns();
    ShowOrder();
}

void RecordList::SetUpColumns()
{
    for (int col = 0; col < Cols(); ++col) {
        SetTitle(col, m_columns.at(col).title, m_columns.at(col).titleAlignment);
        SetColWidth(col, m_columns.at(col).width);
    }
    GiveSpareWidth(Spare::AtLoad, 0);
}

void RecordList::Stretch()
{
    GiveSpareWidth(Spare::AtResize, m_scrollBarRoom);
}

void RecordList::StretchWithSize()
{
    QObject::connect(this, &FlexGrid::Resized, this, &RecordList::Stretch);
}

void RecordList::GiveSpareWidth(Spare when, int room)
{
    for (int col = 0; col < Cols(); ++col) {
        const Spare spare = m_columns.at(col).spare;
        if (spare != when && spare != Spare::Always)
            continue;
        const int width = WidthInTwips() - (SumOfWidths() - ColWidth(col)) - room;
        // At load it only grows. Later a rest that the room eats up is left too: a width below nothing is no width.
        if (width > (when == Spare::AtLoad ? ColWidth(col) : 0))
            SetColWidth(col, width);
    }
}

int RecordList::SumOfWidths() const
{
    int sum = 0;
    for (int col = 0; col < Cols(); ++col)
        sum += ColWidth(col);
    return sum;
}

int RecordList::ColumnOf(const char* field) const
{
    const auto it = std::find_if(m_columns.begin(), m_columns.end(),
        [field](const ListColumn& column) { return std::strcmp(column.field, field) == 0; });
    return int(it - m_columns.begin());
}

void RecordList::SetTitleOf(const char* field, const QString& title)
{
    const int col = ColumnOf(field);
    SetTitle(col, title, m_columns.at(col).titleAlignment);
}

void RecordList::SaveWidths() const
{
    for (int col = 0; col < Cols(); ++col)
        SaveConfig(WidthKey(this, col), QString::number(ColWidth(col)));
}

void RecordList::RestoreWidths()
{
    for (int col = 0; col < Cols(); ++col) {
        const QString stored = GetConfig(WidthKey(this, col), QStringLiteral("-1"));
        const double width = IsNumeric(stored) ? CDbl(stored) : -1;
        if (width > 0 && width <= WidestColumn)
            SetColWidth(col, CLng(width));
    }
}

Sql RecordList::Ordered(const QString& head, const char* defaultOrder) const
{
    Sql sql(head);
    if (Tag().isEmpty())
        return sql.Append(QLatin1String(defaultOrder));
    return sql.Append(QStringLiteral("ORDER BY ")).Append(Tag());
}

void RecordList::Load(const Sql& sql, int row, qint64 selectId)
{
    LoadSome(sql, row, selectId, nullptr, {});
}

void RecordList::LoadSome(const Sql& sql, int row, qint64 selectId, const RowFilter& isShown, const QString& choice)
{
    const RedrawOff redraw(this);
    ShowOrder();
    if (Holds(SourceNow(sql, choice))) {
        FilterAnew();
        return SelectLoaded(row, RowOf(selectId));
    }
    const Hourglass hourglass(tr("Reading the list..."));

    struct Cell {
        int field;
        CellWriter write;
    };
    std::vector<Cell> cells;
    m_source = {};
    const int found = Fill(sql, selectId, isShown, [&](const Recordset& rs, GridFill& fill) {
        if (cells.empty())
            for (const ListColumn& column : m_columns)
                cells.push_back({rs.Field(column.field), column.cell});
        for (Cell& cell : cells) {
            if (cell.write)
                cell.write(rs, cell.field, fill);
            else
                fill.Add(rs.Text(cell.field));
        }
    });
    m_source = SourceNow(sql, choice);
    SelectLoaded(row, found);
}

void RecordList::LoadRows(const Sql& sql, int row, qint64 selectId, const RowWriter& cells)
{
    const RedrawOff redraw(this);
    ShowOrder();
    m_source = {};
    SelectLoaded(row, Fill(sql, selectId, nullptr, cells));
}

RecordList::Source RecordList::SourceNow(const Sql& sql, const QString& choice) const
{
    return {sql.Filled(), choice, Formats().generation, Model()->RowChanges()};
}

bool RecordList::Holds(const Source& source)
{
    // Asked in any case: from now on it tells what has changed since this load.
    const bool fileChanged = m_file.Changed(*gConnection);
    return !fileChanged && source == m_source;
}

int RecordList::Fill(const Sql& sql, qint64 selectId, const RowFilter& isShown, const RowWriter& cells)
{
    SetRows(1);
    int found = 0;
    GridFill fill(this);
    for (Recordset rs = gConnection->Execute(sql); !rs.Eof(); rs.MoveNext()) {
        if (isShown && !isShown(rs))
            continue;
        cells(rs, fill);
        const qint64 id = rs.Long(0);
        const int counter = fill.EndRow(id);
        if (id == selectId)
            found = counter;
    }
    return found;
}

void RecordList::SelectLoaded(int row, int foundRow)
{
    // The record that was just added or edited shows, whatever the filter says.
    if (foundRow > 0)
        Reveal(foundRow);
    const int chosen = std::min(foundRow > 0 ? foundRow : row, Rows() - 1);
    // To select it may scroll it into view.
    const bool wasInView = RowIsVisible(chosen);
    SelectRow(chosen);
    // What an empty list shows a screen reader says.
    setAccessibleDescription(Rows() > 1 ? QString() : EmptyText());
    if (m_foundRowOnTop && !(wasInView && RowIsVisible(Row())))
        SetTopRow(Row());
}

void RecordList::SelectRecord(int row, qint64 selectId)
{
    SelectLoaded(row, RowOf(selectId));
}

bool RecordList::LoadRow(const Sql& sql, const RowWriter& cells)
{
    if (!Filter().isEmpty())
        return false;
    const Recordset rs = gConnection->Execute(sql);
    if (rs.Eof())
        return true;
    const qint64 id = rs.Long(0);
    const int row = RowOf(id);
    GridFill fill(this, row > 0 ? row : Rows());
    cells(rs, fill);
    fill.EndRow(id);
    setAccessibleDescription({});
    return true;
}

void RecordList::SortByTitle()
{
    if (MouseRow() == 0 && m_sorts)
        SortBy(MouseCol());
}

void RecordList::SortBy(int col)
{
    if (const char* order = m_columns.at(col).order)
        SetTag(QLatin1String(order));
    emit Sorted();
}

int RecordList::SortedColumn() const
{
    for (int col = 0; m_sorts && col < Cols(); ++col)
        if (const char* order = m_columns.at(col).order; order && Tag() == QLatin1String(order))
            return col;
    return -1;
}

void RecordList::ShowOrder()
{
    const int sorted = SortedColumn();
    ShowSorted(sorted);
    const int name = ColumnOf("name");
    SetSearchColumn(sorted >= 0 ? sorted : name < Cols() ? name : 0);
}
