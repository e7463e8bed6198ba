#pragma once

#include "controls/flex_grid_rows.h"

#include <QStringList>

/// Finds the rows that hold all of some words, each anywhere in any of their cells, whatever its case. The rows' texts
/// are folded with the first search and kept for the next ones.
class RowSearch {
public:
    /// The rows from the first to the last. `rows` are those of the search before unless Forget came between.
    std::vector<int> RowsWith(const QStringList& words, const FlexGridRows& rows);
    /// The rows have changed, or there is nothing to look for any more.
    void Forget();

private:
    void Fold(const FlexGridRows& rows);
    void FoldFrom(size_t start);

    std::string m_text;
    std::vector<size_t> m_ends; ///< of each row in the text
};
