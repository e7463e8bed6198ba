#include "config/secondary_tax.h"

#include "db/connection.h"

bool SecondaryTaxEnable = false;
double SecondaryTaxPercentage = 0;
QString SecondaryTaxName;

void LoadSecondaryTax()
{
    const Recordset rs =
        gConnection->Execute("SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings");
    if (rs.Eof()) {
        SecondaryTaxEnable = false;
        SecondaryTaxPercentage = 10;
        SecondaryTaxName = QStringLiteral("2nd Sales Tax");
        return;
    }
    const Value enable = rs["SecondaryTaxEnable"];
    const Value percentage = rs["SecondaryTaxPercentage"];
    SecondaryTaxEnable = !enable.IsNull() && enable.ToBool();
    SecondaryTaxName = NullToText(rs["SecondaryTaxName"]);
    SecondaryTaxPercentage = percentage.IsNull() ? 0 : percentage.ToDouble();
}
