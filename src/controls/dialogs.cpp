#include "controls/dialogs.h"

#include "base/regional.h"
#include "controls/hourglass.h"
#include "controls/message_box.h"
#include "controls/paper_setup.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QUrl>

#include <cmath>

namespace {

/// What is said around the dialogs.
struct Dialogs {
    Q_DECLARE_TR_FUNCTIONS(Dialogs)
};

constexpr qreal ScreenDotsPerInch = 96;

HelpViewer* gHelpViewer = nullptr;

QWidget* OwnerWindow()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

/// "csv" for "CSV files (*.csv *.txt)"; "" for "All (*)".
QString FirstExtension(const QString& filter)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\*\.(\w+))"));
    return pattern.match(filter).captured(1);
}

/// The folder that a file was picked from last; at first the user's documents.
QString& PickerFolder()
{
    static QString folder;
    if (!QFileInfo(folder).isDir())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder).isDir())
        folder = QDir::homePath();
    return folder;
}

QString PickedFile(QFileDialog& dialog)
{
    const ArrowOverHourglass arrow;
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    QString path = dialog.selectedFiles().constFirst();
    PickerFolder() = QFileInfo(path).absolutePath();
    return path;
}

void SayHelpIsMissing()
{
    MsgBox(Dialogs::tr("The help pages are not available."), Icon::Information);
}

enum class Extension { OfFilter, Always, AsTyped };

/// The path with one of the filter's extensions, the first one of `chosen` where it has none of them.
QString OfKind(const QString& path, const QString& filter, const QString& chosen)
{
    const QString ending = u'.' + QFileInfo(path).suffix();
    const bool has = ending.size() > 1
        && QRegularExpression(QStringLiteral(R"(\*%1\b)").arg(QRegularExpression::escape(ending)),
            QRegularExpression::CaseInsensitiveOption)
               .match(filter)
               .hasMatch();
    return has || path.isEmpty() ? path : path + u'.' + FirstExtension(chosen);
}

/// Asks as the dialog does of the name that it knows.
bool MayReplace(const QString& path, const QString& title)
{
    const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
    return !QFileInfo::exists(path)
        || QMessageBox::warning(OwnerWindow(), title, question.arg(QFileInfo(path).fileName()),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

QString AskFileToSave(const QString& title, const QString& filter, const QString& suggested, Extension extension)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return extension == Extension::Always ? OfKind(door->SaveFileName(title, filter, suggested), filter, filter)
                                              : door->SaveFileName(title, filter, suggested);
    QFileDialog dialog(OwnerWindow(), title, PickerFolder(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    if (extension != Extension::AsTyped) {
        dialog.setDefaultSuffix(FirstExtension(dialog.selectedNameFilter()));
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog](const QString& chosen) { dialog.setDefaultSuffix(FirstExtension(chosen)); });
    }
    dialog.selectFile(suggested);
    for (;;) {
        const QString picked = PickedFile(dialog);
        QString path = extension == Extension::Always ? OfKind(picked, filter, dialog.selectedNameFilter()) : picked;
        if (!path.isEmpty() && !QFileInfo(path).dir().exists())
            MsgBox(
                Dialogs::tr("%1\nThe path does not exist. Check the path and try again.").arg(path), Icon::Exclamation);
        else if (path == picked || MayReplace(path, title))
            return path;
    }
}

bool NoPrinterInstalled()
{
    return QPrinterInfo::availablePrinterNames().isEmpty();
}

/// The paper of the user's country: Letter in most of the Americas, A4 elsewhere.
QPageSize::PageSizeId CountryPaper()
{
    static const QSet<QLocale::Country> letter{QLocale::UnitedStates, QLocale::Canada, QLocale::Mexico,
        QLocale::PuertoRico, QLocale::Guatemala, QLocale::ElSalvador, QLocale::Nicaragua, QLocale::CostaRica,
        QLocale::Panama, QLocale::Belize, QLocale::Colombia, QLocale::Venezuela, QLocale::Chile, QLocale::Philippines};
    return letter.contains(Regional().territory()) ? QPageSize::Letter : QPageSize::A4;
}

bool AskPaper(QPrinter& printer, QWidget* owner)
{
    frmPaperSetup form(printer.pageLayout(), owner);
    form.ShowModal();
    return form.result() == QDialog::Accepted && printer.setPageLayout(form.Chosen());
}

bool AskPageSetup(QPrinter& printer, QWidget* owner)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->PageSetup(printer);
    if (NoPrinterInstalled())
        return AskPaper(printer, owner);
    QPageSetupDialog dialog(&printer, owner);
    return dialog.exec() == QDialog::Accepted;
}
} // namespace

QString OpenFileName(const QString& title, const QString& filter)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->OpenFileName(title, filter);
    QFileDialog dialog(OwnerWindow(), title, PickerFolder(), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return PickedFile(dialog);
}

QString SaveFileName(const QString& title, const QString& filter, const QString& suggested)
{
    return AskFileToSave(title, filter, suggested, Extension::OfFilter);
}

QString SaveFileNameOfKind(const QString& title, const QString& filter, const QString& suggested)
{
    return AskFileToSave(title, filter, suggested, Extension::Always);
}

QString SaveFileNameAsTyped(const QString& title, const QString& filter)
{
    return AskFileToSave(title, filter, QString(), Extension::AsTyped);
}

QString SaveExistingFileName(const QString& title, const QString& filter)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->SaveFileName(title, filter, QString());
    QFileDialog dialog(OwnerWindow(), title, PickerFolder(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return PickedFile(dialog);
}

QPrinter& CurrentPrinter()
{
    static QPrinter* printer = nullptr;
    if (!printer) {
        printer = new QPrinter(QPrinter::HighResolution);
        if (NoPrinterInstalled())
            printer->setPageSize(QPageSize(CountryPaper()));
        // A printer must not outlive the application object.
        qAddPostRoutine([] {
            delete printer;
            printer = nullptr;
        });
    }
    return *printer;
}

bool HasPrinter()
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->HasPrinter();
    return !NoPrinterInstalled();
}

bool PrintDialog(QPrinter& printer)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->Print(printer);
    if (NoPrinterInstalled())
        return false;
    QPrintDialog dialog(&printer, OwnerWindow());
    return dialog.exec() == QDialog::Accepted;
}

bool ShowPageSetup(QWidget* owner, PageMargins& margins)
{
    return HasPrinter() && ShowPaperSetup(owner, margins);
}

bool ShowPaperSetup(QWidget* owner, PageMargins& margins)
{
    QPrinter& printer = CurrentPrinter();
    if (!AskPageSetup(printer, owner))
        return false;
    const QMarginsF inches = printer.pageLayout().margins(QPageLayout::Inch);
    const auto thousandths = [](qreal value) { return int(std::lround(value * 1000)); };
    margins = {thousandths(inches.left()), thousandths(inches.top()), thousandths(inches.right()),
        thousandths(inches.bottom())};
    return true;
}

void PrintWindowImage(QWidget* window)
{
    QPrinter& printer = CurrentPrinter();
    if (!PrintDialog(printer))
        return;
    const QPixmap picture = window->grab();
    QPainter painter;
    if (picture.isNull() || !painter.begin(&printer))
        return;
    const QSizeF natural = QSizeF(window->size()) * printer.resolution() / ScreenDotsPerInch;
    const QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    const bool fits = natural.width() <= page.width() && natural.height() <= page.height();
    const QSizeF size = fits ? natural : natural.scaled(page, Qt::KeepAspectRatio);
    painter.drawPixmap(QRectF(QPointF(), size), picture, QRectF(picture.rect()));
}

void OpenLink(const QString& target)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->OpenLink(target);
    QDesktopServices::openUrl(QUrl::fromUserInput(target));
}

void OpenHelp(HelpCommand command, int data)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->Help(int(command), data);
    gHelpViewer ? gHelpViewer->Open(command, data) : SayHelpIsMissing();
}

void OpenHelpAt(const QStringList& names)
{
    if (DialogDoor* door = CurrentDialogDoor())
        return door->HelpAt(names);
    gHelpViewer ? gHelpViewer->OpenAt(names) : SayHelpIsMissing();
}

void SetHelpViewer(HelpViewer* viewer)
{
    gHelpViewer = viewer;
}
