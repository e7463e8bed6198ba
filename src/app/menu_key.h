#pragma once

#include <QObject>

/// Shift+F10 opens the menu of what has the focus, as the Menu key does, which many keyboards lack.
class MenuKey : public QObject {
    Q_OBJECT
public:
    explicit MenuKey(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
