#pragma once

#include <QString>

/// Brings the indexes of a file that an earlier version made to what SchemaIndexes tells, in one transaction; tables,
/// rows and indexes by other names stay as they are. An index is there for speed alone: where the file cannot be
/// written, or somebody else holds it, all stays as it was, and nothing is said.
void RenewIndexes(const QString& path);
