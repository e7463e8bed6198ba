#pragma once

#include <QString>
#include <QWidget>

/// Holds a window that shows, or a part of it, against what it owes to those who read it, hear it or use it by keys:
/// no caption cut off, unless its tooltip tells the whole; a name for a screen reader on whatever takes the focus, and
/// Tab reaches it; no access key twice, but the letters in `sharedKeys`.
void CheckReading(QWidget* screen, const QString& sharedKeys = {});

/// The same, but for access keys, with every caption 1.4 times as long, as in a language of longer words. The captions
/// and the size of the window are put back.
void CheckLongTexts(QWidget* screen);

/// What a label, button or frame says; "" for any other control.
QString Caption(const QWidget* control);
