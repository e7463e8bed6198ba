#pragma once

#include "arguments.h"

/// Makes the file that the arguments ask for. It appears whole or not at all: the rows are written beside it first.
/// Throws RuntimeError or std::runtime_error with the reason, also when the file exists.
void MakeDatabaseWith(const Arguments& arguments);
