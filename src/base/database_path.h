#pragma once

#include <QString>

inline constexpr auto DatabaseFileName = "db.mdb";

/// The database file in the folder that the setting "DBPath" tells now; in the program's folder when it tells none.
QString DatabasePath();

/// Where the program keeps its copies of logos: its own folder, or the database's where its own is not to be written
/// to.
QString LogoFolder();
