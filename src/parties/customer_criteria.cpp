#include "parties/customer_criteria.h"

#include "sql/sql.h"

#include <QStringList>

QString AAS(const char* fieldName, const QString& text)
{
    if (text.isEmpty())
        return {};
    return Sql("{fieldName} LIKE '%{text}%'").Raw("fieldName", QLatin1String(fieldName)).Raw("text", text).Filled();
}

QString AnyCriterion(const QList<CustomerCriterion>& criteria)
{
    QStringList conditions;
    for (const CustomerCriterion& criterion : criteria)
        if (const QString condition = AAS(criterion.column, criterion.text); !condition.isEmpty())
            conditions.append(condition);
    return conditions.join(QLatin1String(" OR "));
}
