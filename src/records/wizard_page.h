#pragma once

#include "controls/form.h"
#include "records/wizard_state.h"

#include <QCheckBox>

/// A page of a wizard: its content above the three buttons. It knows no other page; it moves the page number and
/// closes. Esc is Cancel; the window's close button leaves the number as it is, so that the same page opens again.
class WizardPage : public Form {
    Q_OBJECT
public:
    CONTROL(QPushButton, cmdBack);
    CONTROL(QPushButton, cmdNext);
    CONTROL(QPushButton, cmdCancel);

protected:
    WizardPage(const char* name, const QString& title, const WizardState& wizard, QWidget* parent);

    /// Lays the page out: the content, which takes all the height, above the buttons. The page's own controls come
    /// before the buttons in tab order.
    virtual void SetContent(QLayout* content);

    /// Stores the page's answers on Next. False, after a message, keeps the page open.
    virtual bool StoreAnswers();

    const WizardState& State() const { return m_wizard; }

private:
    void Leave(int step);

    WizardState m_wizard;
};

/// The first page of a wizard: "Welcome to the " and the wizard's title, and the box that switches this page off.
class WelcomePage : public WizardPage {
    Q_OBJECT
public:
    CONTROL(QLabel, lblWelcomeMessage);
    CONTROL(QCheckBox, chkDisplayNext);

protected:
    WelcomePage(
        const char* name, const QString& title, const QString& message, const WizardState& wizard, QWidget* parent);

    bool StoreAnswers() override;
};

/// A page that says above its content what it asks for.
class MessagePage : public WizardPage {
    Q_OBJECT
public:
    CONTROL(QLabel, lblMessage);

protected:
    MessagePage(
        const char* name, const QString& title, const QString& message, const WizardState& wizard, QWidget* parent);

    void SetContent(QLayout* content) override;
};

/// The last page of a wizard, with Finish in place of Next.
class FinishPage : public MessagePage {
    Q_OBJECT
protected:
    FinishPage(const char* name, const QString& message, const WizardState& wizard, QWidget* parent);
};
