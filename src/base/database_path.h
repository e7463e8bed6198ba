#pragma once

#include <QString>

inline constexpr auto DatabaseFileName = "db.mdb";

/// The database file in the folder that the setting "DBPath" tells now; in the program's folder when it tells none.
QString DatabasePath();
