#include "records/wizard_page.h"

#include "controls/layout.h"

#include <QFrame>

namespace {

/// One size for all pages, so that the buttons stay in place from page to page.
QSize PageSize(int lineHeight)
{
    constexpr QSize Frames(200, 200);
    constexpr QSize Lines(22, 15);
    return Frames + Lines * lineHeight;
}

QFrame* Rule()
{
    auto* rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    return rule;
}

} // namespace

WizardPage::WizardPage(const char* name, const QString& title, const WizardState& wizard, QWidget* parent)
    : Form(name, title, parent)
    , m_wizard(wizard)
{
    cmdBack->setText(tr("&Back"));
    cmdNext->setText(tr("&Next"));
    cmdNext->setDefault(true);
    cmdCancel->setText(tr("&Cancel"));

    On(cmdBack, &QPushButton::clicked, this, [this] { Leave(-1); });
    On(cmdNext, &QPushButton::clicked, this, [this] {
        if (StoreAnswers())
            Leave(1);
    });
    On(cmdCancel, &QPushButton::clicked, this, [this] { m_wizard.WizardCancelled = true; });
    SetCancelButton(cmdCancel);
}

void WizardPage::SetContent(QLayout* content)
{
    constexpr int CancelGap = 12;
    QVBoxLayout* page = column({
        content,
        Rule(),
        row({stretch(), cmdBack, cmdNext, gap(CancelGap), cmdCancel}),
    });
    page->setStretch(0, 1);
    setLayout(page);
    resize(PageSize(fontMetrics().lineSpacing()).expandedTo(sizeHint()));

    const QList<QWidget*> controls = Controls();
    for (QWidget* control : controls.sliced(3))
        PutInTabOrderBefore(cmdBack, control);
}

bool WizardPage::StoreAnswers()
{
    return true;
}

void WizardPage::Leave(int step)
{
    m_wizard.WizardPage = qint16(m_wizard.WizardPage + step);
    accept();
}

WelcomePage::WelcomePage(
    const char* name, const QString& title, const QString& message, const WizardState& wizard, QWidget* parent)
    : WizardPage(name, title, wizard, parent)
{
    lblWelcomeMessage->setText(message);
    lblWelcomeMessage->setWordWrap(true);
    chkDisplayNext->setText(tr("Display this welcome screen at startup."));
    chkDisplayNext->setChecked(wizard.ShowWelcome);
    cmdBack->setEnabled(false);

    SetContent(column({
        heading(tr("Welcome to the %1").arg(title)),
        lblWelcomeMessage,
        new QLabel(tr("To continue, click Next.")),
        stretch(),
        chkDisplayNext,
    }));
    cmdNext->setFocus();
}

bool WelcomePage::StoreAnswers()
{
    State().ShowWelcome = chkDisplayNext->isChecked();
    return true;
}

MessagePage::MessagePage(
    const char* name, const QString& title, const QString& message, const WizardState& wizard, QWidget* parent)
    : WizardPage(name, title, wizard, parent)
{
    MakeInstructions(lblMessage, message);
}

void MessagePage::SetContent(QLayout* content)
{
    WizardPage::SetContent(column({lblMessage, content}));
}

FinishPage::FinishPage(const char* name, const QString& message, const WizardState& wizard, QWidget* parent)
    : MessagePage(name, tr("Finished"), message, wizard, parent)
{
    cmdNext->setText(tr("&Finish"));
    SetContent(column({stretch()}));
    cmdNext->setFocus();
}
