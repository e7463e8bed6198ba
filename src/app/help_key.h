#pragma once

#include <QObject>

/// F1 opens the help at the page of the form or panel that has the focus, whichever window of the program it is in.
class HelpKey : public QObject {
    Q_OBJECT
public:
    explicit HelpKey(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_opening = false;
};
