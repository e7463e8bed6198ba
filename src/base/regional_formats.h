#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// What number and date texts need of a locale, worked out once when the locale is chosen.
struct RegionalFormats {
    explicit RegionalFormats(const QLocale& locale);

    /// The value of the digit at `at`, ASCII or the locale's own, and its length in `length`; -1 for no digit.
    int DigitAt(QStringView text, qsizetype at, int& length) const;

    QLocale locale;
    int generation; ///< differs for each choice of a locale, for caches built upon it

    char32_t zero =
        U'0'; ///< the first of the locale's ten digits, which are read beside the plain ones that are written
    QString decimal;
    QString group;
    bool groupsAreBlanks = false; ///< then any kind of blank between two digits is a group separator
    int lastGroup = 0; ///< digits in the group before the decimal separator; 0 for a locale without groups
    int otherGroups = 0;
    int digitsToGroup = 0; ///< shorter whole parts are not grouped
    QString minusSigns; ///< each character is one
    QString plusSigns;

    /// Currency text is a frame around the number; the sign is part of the frame.
    struct Frame {
        QString before;
        QString after;
    };
    Frame positive;
    Frame negative;
    int currencyDigits = 2;
    QStringList currencySymbols; ///< longest first

    enum class Order { MonthDayYear, DayMonthYear, YearMonthDay };
    Order order = Order::MonthDayYear;
    QString shortDate; ///< masks as FormatDate takes them
    QString time;
    QStringList shortMonths; ///< January first
    QString dateSeparator;
    QString timeSeparator;
};

const RegionalFormats& Formats();

/// True for blanks of all kinds and for the invisible marks of writing direction that some locales put into numbers.
bool IsBlank(QChar character);
