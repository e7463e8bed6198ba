#pragma once

#include <QKeyCombination>

/// Sends a key press and release to the control that has the focus, once the event in progress is over.
void SendKeys(QKeyCombination keys);
