#include "controls/dialogs.h"
#include "support/test.h"

#include <QFileDialog>

namespace {

TEST(Dialogs, WithoutAPrinterPrintingAndPageSetupEndQuietly)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "a printer is installed here";
    PageMargins margins{1, 2, 3, 4};
    EXPECT_FALSE(ShowPageSetup(nullptr, margins));
    EXPECT_EQ(margins.left, 1);
    EXPECT_FALSE(PrintDialog(CurrentPrinter()));
    QWidget window;
    PrintWindowImage(&window);
}

TEST(Dialogs, PageSetupGivesItsMarginsAndACancelGivesNone)
{
    const QPageLayout before = CurrentPrinter().pageLayout();
    CurrentPrinter().setPageMargins(QMarginsF(0.5, 0.75, 1, 1.25), QPageLayout::Inch);
    ScriptedAnswers answers;
    answers.ExpectPageSetup(false);
    answers.ExpectPageSetup(true);
    PageMargins margins;
    EXPECT_FALSE(ShowPageSetup(nullptr, margins));
    EXPECT_EQ(margins.bottom, 0);
    EXPECT_TRUE(ShowPageSetup(nullptr, margins));
    EXPECT_EQ(std::make_tuple(margins.left, margins.top, margins.right, margins.bottom),
        std::make_tuple(500, 750, 1000, 1250));
    CurrentPrinter().setPageLayout(before);
}

TEST(Dialogs, TheWindowsPictureIsPrintedAfterTheDialogAlone)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("window.pdf");
    CurrentPrinter().setOutputFormat(QPrinter::PdfFormat);
    CurrentPrinter().setOutputFileName(file);
    QWidget window;
    window.resize(3000, 2000);
    ScriptedAnswers answers;
    answers.ExpectPrint(false);
    answers.ExpectPrint(true);
    PrintWindowImage(&window);
    EXPECT_FALSE(QFileInfo::exists(file));
    PrintWindowImage(&window);
    EXPECT_GT(QFileInfo(file).size(), 500);
    // A folder that is gone, as a printer that fails, is not worth a word.
    CurrentPrinter().setOutputFileName(folder.filePath("gone/window.pdf"));
    answers.ExpectPrint(true);
    PrintWindowImage(&window);
    CurrentPrinter().setOutputFileName(QString());
}

void ChooseFile(QFileDialog& dialog, const QString& path)
{
    auto* box = Find<QLineEdit>(&dialog, "fileNameEdit");
    box->setText(path);
    QTest::keyClick(box, Qt::Key_Return);
}

TEST(Dialogs, AMissingFolderIsToldAndTheFileAskedForAgainAndAFileThatMustExistIsChosenWithoutAQuestion)
{
    QTemporaryDir folder;
    const QString missing = folder.filePath("gone/page.html");
    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) { ChooseFile(dialog, missing); });
    WhenFormShows<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith(missing)) << box.text().toStdString();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) { ChooseFile(dialog, folder.filePath("page")); });
    EXPECT_EQ(SaveFileName("Save", "HTML (*.html);;HTM (*.htm)", ""), folder.filePath("page.html"));

    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) { ChooseFile(dialog, folder.filePath("backup")); });
    EXPECT_EQ(SaveFileNameAsTyped("Save", "MDB (*.mdb)"), folder.filePath("backup"));

    WriteFile(folder.filePath("Nov.2026.pdf"), "");
    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) { ChooseFile(dialog, folder.filePath("Nov.2026")); });
    WhenFormShows<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) { ChooseFile(dialog, folder.filePath("Nov.2027")); });
    EXPECT_EQ(SaveFileNameOfKind("Save", "PDF (*.pdf)", ""), folder.filePath("Nov.2027.pdf"));

    const QString path = folder.filePath("items.csv");
    WriteFile(path, "");
    WhenFormShows<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        WhenFormShows<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
        ChooseFile(dialog, folder.filePath("gone.csv"));
        EXPECT_TRUE(dialog.isVisible());
        ChooseFile(dialog, path);
    });
    EXPECT_EQ(SaveExistingFileName("Import", "CSV (*.csv)"), path);
}

TEST(Dialogs, HelpGoesToTheViewerOnceThereIsOne)
{
    WhenFormShows<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    OpenHelp(HelpCommand::Tab, -2);
    struct : HelpViewer {
        void Open(HelpCommand command, int data) override { opened << QString::number(int(command) * 10000 + data); }
        void OpenAt(const QStringList& names) override { opened << names; }
        QStringList opened;
    } viewer;
    SetHelpViewer(&viewer);
    OpenHelp(HelpCommand::Context, 1003);
    OpenHelpAt({"txtName", "frmVendor"});
    SetHelpViewer(nullptr);
    EXPECT_EQ(viewer.opened, QStringList({"11003", "txtName", "frmVendor"}));
}

} // namespace
