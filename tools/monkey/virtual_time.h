#pragma once

/// The time of the thread that calls this stands still from now on, for the clocks of the system and with them for all
/// of Qt's timers, and passes only with PassTime. So a run does the same on a busy machine as on an idle one, and waits
/// for nothing. Other threads keep the real time.
void StopTime();
void PassTime(int milliseconds);
