#pragma once

#include "base/guard.h"
#include "controls/control.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

/// A modal form. Esc runs the button that was made its cancel button; Enter runs the button that has the focus, or else
/// the default button.
class Form : public QDialog, public ControlOwner {
public:
    /// `name` is the form's objectName, `title` its caption.
    Form(const char* name, const QString& title, QWidget* parent);

    /// Shows the form modally and returns when it has closed. The first control in tab order has the focus unless the
    /// form set another.
    void ShowModal();

    /// `button` closes the form, and Esc clicks it. The window's close button closes the form
    /// without it, as `reject` does; so does Esc in a form without a cancel button.
    void SetCancelButton(QPushButton* button);
    /// What Esc does.
    void Cancel();

    void done(int result) override;
    /// A form that can be resized opens where it was left last, also in an earlier run.
    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* m_cancelButton = nullptr;
    bool m_prepared = false;
};

/// A panel of the main window: a widget with the system's name, whose controls keep their declared tab order.
class Panel : public QWidget, public ControlOwner {
public:
    Panel(const char* name, QWidget* parent);

    /// The panel's title ("Invoice History").
    void SetTitle(const QString& title);
    QString Title() const;

    /// The icon beside the title; its objectName is `picTopIcon`.
    QLabel* TopIcon() const { return m_topIcon; }
    QLabel* TitleLabel() const { return m_title; }

protected:
    /// The panel's head for its layout: the icon, the title and a line of instructions. Made once.
    QLayout* head(const QString& title, const QString& instructionText);

    void showEvent(QShowEvent* event) override;
    /// Enter runs the button that has the focus, or else the panel's default button.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* m_topIcon;
    QLabel* m_title;
    bool m_prepared = false;
};

/// Makes `button` the one that Enter runs in its form or panel, in place of the one before, or takes that from it.
void SetDefaultButton(QPushButton* button, bool on);
