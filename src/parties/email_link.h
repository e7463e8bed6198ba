#pragma once

#include <QLabel>
#include <QLineEdit>

/// A link beside a box with an email address. A click, Enter or Space opens a message to the address in the system's
/// mail program.
class EmailLink : public QLabel {
    Q_OBJECT
public:
    explicit EmailLink(QWidget* parent = nullptr);

    /// The box is read when the link is followed.
    void WriteTo(const QLineEdit* address);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
