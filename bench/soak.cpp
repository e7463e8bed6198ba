#include "soak.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "support/previews.h"
#include "support/screen.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdio>
#include <vector>

namespace {

// What a shop does besides, for so many invoices.
constexpr int ScansOfAnInvoice = 10;
constexpr int InvoicesToAPreview = 2;
constexpr int InvoicesToAnItemEdit = 5;
constexpr int InvoicesToAReceipt = 20;
constexpr int InvoicesToABackup = 50;

/// What the process and its file hold between two invoices.
struct Holding {
    double megabytes = 0;
    double descriptors = 0;
    double megabytesOfFile = 0;
};

double MegabytesOf(const QString& file)
{
    return double(QFileInfo(file).size()) / 1e6;
}

class ShopDay {
public:
    explicit ShopDay(RunningProgram& program)
        : m_program(program)
    {
        constexpr const char* InStock = "SELECT barcode FROM item WHERE noinstock > 20 AND barcode <> ''";
        for (Recordset item = gConnection->Execute(InStock); !item.Eof(); item.MoveNext())
            m_codes.emplace_back(item.Text(0));
    }

    void WriteInvoice(int number)
    {
        Click(Window().Toolbar->widgetForAction(Find<QAction>(Window().Toolbar, "New Invoice")));
        InvoicePage& page = *Window().picNewInvoice;
        Type(page.txtFirstname, QStringLiteral("Ann %1").arg(number));
        Type(page.txtLastname, QStringLiteral("O'Hara"));
        for (int scan = 0; scan < ScansOfAnInvoice; ++scan) {
            Type(page.txtBarcode, NextCode());
            m_scans.push_back(MillisecondsOf([&page] {
                Press(page.txtBarcode, Qt::Key_Return);
                LetPaint();
            }));
        }
        const bool isPrinted = number % InvoicesToAPreview == 0;
        AnswerNextBox(isPrinted ? QMessageBox::Yes : QMessageBox::No);
        Click(page.cmdCompleteInvoice);
        LetPaint();
        if (isPrinted)
            SavePreviewAsPdf();
    }

    void DoWhatElseIsDue(int number)
    {
        if (number % InvoicesToAnItemEdit == 0)
            EditItem(number);
        if (number % InvoicesToAReceipt == 0)
            ReceiveStock();
        if (number % InvoicesToABackup == 0)
            ExportAndBackUp();
        Choose("mnuListInvoices");
        LetPaint();
    }

    Holding WhatIsHeld() const
    {
        LetPaint();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Caches with a bound of their own: how full they are is no matter. Styles keep pictures of each new dialog.
        QPixmapCache::clear();
        sqlite3_db_release_memory(m_program.Handle());
        return {MegabytesInUse(), double(QDir(QStringLiteral("/proc/self/fd")).count()), MegabytesOf(m_program.Path())};
    }

    /// What the file would take without the room that its rows leave between them.
    double MegabytesOfRows() const
    {
        const QString packed = m_folder.filePath(QStringLiteral("packed.mdb"));
        FloorStatement(m_program.Handle(), EngineSql{"VACUUM INTO ?"}).Run(packed.toStdString());
        return MegabytesOf(packed);
    }

    /// What each took, from Enter to the new line on the screen.
    const std::vector<double>& Scans() const { return m_scans; }

private:
    MainWindow& Window() const { return m_program.Window(); }
    void Choose(const char* entry) { Find<QAction>(&Window(), entry)->trigger(); }

    /// Another item each time, all over the file.
    QString NextCode()
    {
        constexpr size_t Stride = 7919;
        return QString::fromStdString(m_codes[m_next++ * Stride % m_codes.size()]);
    }

    static void AnswerNextBox(QMessageBox::StandardButton answer)
    {
        WhenFormShows<QMessageBox>([answer](QMessageBox& box) { Click(box.button(answer)); });
    }

    /// Saves under a name that is free; returns the path to be.
    void SaveNextFileAs(const QString& name)
    {
        const QString path = m_folder.filePath(name);
        QFile::remove(path);
        WhenFormShows<QFileDialog>([path](QFileDialog& dialog) {
            auto* file = dialog.findChild<QLineEdit*>();
            Type(file, path);
            Press(file, Qt::Key_Return);
        });
    }

    void SavePreviewAsPdf()
    {
        for (PreviewWindow* preview : Previews()) {
            SaveNextFileAs(QStringLiteral("invoice.pdf"));
            Find<QAction>(preview, "mnuSavePdf")->trigger();
            LetPaint();
            Find<QAction>(preview, "mnuClose")->trigger();
        }
        if (!QFileInfo::exists(m_folder.filePath(QStringLiteral("invoice.pdf"))))
            ADD_FAILURE() << "an invoice became no PDF";
    }

    void EditItem(int number)
    {
        Choose("mnuViewInventory");
        LetPaint();
        WhenDialogShows(
            "the item record", [](QDialog* dialog) { return dialog->objectName() == QLatin1String("frmItemDetails"); },
            [number](QDialog* form) {
                Type(Find<QWidget>(form, "txtFields_7"), QString::number(number % 10));
                Click(Find<QPushButton>(form, "cmdOk"));
            });
        FlexGrid* items = Window().picInventory->gInventory;
        DoubleClickRow(items, 1 + number % (items->Rows() - 1));
        LetPaint();
    }

    void ReceiveStock()
    {
        const QString code = NextCode();
        WhenDialogShows(
            "the goods received",
            [](QDialog* dialog) { return dialog->objectName() == QLatin1String("frmReceiveStock"); },
            [code](QDialog* form) {
                auto* scanned = Find<QWidget>(form, "txtBarcode");
                Type(scanned, code);
                Press(scanned, Qt::Key_Return);
                auto* quantity = Find<QWidget>(form, "txtAddQuantity");
                Type(quantity, QStringLiteral("12"));
                Press(quantity, Qt::Key_Return);
                Click(Find<QPushButton>(form, "cmdCancel"));
            });
        Choose("mnuInventoryReceive");
    }

    void ExportAndBackUp()
    {
        for (const char* table : {"mnuFileExportResCSV", "mnuFileExpInventory", "mnuFileExportCustomers"}) {
            SaveNextFileAs(QStringLiteral("table.csv"));
            Choose(table);
        }
        SaveNextFileAs(QStringLiteral("backup.mdb"));
        AnswerNextBox(QMessageBox::Ok);
        Choose("mnuFileBackup");
        if (MegabytesOf(m_folder.filePath(QStringLiteral("backup.mdb"))) != MegabytesOf(m_program.Path()))
            ADD_FAILURE() << "a backup is not as long as its file";
    }

    RunningProgram& m_program;
    QTemporaryDir m_folder;
    std::vector<std::string> m_codes;
    size_t m_next = 0;
    std::vector<double> m_scans;
};

double MedianOf(const std::vector<double>& all, size_t first, size_t count)
{
    Times times;
    for (size_t i = first; i < first + count; ++i)
        times.Add(all[i]);
    return times.Median();
}

double PiecesSold()
{
    return gConnection->Execute("SELECT sum(quantity) FROM invoiceline")[0].ToDouble();
}

void Judge(const Holding& tenth, const Holding& end, double megabytesOfRows)
{
    constexpr double AllowedMemory = 1.05;
    constexpr double AllowedRoom = 1.5;
    PrintFigure("soak: memory at the end; floor: after a tenth", end.megabytes, tenth.megabytes,
        AllowedMemory * tenth.megabytes, "MB");
    PrintFigure("soak: open files; floor: after a tenth", end.descriptors, tenth.descriptors, tenth.descriptors, "");
    PrintFigure("soak: data file; floor: its rows, packed", end.megabytesOfFile, megabytesOfRows,
        AllowedRoom * megabytesOfRows, "MB");
}

void JudgeScans(const std::vector<double>& scans, double missing)
{
    constexpr double Allowed = 1.1;
    const size_t tenth = scans.size() / 10;
    const double atFirst = MedianOf(scans, 0, tenth);
    PrintFigure("soak: scan, last tenth's median; floor: the first's", MedianOf(scans, scans.size() - tenth, tenth),
        atFirst, Allowed * atFirst, "ms");
    PrintFigure("soak: scans that did not get into the file", missing, 0, 0, "scans");
}

} // namespace

bool Soak(RunningProgram& program, int invoices)
{
    testing::InitGoogleTest();
    StartWatchingForms();
    const double soldBefore = PiecesSold();
    ShopDay day(program);
    Holding tenth;
    Holding end;
    for (int number = 1; number <= invoices; ++number) {
        day.WriteInvoice(number);
        day.DoWhatElseIsDue(number);
        if (number % (invoices / 10) != 0)
            continue;
        end = day.WhatIsHeld();
        if (number == invoices / 10)
            tenth = end;
        std::fprintf(stderr, "%d invoices: %.1f MB, %.0f files open, data file of %.1f MB\n", number, end.megabytes,
            end.descriptors, end.megabytesOfFile);
    }
    CheckAwaitedForms();
    Judge(tenth, end, day.MegabytesOfRows());
    JudgeScans(day.Scans(), soldBefore + double(day.Scans().size()) - PiecesSold());
    return !testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed();
}
