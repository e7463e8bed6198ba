#pragma once

#include "life.h"

#include <QStringList>

/// How a life ended.
struct LifeEnd {
    enum class How { Closed, RunTimeError, Finding };
    How how = How::Closed;
    QString text; ///< the error box's, or what was found
    int lastEvent = 0;
    QStringList lastEvents;
};

/// Lives the life in a process of its own, and looks after it: a crash, a hang, an exit without a word are findings.
/// `showEvents` tells all events on the way.
LifeEnd KeepAlive(const Life& life, bool showEvents);
