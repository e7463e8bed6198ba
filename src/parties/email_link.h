#pragma once

#include "controls/link_label.h"

#include <QLineEdit>

/// A link beside a box with an email address: it opens a message to the address in the system's mail program.
class EmailLink : public LinkLabel {
    Q_OBJECT
public:
    explicit EmailLink(QWidget* parent = nullptr);

    /// The box is read when the link is followed.
    void WriteTo(const QLineEdit* address);
};
