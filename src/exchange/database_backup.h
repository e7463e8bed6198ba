#pragma once

/// Asks for a file and copies the database to it whole, with `gConnection` closed meanwhile; says whether it could be
/// written. Throws RuntimeError when the database cannot be opened again.
void BackupDatabase();
