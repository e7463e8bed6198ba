#pragma once

#include "album.h"

class Program;

/// Adds a tax rate, a warehouse with a location, and a category with a sub-category.
void ConfigureKeyTables(Program& program, Album& album);
