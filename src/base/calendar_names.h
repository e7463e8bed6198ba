#pragma once

#include <QString>

/// "Jan" to "Dec" for 1 to 12; "" otherwise.
QString MonthAbbreviation(int month);
/// 1 to 7 for the English names "Monday" to "Sunday"; 0 otherwise.
int WeekdayNumber(const QString& name);
