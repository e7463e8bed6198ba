#pragma once

#include "base/currency.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <deque>
#include <memory>
#include <string_view>
#include <variant>
#include <vector>

/// A field's value as a report reads it; the first alternative is Null.
using ReportValue = std::variant<std::monostate, double, Currency, QDateTime, QString>;

/// The rows of one statement, kept packed: a row of a hundred thousand costs its bytes, a byte or two a field, and
/// eight bytes to find it. Rows are added once, field by field, and then only read.
class ReportTable {
public:
    ReportTable() = default;
    explicit ReportTable(const QStringList& fields);

    const QStringList& Fields() const { return m_fields; }
    /// The place of a field, without regard to case; a bare name also finds the "table.field" it stands for. -1 when
    /// there is none.
    int Field(const QString& name) const;

    /// The next field of the row being added.
    void Add(const ReportValue& value);
    void AddText(std::string_view utf8);
    /// Ends the row. Each row must have had all its fields added.
    void EndRow();

    int Count() const { return static_cast<int>(m_rows.size()); }
    /// Null for field -1.
    ReportValue At(int row, int field) const;

private:
    void Append(char kind, const void* data, size_t size);

    QStringList m_fields;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    size_t m_blockUsed = 0;
    std::string m_row; ///< the row being added
    std::deque<const char*> m_rows;
};

/// All rows of a report: rows of their own, or parent rows with the child rows of each behind one another.
struct ReportRows {
    ReportTable parents;
    ReportTable children;
    std::vector<int> firstChild; ///< one a parent, in a report with groups

    int FirstChild(int parent) const { return firstChild[static_cast<size_t>(parent)]; }
    int LastChild(int parent) const ///< one past the last
    {
        return parent + 1 < parents.Count() ? FirstChild(parent + 1) : children.Count();
    }
};
