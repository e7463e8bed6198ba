#include "exchange/import_reading.h"

#include "controls/fit_grid_columns.h"

#include <algorithm>

namespace {

constexpr size_t PieceBytes = 1 << 19;

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

ImportReading::ImportReading(FlexGrid* grid, const QString& file, std::optional<char> separator, FirstLine firstLine)
    : m_grid(grid)
    , m_file(file)
    , m_separator(separator)
    , m_firstLine(firstLine)
{
    m_grid->SetRedraw(false);
    m_grid->SetRows(1);
    m_grid->SetCols(1);
    m_grid->SetTextMatrix(0, 0, QString());
}

ImportReading::~ImportReading()
{
    m_fill.reset();
    m_grid->SetRedraw(true);
}

bool ImportReading::ReadPiece()
{
    if (!m_reader) {
        if (m_file.ReadPiece())
            return true;
        StartOnText();
    }
    for (const size_t end = m_reader->Position() + PieceBytes; m_reader->Position() < end;)
        if (!ReadRow()) {
            ShowRows();
            return false;
        }
    return true;
}

void ImportReading::StartOnText()
{
    m_text = m_file.TakeUtf8();
    m_reader.emplace(std::string_view(m_text.constData(), size_t(m_text.size())), m_separator);
    if (m_firstLine == FirstLine::Titles) {
        m_reader->ReadTitles();
        const std::vector<std::string_view>& titles = m_reader->Cells();
        m_grid->SetCols(std::max(1, int(titles.size())));
        for (int col = 0; col < int(titles.size()); ++col)
            m_grid->SetTextMatrix(0, col, Text(titles[size_t(col)]));
        m_rows = 1;
    }
    m_fill.emplace(m_grid);
}

bool ImportReading::ReadRow()
{
    if (!m_reader->ReadRow())
        return false;
    m_fill->Widen(int(m_reader->Cells().size()));
    for (const std::string_view cell : m_reader->Cells())
        m_fill->Add(cell);
    m_rows = m_fill->EndRow(0) + 1;
    return true;
}

void ImportReading::ShowRows()
{
    m_fill.reset();
    int unnamed = 0;
    for (int col = 0; col < m_grid->Cols(); ++col) {
        m_grid->SetColAlignment(col, CellAlign::LeftCenter);
        if (m_grid->TextMatrix(0, col).isEmpty())
            m_grid->SetTextMatrix(0, col, tr("Field%1").arg(unnamed++));
    }
    m_grid->SetCol(0);
    m_grid->SetColSel(m_grid->Cols() - 1);
    FitGridColumns(m_grid);
}
