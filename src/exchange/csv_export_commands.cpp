#include "exchange/csv_export_commands.h"

#include "base/files.h"
#include "base/runtime_error.h"
#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "exchange/csv_exports.h"

#include <QCoreApplication>

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

/// Runs `write` and returns the file's name; "" after a message when it fails.
template <typename Write>
QString Written(const QString& file, Write&& write)
{
    try {
        write();
        return file;
    } catch (const std::exception&) {
        MsgBox(CsvExports::tr("Unable to write to file, please check you have permissions and try again."),
            Icon::Critical);
        return QString();
    }
}

QString ExportTable(std::string (*text)())
{
    const QString file = AskFile();
    if (file.isEmpty())
        return QString();
    const Hourglass hourglass;
    return Written(file, [&] {
        DeleteOldFile(file);
        WriteCsv(file, text());
    });
}

} // namespace

QString ExportInvoices()
{
    return ExportTable(InvoicesCsv);
}

QString ExportCustomers()
{
    return ExportTable(CustomersCsv);
}

QString ExportInventory()
{
    const Hourglass hourglass;
    const QString file = AskFile();
    if (file.isEmpty())
        return QString();
    return Written(file, [&] {
        const std::string text = InventoryCsv();
        DeleteOldFile(file);
        WriteCsv(file, text);
    });
}

QString ExportTodaysInvoices()
{
    const QString file = AskFile();
    if (file.isEmpty())
        return QString();
    const Hourglass hourglass;
    DeleteOldFile(file);
    WriteCsv(file, TodaysInvoicesCsv());
    return file;
}
