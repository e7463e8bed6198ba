#pragma once

#include "sql/statement_shape.h"
#include "sql/value.h"

#include <string>
#include <vector>

struct Translation {
    std::string sql; ///< for the engine, with `?1`, `?2` ... for the literals
    std::vector<Coercion> coercions; ///< one a literal
    std::vector<std::string> columnNames; ///< of the result, as the system names them; empty but for a SELECT
    std::vector<Value::Kind> columnKinds; ///< one a name; Null for a column without a kind of its own
    std::string anyChange = {}; ///< with the same literals: a row if an UPDATE would give any row another value
};

/// Translates a shape into the engine's own SQL: `[x]`, dates, booleans, TOP n with its ties, month(), LIKE, joins and
/// the names of result columns. Throws RuntimeError with the dialect's own messages.
Translation Translate(const StatementShape& shape);
