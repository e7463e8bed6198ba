#pragma once

#include <QMap>
#include <QProcessEnvironment>

/// Lets Qt read the system's locale. Qt reads it once, so this comes before anything else of it in the program.
void ReadSystemLocale();

/// What Qt is to find in the variables of the locale that say nothing, by their names. Where the language of messages
/// is none, as under LANG=C.UTF-8, the formats of money, numbers and dates still follow their own variables; those
/// that name no locale either count as the United States'.
QMap<QString, QString> LocaleVariablesToSet(const QProcessEnvironment& environment);
