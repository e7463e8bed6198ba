#pragma once

#include <QString>

class RunningProgram;

/// The subjects of the benchmark; each prints its lines of the table.

void MeasureStatementOverhead(RunningProgram& program);
void MeasureLists(RunningProgram& program);
void MeasureScans(RunningProgram& program);
void MeasureInvoices(RunningProgram& program);
void MeasureReceiving(RunningProgram& program);
void MeasureReports(RunningProgram& program);
void MeasureFanOut(RunningProgram& program);
void MeasureImport(RunningProgram& program);
void MeasureStatistics(RunningProgram& program);
void MeasureExports(RunningProgram& program);
void MeasureCharts(RunningProgram& program);
/// In processes of their own, since a start happens once in a process.
void MeasureStart(const QString& folder);
void MeasureMemory(const QString& folder);

/// What such a process is told to do, and does: it prints one number.
inline constexpr const char* StartOnceTask = "--start-once";
inline constexpr const char* StartFloorOnceTask = "--start-floor-once";
inline constexpr const char* PeakMemoryTask = "--peak-memory";
int StartOnce(const QString& folder, double millisecondsBefore);
int StartFloorOnce(const QString& folder);
int PeakMemory(const QString& folder);
