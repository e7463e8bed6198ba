#pragma once

#include <QString>

/// The folder of the database as the store tells it, with a separator at its end; the program's folder when the store
/// has none. Stores the folder again when it had to add the separator.
QString ResolveDatabaseFolder();
