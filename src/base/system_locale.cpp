#include "base/system_locale.h"

#include <QLocale>

namespace {

const QString Language = QStringLiteral("LC_MESSAGES");
const QString Money = QStringLiteral("LC_MONETARY");
const QString Rest = QStringLiteral("LANG"); ///< of all that has no variable of its own
const QString All = QStringLiteral("LC_ALL");
const QString Languages = QStringLiteral("LANGUAGE"); ///< before that of the messages, where that is one

bool IsLocale(const QString& name)
{
    return !name.isEmpty() && QLocale(name).language() != QLocale::C;
}

void SetVariable(const QString& name, const QByteArray& value)
{
    qputenv(name.toLatin1().constData(), value);
}

} // namespace

QMap<QString, QString> LocaleVariablesToSet(const QProcessEnvironment& environment)
{
    const auto isSet = [&](const QString& name) { return !environment.value(name).isEmpty(); };
    const auto names = [&](const QString& name) { return IsLocale(environment.value(name)); };
    const QString unitedStates = QStringLiteral("en_US");
    QMap<QString, QString> changes;
    if (isSet(All)) {
        if (!names(All))
            changes = {{All, unitedStates}, {Languages, QString()}};
        return changes;
    }
    if (!names(Rest))
        changes[Rest] = unitedStates;
    for (const QString& name : {Money, QStringLiteral("LC_NUMERIC"), QStringLiteral("LC_TIME")})
        if (isSet(name) && !names(name))
            changes[name] = unitedStates;
    // Qt writes money in the way of the language.
    if (!names(isSet(Language) ? Language : Rest)) {
        const QString money = isSet(Money) ? Money : Rest;
        changes[Language] = changes.value(money, environment.value(money));
        changes[Languages] = QString();
    }
    return changes;
}

void ReadSystemLocale()
{
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QMap<QString, QString> changes = LocaleVariablesToSet(environment);
    for (auto change = changes.begin(); change != changes.end(); ++change)
        SetVariable(change.key(), change.value().toLatin1());
    QLocale::system();
    // What the program starts, such as the browser, is to find its own.
    for (const QString& name : changes.keys()) {
        if (environment.contains(name))
            SetVariable(name, environment.value(name).toLocal8Bit());
        else
            qunsetenv(name.toLatin1().constData());
    }
}
