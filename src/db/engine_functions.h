#pragma once

struct sqlite3;

/// Registers what translated statements call (sql/function_names.h).
void RegisterEngineFunctions(sqlite3* handle);
