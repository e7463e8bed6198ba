#pragma once

#include "album.h"

class Program;

/// Adds, finds and edits a customer, adds a vendor.
void KeepPeople(Program& program, Album& album);
