#pragma once

#include <QDateTime>

#include <functional>

/// The present date and time in local time. The one place that asks for it.
QDateTime Now();
/// Tests fix the time; an empty function brings the real one back.
void SetClock(std::function<QDateTime()> clock);
