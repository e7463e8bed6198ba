#pragma once

#include "album.h"

class Program;

/// The road of one invoice, walked as a user walks it, with a picture of each station. What does not go as it should is
/// reported as a failure of the running test program (support/screen.h).

/// Starts the program and answers what it asks on its first start.
void StartForTheFirstTime(Program& program, Album& album);
void LookAround(Program& program, Album& album);
/// Adds an item and returns its bar code.
QString AddAnItem(Program& program, Album& album);
void WriteAnInvoice(Program& program, Album& album, const QString& barCode);
void FindTheInvoice(Program& program, Album& album);
