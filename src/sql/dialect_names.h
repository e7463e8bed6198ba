#pragma once

#include "sql/schema.h"
#include "sql/value.h"

#include <string>
#include <string_view>
#include <vector>

/// The tables that a statement names, and what the names of columns mean among them.

struct TableSource {
    std::string name; ///< the alias, else the table's own name
    const TableDefinition* table = nullptr;
};

struct ColumnReference {
    size_t source = 0;
    const ColumnDefinition* column = nullptr;

    explicit operator bool() const { return column != nullptr; }
    bool operator==(const ColumnReference&) const = default;
};

class NameScope {
public:
    /// Throws RuntimeError for a table that there is not.
    void Add(std::string_view table, std::string_view alias);
    const std::vector<TableSource>& Sources() const { return m_sources; }

    /// `qualifier` is "" for a bare name. Throws RuntimeError for an unknown name and for one of several tables.
    ColumnReference Resolve(std::string_view qualifier, std::string_view name) const;
    /// The table with this name or alias. Throws RuntimeError when there is none.
    size_t SourceNamed(std::string_view qualifier) const;

    /// For the engine: `[item].[Number]`.
    std::string SqlOf(const ColumnReference& column) const;
    /// For the engine: the columns of a table that SqlOf was asked for, `[id], [Number]`.
    std::string UsedColumns(size_t source) const;
    /// "item.Number", the name of a result column that another one would repeat.
    std::string QualifiedName(const ColumnReference& column) const;

private:
    std::vector<TableSource> m_sources;
    mutable std::vector<ColumnReference> m_used;
};

Value::Kind KindOf(ColumnKind kind);

/// The names of a result: an alias or a column's own name; `table.column` for columns that share a name; `Expr1000` and
/// so on by position for expressions and for a column that is listed again.
struct ResultColumn {
    std::string sql;
    std::string alias; ///< "" when there is none
    ColumnReference column; ///< empty for an expression
    Value::Kind kind = Value::Kind::Null;
};
std::vector<std::string> ResultNames(const NameScope& scope, const std::vector<ResultColumn>& columns);
