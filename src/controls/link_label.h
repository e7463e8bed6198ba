#pragma once

#include <QLabel>

/// A label that shows one link. Tab goes to it; a click, Enter or Space follows it, which `linkActivated` tells.
class LinkLabel : public QLabel {
public:
    explicit LinkLabel(QWidget* parent = nullptr);

    void ShowLink(const QString& target, const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_target;
};
