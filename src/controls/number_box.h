#pragma once

#include "controls/text_box.h"

/// A text box for a number: aligned right, and tinted while it holds what the number rules do not take, with the reason
/// as its tooltip. What becomes of such a text is up to the form.
class NumberBox : public TextBox {
    Q_OBJECT
public:
    explicit NumberBox(QWidget* parent = nullptr);

private:
    void ShowWhetherItIsANumber();

    bool m_isTinted = false;
    QString m_toolTip; ///< that of the box while it is tinted
};
