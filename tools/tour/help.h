#pragma once

#include "album.h"

class HelpDesk;
class Program;

/// Asks for the system information and for the help on the invoice history, and looks a word up.
void LookForHelp(Program& program, HelpDesk& helpDesk, Album& album);
