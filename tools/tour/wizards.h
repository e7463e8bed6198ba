#pragma once

#include "album.h"

class Program;

/// Tells the program of the business with the configuration wizard, writes the mailing list to a file of `folder` and
/// imports items from another.
void RunTheWizards(Program& program, Album& album, const QString& folder);
