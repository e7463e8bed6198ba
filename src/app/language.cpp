#include "app/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

/// What stands on the buttons of message boxes. Qt's own translations are not installed everywhere.
[[maybe_unused]] constexpr const char* ButtonsOfMessages[]{
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QGnomeTheme", "&OK"),
    QT_TRANSLATE_NOOP("QGnomeTheme", "&Cancel"),
};

void Install(const QLocale& language, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(language, name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void SetLanguage(const QString& code)
{
    Q_INIT_RESOURCE(translations);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly));
    const QLocale language(code);
    if (language.language() == QLocale::C)
        return;
    // The one installed last is asked first.
    for (const char* part : {"qtbase", "qt_help"})
        Install(language, QLatin1String(part), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Install(language, QStringLiteral("tavrin"), QStringLiteral(":/translations"));
}
