#pragma once

#include <QString>

/// Makes the delivered file: schema and the seed rows. Throws RuntimeError when `path` exists or cannot be written, and
/// leaves nothing half-made behind. For tools and tests; no screen calls it.
void MakeDatabase(const QString& path);
