#include "records/lists.h"

#include "base/numbers.h"
#include "base/settings_store.h"

#include <algorithm>

namespace {

// Wider than any screen: a stored width beyond it comes from a damaged store and would push the other columns away.
constexpr int WidestColumn = 100'000;

QString WidthKey(const FlexGrid* grid, int col)
{
    return grid->objectName() + QStringLiteral("ColWidth") + QString::number(col);
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

int SumOfWidths(const FlexGrid* grid)
{
    int sum = 0;
    for (int col = 0; col < grid->Cols(); ++col)
        sum += grid->ColWidth(col);
    return sum;
}

} // namespace

void FillCombo(ComboBox* combo, const Sql& sql)
{
    QList<std::pair<QString, qint64>> entries;
    for (Recordset rs = gConnection->Execute(sql); !rs.Eof(); rs.MoveNext()) {
        const std::string_view text = rs.Text(1);
        entries.emplaceBack(QString::fromUtf8(text.data(), qsizetype(text.size())), rs.Long(0));
    }
    combo->AddItems(entries);
}

void FillPriceLists(ComboBox* combo)
{
    combo->Clear();
    FillCombo(combo, Sql("SELECT id, name FROM PriceList ORDER BY name"));
}

void LoadList(FlexGrid* grid, const Sql& sql, int row, qint64 selectId, const RowWriter& cells)
{
    const RedrawOff redraw(grid);
    grid->SetRows(1);
    {
        GridFill fill(grid);
        for (Recordset rs = gConnection->Execute(sql); !rs.Eof(); rs.MoveNext()) {
            const std::optional<qint64> id = cells(rs, fill);
            if (!id)
                continue;
            const int counter = fill.EndRow(*id);
            if (*id == selectId)
                row = counter;
        }
    }
    grid->SelectRow(std::min(row, grid->Rows() - 1));
}

Sql Ordered(const QString& head, const FlexGrid* grid, const QString& defaultOrder)
{
    Sql sql(head);
    if (grid->Tag().isEmpty())
        return sql.Append(defaultOrder);
    return sql.Append(QStringLiteral("ORDER BY ")).Append(grid->Tag());
}

void SortOnTitleClick(FlexGrid* grid, const QStringList& expressions, const std::function<void()>& reload)
{
    if (grid->MouseRow() != 0)
        return;
    if (grid->MouseCol() < expressions.size())
        grid->SetTag(expressions.at(grid->MouseCol()));
    reload();
}

void SaveGridColumnWidths(const FlexGrid* grid)
{
    for (int col = 0; col < grid->Cols(); ++col)
        SaveConfig(WidthKey(grid, col), QString::number(grid->ColWidth(col)));
}

void RestoreGridColumnWidths(FlexGrid* grid)
{
    for (int col = 0; col < grid->Cols(); ++col) {
        const QString stored = GetConfig(WidthKey(grid, col), QStringLiteral("-1"));
        const double width = IsNumeric(stored) ? CDbl(stored) : -1;
        if (width > 0 && width <= WidestColumn)
            grid->SetColWidth(col, CLng(width));
    }
}

void SetUpColumns(FlexGrid* grid, const QList<GridColumn>& columns, int stretchColumn)
{
    grid->SetCols(int(columns.size()));
    for (int col = 0; col < columns.size(); ++col) {
        const GridColumn& column = columns.at(col);
        grid->SetTitle(col, QString::fromUtf8(column.title), column.titleAlignment);
        grid->SetColWidth(col, column.width);
    }
    const int sum = SumOfWidths(grid);
    if (grid->WidthInTwips() - sum > 0)
        grid->SetColWidth(stretchColumn, grid->WidthInTwips() + grid->ColWidth(stretchColumn) - sum);
}

void StretchColumn(FlexGrid* grid, int stretchColumn, int margin)
{
    if (stretchColumn >= grid->Cols())
        return;
    const int left = grid->WidthInTwips() - (SumOfWidths(grid) - grid->ColWidth(stretchColumn));
    // A rest that the margin eats up is left too: a width below nothing is no width.
    if (left - margin > 0)
        grid->SetColWidth(stretchColumn, left - margin);
}
