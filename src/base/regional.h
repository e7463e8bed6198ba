#pragma once

#include <QLocale>
#include <QString>

/// The user's regional formats, read once when the program starts: the system's locale, or the United States' where
/// none is set.
const QLocale& Regional();
/// Tests choose a locale.
void SetRegional(const QLocale& locale);

/// The locale items that the program asks for.
enum class LocaleItem { CurrencySymbol = 20, ShortDate = 31 };
QString GetLocaleText(LocaleItem item);

/// Digits after the decimal point in currency text.
int CurrencyDigits();

/// Long names of the seven days, from the locale's first day of the week on.
QStringList WeekdayNames();

/// Which of the two sets of artwork the program shows. There is no such system on this platform, so it is the classic
/// set everywhere.
bool IsWindowsXP();
