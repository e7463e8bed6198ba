#include "base/regional.h"

#include "base/regional_formats.h"

#include <memory>

namespace {

std::unique_ptr<RegionalFormats> gFormats;

} // namespace

const RegionalFormats& Formats()
{
    if (!gFormats)
        SetRegional(QLocale::system());
    return *gFormats;
}

const QLocale& Regional()
{
    return Formats().locale;
}

void SetRegional(const QLocale& locale)
{
    // A system without a chosen locale has neither a currency nor groups.
    const bool chosen = locale.language() != QLocale::C && !locale.currencySymbol().isEmpty();
    gFormats = std::make_unique<RegionalFormats>(chosen ? locale : QLocale(QLocale::English, QLocale::UnitedStates));
    // What Qt's own editors of dates show is to agree with our texts.
    QLocale::setDefault(gFormats->locale);
}

QString GetLocaleText(LocaleItem item)
{
    return item == LocaleItem::CurrencySymbol ? Regional().currencySymbol() : Formats().shortDate;
}

int CurrencyDigits()
{
    return Formats().currencyDigits;
}

QStringList WeekdayNames()
{
    QStringList names;
    for (int step = 0; step < 7; ++step)
        names.append(
            Regional().standaloneDayName((Regional().firstDayOfWeek() - 1 + step) % 7 + 1, QLocale::LongFormat));
    return names;
}

bool IsWindowsXP()
{
    return false;
}
