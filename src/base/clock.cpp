#include "base/clock.h"

namespace {

std::function<QDateTime()> gClock;

} // namespace

QDateTime Now()
{
    return gClock ? gClock() : QDateTime::currentDateTime();
}

void SetClock(std::function<QDateTime()> clock)
{
    gClock = std::move(clock);
}
