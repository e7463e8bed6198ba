#include "db/stored_value.h"

#include "base/clock.h"
#include "base/numbers.h"
#include "db/engine_errors.h"

#include <charconv>

#include <sqlite3.h>

namespace {

constexpr int OverflowNumber = 6;

std::string IsoText(const QDateTime& date)
{
    return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString();
}

Value::Kind KindOf(Coercion coercion)
{
    switch (coercion) {
    case Coercion::Long:
        return Value::Kind::Long;
    case Coercion::Double:
        return Value::Kind::Double;
    case Coercion::Money:
        return Value::Kind::Money;
    case Coercion::Boolean:
        return Value::Kind::Boolean;
    case Coercion::Date:
        return Value::Kind::Date;
    case Coercion::Text:
    case Coercion::None:
        break;
    }
    return Value::Kind::Text;
}

Value ToValue(const Literal& literal)
{
    struct Reader {
        Value operator()(qint64 number) const { return Value(number); }
        Value operator()(double number) const { return Value(number); }
        Value operator()(const std::string& text) const { return Value(QString::fromStdString(text)); }
        Value operator()(const DateLiteral& date) const { return Value(ReadStoredDate(date.iso)); }
    };
    return std::visit(Reader(), literal);
}

void BindText(sqlite3_stmt* statement, int index, const std::string& text)
{
    sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

void BindAsItIs(sqlite3_stmt* statement, int index, const Literal& literal)
{
    struct Binder {
        sqlite3_stmt* statement;
        int index;
        void operator()(qint64 number) const { sqlite3_bind_int64(statement, index, number); }
        void operator()(double number) const { sqlite3_bind_double(statement, index, number); }
        void operator()(const std::string& text) const { BindText(statement, index, text); }
        void operator()(const DateLiteral& date) const { BindText(statement, index, date.iso); }
    };
    std::visit(Binder{statement, index}, literal);
}

/// Most literals already are of their column's kind.
bool Fits(const Literal& literal, Coercion coercion)
{
    switch (coercion) {
    case Coercion::None:
        return true;
    case Coercion::Text:
        return std::holds_alternative<std::string>(literal);
    case Coercion::Long:
        return std::holds_alternative<qint64>(literal) && std::in_range<qint32>(std::get<qint64>(literal));
    case Coercion::Double:
        return std::holds_alternative<qint64>(literal) || std::holds_alternative<double>(literal);
    case Coercion::Date:
        return std::holds_alternative<DateLiteral>(literal);
    case Coercion::Money:
    case Coercion::Boolean:
        break;
    }
    return false;
}

void BindConverted(sqlite3_stmt* statement, int index, const Literal& literal, Coercion coercion)
{
    const StoredValue stored = ToStored(ToValue(literal), KindOf(coercion));
    if (const auto* text = std::get_if<std::string>(&stored))
        sqlite3_bind_text64(statement, index, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    else
        BindStored(statement, index, stored);
}

int TwoDigits(std::string_view text, size_t at)
{
    int number = -1;
    if (at + 2 <= text.size())
        std::from_chars(text.data() + at, text.data() + at + 2, number);
    return number;
}

} // namespace

StoredValue ToStored(const Value& value, Value::Kind kind)
{
    if (value.IsNull())
        return {};
    switch (kind) {
    case Value::Kind::Long:
        return qint64(CLng(value.ToDouble()));
    case Value::Kind::Double:
        return value.ToDouble();
    case Value::Kind::Money:
        return value.ToCurrency().ToDouble();
    case Value::Kind::Boolean:
        return qint64(value.ToBool());
    case Value::Kind::Date:
        return IsoText(value.ToDate());
    case Value::Kind::Text:
    case Value::Kind::Null:
        break;
    }
    return value.ToText().toStdString();
}

void BindStored(sqlite3_stmt* statement, int index, const StoredValue& value)
{
    struct Binder {
        sqlite3_stmt* statement;
        int index;
        void operator()(std::monostate) const { sqlite3_bind_null(statement, index); }
        void operator()(qint64 number) const { sqlite3_bind_int64(statement, index, number); }
        void operator()(double number) const { sqlite3_bind_double(statement, index, number); }
        void operator()(const std::string& text) const { BindText(statement, index, text); }
    };
    std::visit(Binder{statement, index}, value);
}

void BindLiteral(sqlite3_stmt* statement, int index, const Literal& literal, Coercion coercion)
{
    if (Fits(literal, coercion))
        return BindAsItIs(statement, index, literal);
    try {
        BindConverted(statement, index, literal, coercion);
    } catch (const RuntimeError& error) {
        if (error.Number() == OverflowNumber)
            throw NumericOverflowError();
        throw CriteriaMismatchError();
    }
}

QDateTime ReadStoredDate(std::string_view text)
{
    if (text.size() < 10)
        return {};
    int year = 0;
    std::from_chars(text.data(), text.data() + 4, year);
    const QDate date(year, TwoDigits(text, 5), TwoDigits(text, 8));
    if (text.size() < 16)
        return MomentOf(date);
    return MomentOf(date, QTime(TwoDigits(text, 11), TwoDigits(text, 14), std::max(0, TwoDigits(text, 17))));
}
