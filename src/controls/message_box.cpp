#include "controls/message_box.h"

#include "controls/hourglass.h"
#include "controls/scan_watch.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

namespace {
DialogDoor* gDoor = nullptr;

QMessageBox::Icon QtIcon(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons QtButtons(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok:
        return QMessageBox::Ok;
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

Answer FromQt(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

// Qt takes No as the answer to Esc and to the close button; here a Yes/No question must be answered.
class Box : public QMessageBox {
public:
    Box(const QString& text, ::Icon icon, Buttons buttons, const QString& title, QWidget* owner)
        : QMessageBox(owner)
        , m_mustAnswer(buttons == Buttons::YesNo)
    {
        setObjectName(QStringLiteral("MsgBox"));
        setWindowTitle(title);
        setTextFormat(Qt::PlainText);
        setText(text);
        setIcon(QtIcon(icon));
        setStandardButtons(QtButtons(buttons));
        setDefaultButton(buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Ok : Yes);
        if (m_mustAnswer)
            setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        if (m_mustAnswer)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!m_mustAnswer || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }

private:
    bool m_mustAnswer;
};

QWidget* OwnerWindow()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

enum class Scans { Wait, Close };

Answer Ask(const QString& text, Icon icon, Buttons buttons, const QString& title, Scans scans)
{
    if (gDoor)
        return gDoor->Message(text, icon, buttons, title);
    Box box(text, icon, buttons, title.isEmpty() ? QLatin1String(ProgramTitle) : title, OwnerWindow());
    if (scans == Scans::Close)
        LetScansClose(&box);
    const ArrowOverHourglass arrow;
    return FromQt(box.exec());
}
} // namespace

void MsgBox(const QString& text, Icon icon)
{
    Ask(text, icon, Buttons::Ok, QString(), Scans::Wait);
}

void ScanMsgBox(const QString& text, Icon icon)
{
    Ask(text, icon, Buttons::Ok, QString(), Scans::Close);
}

void MsgBox(const QString& text, Icon icon, const QString& title)
{
    Ask(text, icon, Buttons::Ok, title, Scans::Wait);
}

Answer MsgBox(const QString& text, Icon icon, Buttons buttons)
{
    return Ask(text, icon, buttons, QString(), Scans::Wait);
}

void SetDialogDoor(DialogDoor* door)
{
    gDoor = door;
}

DialogDoor* CurrentDialogDoor()
{
    return gDoor;
}
