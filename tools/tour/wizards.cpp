#include "wizards.h"

#include "steps.h"

#include "app/start.h"
#include "base/files.h"
#include "support/screen.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>

namespace {

constexpr auto NewItems = "new items.csv";

/// At the next page of this name lets `fill` enter what it asks, takes a picture and clicks Next.
void Turn(
    Album& album, const char* page, const char* picture, const std::function<void(QDialog&)>& fill = [](QDialog&) {})
{
    At(page, [&album, picture, fill](QDialog& form) {
        fill(form);
        album.Take(picture);
        Click(Find<QPushButton>(&form, "cmdNext"));
    });
}

QString PaintLogo(const QString& folder)
{
    constexpr QSize Size(220, 90);
    QImage logo(Size, QImage::Format_RGB32);
    logo.fill(QColor(24, 78, 119));
    QPainter painter(&logo);
    painter.setPen(Qt::white);
    painter.drawText(logo.rect(), Qt::AlignCenter, QStringLiteral("Harbour Supplies"));
    painter.end();
    QString file = folder + QStringLiteral("/logo.bmp");
    logo.save(file);
    return file;
}

void Configure(MainWindow& window, Album& album, const QString& logo)
{
    At("QFileDialog", [logo](QDialog& dialog) {
        Type(dialog.findChild<QLineEdit*>(), logo);
        Press(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    Turn(album, "frmWizConfig_Welcome", "configuration-welcome");
    Turn(album, "frmWizConfig_Business", "configuration-business", [](QDialog& page) {
        Type(Find<QWidget>(&page, "txtBusinessName"), QStringLiteral("O'Hara's Harbour Supplies"));
        Type(Find<QWidget>(&page, "txtFax"), QStringLiteral("(555) 240-0178"));
    });
    Turn(album, "frmWizConfig_Logo", "configuration-logo",
        [](QDialog& page) { Click(Find<QPushButton>(&page, "cmdBrowse")); });
    Turn(album, "frmWizConfig_Tax", "configuration-tax", [](QDialog& page) {
        auto* secondTax = Find<QCheckBox>(&page, "chkEnableTax2");
        if (!secondTax->isChecked())
            Click(secondTax);
    });
    Turn(album, "frmWizConfig_Barcode", "configuration-bar-codes");
    Turn(album, "frmWizConfig_PickingList", "configuration-picking-lists");
    Turn(album, "frmWizConfig_Cats", "configuration-categories");
    Turn(album, "frmWizConfig_Complete", "configuration-finish");
    ChooseFromMenu(window, "mnuConfigure", "mnuConfigureWizard", album, "configuration-wizard-in-the-configure-menu");
}

void ListAddresses(MainWindow& window, Album& album, const QString& file)
{
    Turn(album, "frmWizMailList_Welcome", "mailing-list-welcome");
    Turn(album, "frmWizMailList_File", "mailing-list-file",
        [file](QDialog& page) { Type(Find<QWidget>(&page, "txtName"), file); });
    Turn(album, "frmWizMailList_Complete", "mailing-list-finish");
    ChooseFromMenu(window, "mnuCustomers", "mnuCustMailingList", album, "mailing-list-in-the-customers-menu");
}

void WriteItems(const QString& folder)
{
    QFile file(folder + QLatin1Char('/') + QLatin1String(NewItems));
    if (file.open(QFile::WriteOnly))
        file.write("Article,Supplier,Price,On hand\r\nBrass Lantern,Harbour Lamps,49.50,6\r\n"
                   "Storm Lantern,Harbour Lamps,39.90,12\r\nLamp Oil 1 l,,6.25,40\r\n");
}

void ImportItems(MainWindow& window, Album& album, const QString& file)
{
    Turn(album, "frmWizImport_Welcome", "import-welcome");
    Turn(album, "frmWizImport_File", "import-file",
        [file](QDialog& page) { Type(Find<QWidget>(&page, "txtName"), file); });
    Turn(album, "frmWizImport_Preview", "import-preview-and-fields", [](QDialog& page) {
        auto* next = Find<QPushButton>(&page, "cmdNext");
        EXPECT_TRUE(QTest::qWaitFor([next] { return next->isEnabled(); })) << "the file is not read";
        auto* rows = Find<QScrollArea>(&page, "picBack");
        for (const auto& [field, title] :
            {std::pair("cboImportField_13", "Price"), std::pair("cboImportField_9", "On hand"),
                std::pair("cboImportField_7", "Supplier"), std::pair("cboImportField_1", "Article")}) {
            auto* source = Find<QComboBox>(&page, field);
            rows->ensureWidgetVisible(source);
            Pick(source, QLatin1String(title));
        }
    });
    Turn(album, "frmWizImport_Complete", "import-finish");
    ChooseFromMenu(window, "mnuFile", "mnuFileImportInventory", album, "import-in-the-file-menu");
    album.Take("imported-items");
}

} // namespace

void RunTheWizards(Program& program, Album& album, const QString& folder)
{
    MainWindow& window = *program.Window();
    // The program keeps its copy of the logo in its own folder, where nothing of the tour is to stay.
    const QString programFolder = ProgramFolder();
    SetProgramFolder(folder);
    Configure(window, album, PaintLogo(folder));
    SetProgramFolder(programFolder);
    WriteItems(folder);
    // The pictures show bare names: those of the folder are others in each tour.
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder);
    ListAddresses(window, album, QStringLiteral("mailing list.txt"));
    ImportItems(window, album, QLatin1String(NewItems));
    QDir::setCurrent(before);
}
