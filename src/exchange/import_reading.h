#pragma once

#include "controls/flex_grid.h"
#include "controls/hourglass.h"
#include "exchange/csv_file.h"
#include "exchange/csv_reader.h"

#include <QCoreApplication>

/// The reading of a file into a grid, done in pieces so that the window stays alive between them. To stop it, let it
/// go: the grid keeps the rows that were read, and is not painted while it lives.
class ImportReading {
    Q_DECLARE_TR_FUNCTIONS(ImportReading)
public:
    enum class FirstLine { Titles, Cells };

    /// Throws RuntimeError when the file cannot be opened, and without a description when it is empty.
    ImportReading(FlexGrid* grid, const QString& file, std::optional<char> separator, FirstLine firstLine);
    ~ImportReading();
    ImportReading(const ImportReading&) = delete;
    ImportReading& operator=(const ImportReading&) = delete;

    /// Reads on. False when all is read and the columns have their titles and widths. Throws RuntimeError when the file
    /// cannot be read.
    bool ReadPiece();
    /// How many rows there are, with the title row; 0 before the first line.
    int Rows() const { return m_rows; }

private:
    void StartOnText();
    bool ReadRow();
    void ShowRows();

    Hourglass m_hourglass{tr("Reading the file...")};
    FlexGrid* m_grid;
    CsvFile m_file;
    std::optional<char> m_separator;
    FirstLine m_firstLine;
    QByteArray m_text;
    std::optional<CsvReader> m_reader;
    std::optional<GridFill> m_fill;
    int m_rows = 0;
};
