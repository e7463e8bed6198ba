#pragma once

#include "controls/form.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

/// The tip of the day. Each opening shows the tip after the one shown last.
class frmTip : public Form {
    Q_OBJECT
public:
    explicit frmTip(QWidget* parent);

    /// Whether the start of the program is to show the tips.
    static bool ShowAtStartup();

    CONTROL(QLabel, lblTipText);
    CONTROL(QCheckBox, chkLoadTipsAtStartup);
    CONTROL(QPushButton, cmdNextTip);
    CONTROL(QPushButton, cmdOK);

private:
    bool LoadTips();
    void DoNextTip();
    void ShowTip();

    QStringList m_tips;
    int m_currentTip = 1;
};
