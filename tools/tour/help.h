#pragma once

#include "album.h"

class HelpDesk;
class Program;

/// Presses F1, looks a word up and searches for another, and asks for the system information.
void LookForHelp(Program& program, HelpDesk& helpDesk, Album& album);
