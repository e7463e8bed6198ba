#include "base/runtime_error.h"

#include <limits>

RuntimeError::RuntimeError(int number, const QString& description)
    : m_number(number)
    , m_description(description)
    , m_what(QStringLiteral("%1: %2").arg(number).arg(description).toUtf8())
{
}

QString RuntimeError::BoxText() const
{
    QString number = QString::number(m_number);
    // A provider's numbers are negative and known by their hexadecimal form.
    if (m_number < 0)
        number += QStringLiteral(" (%1)").arg(quint32(m_number), 8, 16, QLatin1Char('0'));
    return QStringLiteral("Run-time error '%1':\n\n%2").arg(number, m_description);
}

RuntimeError Overflow()
{
    return {6, QStringLiteral("Overflow")};
}

RuntimeError TypeMismatch()
{
    return {13, QStringLiteral("Type mismatch")};
}

RuntimeError PathFileAccessError()
{
    return {75, QStringLiteral("Path/File access error")};
}

RuntimeError InvalidUseOfNull()
{
    return {94, QStringLiteral("Invalid use of Null")};
}

RuntimeError InvalidPropertyValue()
{
    return {380, QStringLiteral("Invalid property value")};
}

RuntimeError InvalidPropertyArrayIndex()
{
    return {381, QStringLiteral("Invalid property array index")};
}

int ToInteger16(qint64 value)
{
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        throw Overflow();
    return int(value);
}
