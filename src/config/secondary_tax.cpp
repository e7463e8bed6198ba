#include "config/secondary_tax.h"

#include "db/connection.h"

bool SecondaryTax::SecondaryTaxEnable = false;
double SecondaryTax::SecondaryTaxPercentage = 0;
QString SecondaryTax::SecondaryTaxName;

void LoadSecondaryTax()
{
    const Recordset rs =
        gConnection->Execute("SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings");
    if (rs.Eof()) {
        SecondaryTax::SecondaryTaxEnable = false;
        SecondaryTax::SecondaryTaxPercentage = 10;
        SecondaryTax::SecondaryTaxName = QStringLiteral("2nd Sales Tax");
        return;
    }
    const Value enable = rs["SecondaryTaxEnable"];
    const Value percentage = rs["SecondaryTaxPercentage"];
    SecondaryTax::SecondaryTaxEnable = !enable.IsNull() && enable.ToBool();
    SecondaryTax::SecondaryTaxName = NullToText(rs["SecondaryTaxName"]);
    SecondaryTax::SecondaryTaxPercentage = percentage.IsNull() ? 0 : percentage.ToDouble();
}
