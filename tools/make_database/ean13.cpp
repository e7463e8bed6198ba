#include "ean13.h"

QString ShopEan13(qint64 article)
{
    QString code = QStringLiteral("20%1").arg(article, 10, 10, QLatin1Char('0'));
    int sum = 0;
    for (int i = 0; i < code.size(); ++i)
        sum += code[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return code + QString::number((10 - sum % 10) % 10);
}
