#pragma once

#include <QDateTime>

#include <functional>

/// A day and a time as a calendar and a clock show them. Kept in UTC, where each of them exists: in some countries'
/// local time there is a day in spring that has no midnight.
QDateTime MomentOf(const QDate& day, const QTime& time = QTime(0, 0));

/// The present date and time in local time. The one place that asks for it.
QDateTime Now();
/// Tests fix the time; an empty function brings the real one back.
void SetClock(std::function<QDateTime()> clock);
