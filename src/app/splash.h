#pragma once

#include "controls/form.h"

#include <QLabel>
#include <QTimer>

#include <functional>

/// The splash. While it shows, its second timer loads the main window behind it; its first timer, a key or a click
/// closes it.
class frmSplash : public Form {
    Q_OBJECT
public:
    /// `load` runs on each tick of the second timer and says whether the program can go on; the splash closes at once
    /// when it cannot.
    explicit frmSplash(std::function<bool()> load);

    CONTROL(QFrame, Frame1);
    CONTROL(QLabel, Picture1); ///< the picture on that one system; Picture2 everywhere else
    CONTROL(QLabel, Picture2);
    CONTROL(QLabel, lblProductName);
    CONTROL(QLabel, lblDescription);
    CONTROL(QLabel, lblVersion);

    QTimer* Timer1;
    QTimer* Timer2;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void Load();
    void Close();

    std::function<bool()> m_load;
    bool m_loading = false;
};
