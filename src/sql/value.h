#pragma once

#include "base/currency.h"

#include <QDateTime>
#include <QString>

#include <variant>

/// A field's value as it came from a row.
class Value {
public:
    enum class Kind { Null, Long, Double, Money, Boolean, Date, Text };

    Value() = default;
    explicit Value(qint64 value)
        : m_value(value)
    {
    }
    explicit Value(int value)
        : m_value(qint64(value))
    {
    }
    explicit Value(double value)
        : m_value(value)
    {
    }
    explicit Value(Currency value)
        : m_value(value)
    {
    }
    explicit Value(bool value)
        : m_value(value)
    {
    }
    explicit Value(const QDateTime& value)
        : m_value(value)
    {
    }
    explicit Value(const QString& value)
        : m_value(value)
    {
    }

    Kind Type() const { return static_cast<Kind>(m_value.index()); }
    bool IsNull() const { return Type() == Kind::Null; }

    /// All of these read text by the number and date rules and throw InvalidUseOfNull for Null, TypeMismatch or
    /// Overflow for what does not convert.
    qint64 ToLong() const; ///< half to even
    double ToDouble() const;
    Currency ToCurrency() const;
    bool ToBool() const;
    QDateTime ToDate() const;
    /// Numbers as plain text in the user's locale, booleans "True" and "False", dates as short date with the time
    /// unless it is midnight.
    QString ToText() const;

private:
    std::variant<std::monostate, qint64, double, Currency, bool, QDateTime, QString> m_value;
};

/// "" when Null, else the value as text.
QString NullToText(const Value& value);
