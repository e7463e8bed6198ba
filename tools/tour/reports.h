#pragma once

class Album;
class Program;

/// A look at the figures and the graphs: a month, two items compared, the graph alone, all of it in a small window.
void LookAtReports(Program& program, Album& album);
