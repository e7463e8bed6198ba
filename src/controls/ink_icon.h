#pragma once

#include <QIcon>

class QWidget;

/// A dark picture of one colour that can be seen on a dark ground, too: it has the colour of the text on buttons where
/// that is lighter than they are, also when the palette changes later.
QIcon InkIcon(const QIcon& icon);

/// Gives such pictures to the buttons by which a menu bar or toolbar shows what it has no room for.
void InkExtensionButton(QWidget* bar);
