#pragma once

class RunningProgram;

/// A shop's day in fast motion, through the real windows: for each invoice ten scans, and at their intervals previews
/// and PDFs, item edits, goods received, exports and backups. Prints whether memory, open files, data file and the time
/// of a scan stay as they are after the first tenth. False when a window did not do what its user wanted. At least ten
/// invoices.
bool Soak(RunningProgram& program, int invoices);
