#include "sql/value.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/runtime_error.h"

namespace {

/// Truth counts as -1 in arithmetic.
qint64 NumberOf(bool value)
{
    return value ? -1 : 0;
}

} // namespace

qint64 Value::ToLong() const
{
    switch (Type()) {
    case Kind::Null:
        throw InvalidUseOfNull();
    case Kind::Long:
        return std::get<qint64>(m_value);
    case Kind::Double:
        return CLng(std::get<double>(m_value));
    case Kind::Money:
        return CLng(std::get<Currency>(m_value).ToDouble());
    case Kind::Boolean:
        return NumberOf(std::get<bool>(m_value));
    case Kind::Text:
        return CLng(std::get<QString>(m_value));
    case Kind::Date:
        break;
    }
    throw TypeMismatch();
}

double Value::ToDouble() const
{
    switch (Type()) {
    case Kind::Null:
        throw InvalidUseOfNull();
    case Kind::Long:
        return double(std::get<qint64>(m_value));
    case Kind::Double:
        return std::get<double>(m_value);
    case Kind::Money:
        return std::get<Currency>(m_value).ToDouble();
    case Kind::Boolean:
        return double(NumberOf(std::get<bool>(m_value)));
    case Kind::Text:
        return CDbl(std::get<QString>(m_value));
    case Kind::Date:
        break;
    }
    throw TypeMismatch();
}

Currency Value::ToCurrency() const
{
    switch (Type()) {
    case Kind::Null:
        throw InvalidUseOfNull();
    case Kind::Long:
        return Currency::FromWhole(std::get<qint64>(m_value));
    case Kind::Double:
        return CCur(std::get<double>(m_value));
    case Kind::Money:
        return std::get<Currency>(m_value);
    case Kind::Boolean:
        return Currency::FromWhole(NumberOf(std::get<bool>(m_value)));
    case Kind::Text:
        return CCur(std::get<QString>(m_value));
    case Kind::Date:
        break;
    }
    throw TypeMismatch();
}

bool Value::ToBool() const
{
    switch (Type()) {
    case Kind::Boolean:
        return std::get<bool>(m_value);
    case Kind::Text:
        return CBool(std::get<QString>(m_value));
    default:
        return ToDouble() != 0;
    }
}

QDateTime Value::ToDate() const
{
    if (IsNull())
        throw InvalidUseOfNull();
    if (Type() == Kind::Date)
        return std::get<QDateTime>(m_value);
    if (Type() == Kind::Text) {
        if (const std::optional<QDateTime> date = ReadDate(std::get<QString>(m_value)))
            return *date;
    }
    throw TypeMismatch();
}

QString Value::ToText() const
{
    switch (Type()) {
    case Kind::Null:
        throw InvalidUseOfNull();
    case Kind::Long:
        return CStr(std::get<qint64>(m_value));
    case Kind::Double:
        return CStr(std::get<double>(m_value));
    case Kind::Money:
        return CStr(std::get<Currency>(m_value));
    case Kind::Boolean:
        return TruthText(std::get<bool>(m_value));
    case Kind::Date:
        return FormatDate(std::get<QDateTime>(m_value), QString());
    case Kind::Text:
        break;
    }
    return std::get<QString>(m_value);
}

QString NullToText(const Value& value)
{
    return value.IsNull() ? QString() : value.ToText();
}
