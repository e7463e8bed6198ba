#pragma once

#include <QKeySequence>
#include <QPushButton>

#include <functional>

/// Keys that screens answer to beside the access keys of their captions. A key that is held down counts once.

/// Runs `act` when the user presses the key while `control` itself has the focus. The keys that the Edit menu sends to
/// a control are none that the user presses.
void OnKey(QWidget* control, Qt::Key key, std::function<void()> act);
/// Runs `act` when the key is pressed anywhere in the window while `screen`, the window or a panel of it, shows.
void OnKeyInWindow(QWidget* screen, const QKeySequence& key, const std::function<void()>& act);

/// As these two, to click a button, whose tooltip tells the key. The focus stays where it is.
void LetKeyClick(QPushButton* button, Qt::Key key, QWidget* control);
void LetKeyClickInWindow(QPushButton* button, const QKeySequence& key, QWidget* screen);
/// Tells in the button's tooltip which key clicks it.
void TellKey(QPushButton* button, const QKeySequence& key);
/// The key that clicks the button; none where it has none.
QKeySequence KeyOf(const QPushButton* button);
