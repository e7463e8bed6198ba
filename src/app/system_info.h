#pragma once

#include "controls/form.h"
#include "controls/text_box.h"

#include <QLabel>
#include <QPushButton>

/// What whoever helps the user asks for: versions of the program and of what it stands on, the system, the locale,
/// where its files lie and how much they hold. Throws RuntimeError when the data cannot be read.
QString SystemInfo();

/// Shows that text, to be copied.
class frmSystemInfo : public Form {
    Q_OBJECT
public:
    frmSystemInfo(const QString& text, QWidget* parent);

    CONTROL(MultiLineTextBox, txtInfo);
    CONTROL(QPushButton, cmdCopy);
    CONTROL(QPushButton, cmdClose);
};
