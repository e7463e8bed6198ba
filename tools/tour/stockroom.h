#pragma once

#include "album.h"

class Program;

/// What a shop does with its stock beside selling it, with a picture of each station: a group is put together, goods
/// come in by scanner, and a further price list is set up.
void KeepTheStock(Program& program, Album& album, const QString& barCode);
