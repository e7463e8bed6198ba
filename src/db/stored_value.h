#pragma once

#include "sql/dialect.h"
#include "sql/value.h"

#include <string>
#include <variant>

struct sqlite3_stmt;

/// A value as it lies in the file: dates as ISO text, truth as 1 and 0, money as a number of four decimals.
using StoredValue = std::variant<std::monostate, qint64, double, std::string>;

/// Brings a value to the kind of its column by the number and date rules. Throws TypeMismatch or Overflow for one that
/// the column cannot take.
StoredValue ToStored(const Value& value, Value::Kind kind);

/// Texts are not copied: they must outlive the statement's use.
void BindStored(sqlite3_stmt* statement, int index, const StoredValue& value);
/// Throws RuntimeError with the dialect's own message for a literal that its column cannot take.
void BindLiteral(sqlite3_stmt* statement, int index, const Literal& literal, Coercion coercion);

/// A date as the file keeps it; what is no date of the file is invalid.
QDateTime ReadStoredDate(std::string_view text);
