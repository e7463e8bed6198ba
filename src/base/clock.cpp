#include "base/clock.h"

namespace {

std::function<QDateTime()> gClock;

} // namespace

QDateTime MomentOf(const QDate& day, const QTime& time)
{
    return QDateTime(day, time, Qt::UTC);
}

QDateTime Now()
{
    const QDateTime now = gClock ? gClock() : QDateTime::currentDateTime();
    return MomentOf(now.date(), now.time());
}

void SetClock(std::function<QDateTime()> clock)
{
    gClock = std::move(clock);
}
