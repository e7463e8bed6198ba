#pragma once

#include <QObject>

/// F1 opens the help, whichever window of the program has the focus.
class HelpKey : public QObject {
    Q_OBJECT
public:
    explicit HelpKey(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_opening = false;
};
