#pragma once

#include "sql/statement_errors.h"

struct sqlite3;

/// The last failure of a handle.
RuntimeError EngineError(sqlite3* handle);
