#pragma once

#include "controls/form.h"
#include "controls/link_label.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

/// The about box.
class frmAbout : public Form {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent);

    CONTROL(QLabel, lblProductName);
    CONTROL(QLabel, lblVersion);
    CONTROL(QLabel, lblDescription);
    CONTROL(QLabel, Picture1); ///< the picture on that one system; Picture2 everywhere else
    CONTROL(QLabel, Picture2);
    CONTROL(LinkLabel, Label2); ///< a link to the maker's web site
    CONTROL(QToolButton, Picture4); ///< likewise, with a picture
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdSysInfo);

private:
    void StartSysInfo();
};
