#include "app/system_info.h"

#include "app/help_pages.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "controls/layout.h"
#include "db/connection.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QStyle>
#include <QSysInfo>

namespace {

constexpr QSize TextSize(560, 320);

QString DataFileText()
{
    const QString path = gConnection->Path();
    return QDir::toNativeSeparators(path)
        + frmSystemInfo::tr(" (%1 bytes)").arg(QLocale::c().toString(QFileInfo(path).size()));
}

QString RowCountsText()
{
    const auto count = [](const char* statement) { return gConnection->Execute(statement)[0].ToText(); };
    return frmSystemInfo::tr("%1 items, %2 customers, %3 invoices")
        .arg(count("SELECT COUNT(*) FROM item"), count("SELECT COUNT(*) FROM customer"),
            count("SELECT COUNT(*) FROM invoice"));
}

QString ScreenText()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize size = screen->size();
    return frmSystemInfo::tr("%1 x %2, scaled by %3, %4, style %5")
        .arg(size.width())
        .arg(size.height())
        .arg(screen->devicePixelRatio())
        .arg(QGuiApplication::platformName(), QApplication::style()->objectName());
}

} // namespace

QString SystemInfo()
{
    const QList<std::pair<QString, QString>> lines{
        {frmSystemInfo::tr("Program"), QStringLiteral("Tavrin Inventory " TAVRIN_VERSION)},
        {frmSystemInfo::tr("Qt"),
            QLatin1String(qVersion()) + frmSystemInfo::tr(" (built with %1)").arg(QLatin1String(QT_VERSION_STR))},
        {frmSystemInfo::tr("Database engine"), Connection::EngineVersion()},
        {frmSystemInfo::tr("System"),
            QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::kernelType() + QLatin1Char(' ')
                + QSysInfo::kernelVersion() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture()},
        {frmSystemInfo::tr("Screen"), ScreenText()},
        {frmSystemInfo::tr("Language and region"),
            Regional().name() + QStringLiteral(", ") + Regional().toString(1234.5, 'f', 2)},
        {frmSystemInfo::tr("Data file"), DataFileText()},
        {frmSystemInfo::tr("Data"), RowCountsText()},
        {frmSystemInfo::tr("Settings"), QDir::toNativeSeparators(SettingsFolder())},
        {frmSystemInfo::tr("Program's folder"), QDir::toNativeSeparators(ProgramFolder())},
        {frmSystemInfo::tr("Help file"), QDir::toNativeSeparators(HelpFile())},
    };
    QString text;
    for (const auto& [name, value] : lines)
        text += name + QStringLiteral(": ") + value + QLatin1Char('\n');
    return text;
}

frmSystemInfo::frmSystemInfo(const QString& text, QWidget* parent)
    : Form("frmSystemInfo", tr("System Information"), parent)
{
    txtInfo->setReadOnly(true);
    txtInfo->setAccessibleName(tr("System information"));
    txtInfo->setMinimumSize(TextSize);
    txtInfo->SetText(text);
    cmdCopy->setText(tr("C&opy"));
    cmdCopy->setToolTip(tr("Copies all of it, for a letter to the support"));
    cmdClose->setText(tr("&Close"));

    setLayout(column({
        instructions(tr("Instructions - click Copy and paste this into your question to the support.")),
        txtInfo,
        row({cmdCopy, stretch(), cmdClose}),
    }));
    SetDefaultButton(cmdClose, true);
    SetCancelButton(cmdClose);
    cmdCopy->setFocus();

    On(cmdCopy, &QPushButton::clicked, cmdCopy, [text] { QGuiApplication::clipboard()->setText(text); });
}
