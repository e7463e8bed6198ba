#pragma once

#include "album.h"

class Program;

/// Tells the program of the business with the configuration wizard, and writes the mailing list to a file of `folder`.
void RunTheWizards(Program& program, Album& album, const QString& folder);
