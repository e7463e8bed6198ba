#include "exchange/csv_export_commands.h"

#include "base/files.h"
#include "base/runtime_error.h"
#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "db/connection.h"
#include "exchange/csv_exports.h"

#include <QCoreApplication>

#include <exception>

namespace {

/// What is said around the exports.
struct CsvExports {
    Q_DECLARE_TR_FUNCTIONS(CsvExports)
};

QString AskFile()
{
    return SaveFileName(CsvExports::tr("Save As"),
        CsvExports::tr("CSV (*.csv)") + QLatin1String(";;") + CsvExports::tr("Text documents (*.txt)"), QString());
}

/// Throws RuntimeError for the data file, which is in use.
void DeleteOldFile(const QString& file)
{
    if (IsSameFile(file, gConnection->Path()))
        throw PathFileAccessError();
    DeleteFile(file);
}

void Write(const QString& file, const std::string& csv)
{
    WriteCsv(file, csv);
    ShowSavedAs(file);
}

template <typename Body>
void TellingFailure(Body&& body)
{
    try {
        body();
    } catch (const std::exception&) {
        MsgBox(CsvExports::tr("Unable to write to file, please check you have permissions and try again."),
            Icon::Critical);
    }
}

void ExportTable(std::string (*text)())
{
    const QString file = AskFile();
    if (file.isEmpty())
        return;
    const Hourglass hourglass(CsvExports::tr("Writing the file..."));
    TellingFailure([&] {
        DeleteOldFile(file);
        Write(file, text());
    });
}

} // namespace

void ExportInvoices()
{
    ExportTable(InvoicesCsv);
}

void ExportCustomers()
{
    ExportTable(CustomersCsv);
}

void ExportInventory()
{
    const Hourglass hourglass(CsvExports::tr("Writing the file..."));
    const QString file = AskFile();
    if (file.isEmpty())
        return;
    TellingFailure([&] {
        const std::string text = InventoryCsv();
        DeleteOldFile(file);
        Write(file, text);
    });
}

void ExportTodaysInvoices()
{
    const QString file = AskFile();
    if (file.isEmpty())
        return;
    const Hourglass hourglass(CsvExports::tr("Writing the file..."));
    DeleteOldFile(file);
    Write(file, TodaysInvoicesCsv());
}
