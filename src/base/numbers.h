#pragma once

#include "base/currency.h"

#include <QString>
#include <QStringView>

#include <string>

/// The number rules, by the user's locale (platform/regional.h). Reading accepts exactly what writing makes.

/// True when the whole text reads as a number: blanks, sign, currency symbol, brackets, group separators anywhere,
/// exponent, `&H` and `&O`.
bool IsNumeric(QStringView text);

/// Text to number by the same reading. Throw TypeMismatch for text that is no number, Overflow beyond the range.
double CDbl(QStringView text);
Currency CCur(QStringView text);
qint32 CLng(QStringView text);
/// "True", "False", or a number. Throws TypeMismatch.
bool CBool(QStringView text);
/// "True" or "False", as truth values are stored as text.
QString TruthText(bool value);

/// Half to even. Throws Overflow beyond 32 bits.
qint32 CLng(double value);

/// The number that starts the text, blanks dropped and only "." a decimal separator; 0 when none does.
/// Throws TypeMismatch for a fraction with a whole number's suffix, such as "50.5%".
double Val(QStringView text);

/// A number as plain text: at most 15 significant digits, no grouping, the locale's decimal separator.
QString CStr(double value);
QString CStr(qint64 value);
QString CStr(Currency value);
/// The same as UTF-8, in the room that the text has.
void CStrUtf8(Currency value, std::string& text);

/// The locale's currency text with its digits, rounded half away from zero.
QString FormatCurrency(Currency value);
QString FormatCurrency(double value);
/// As above for a text that reads as currency; throws TypeMismatch for one that does not.
QString FormatCurrency(QStringView text);

/// Number masks: `0` digits, a decimal point, quoted texts ("00000", `00.0"%"`), and the name "Currency". A text that
/// is no number comes back unchanged.
QString FormatNumber(double value, const QString& mask);
QString FormatNumber(const QString& text, const QString& mask);
