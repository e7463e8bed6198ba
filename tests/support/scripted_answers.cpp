#include "support/scripted_answers.h"

#include "base/guard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>

namespace {
const QString Question = QStringLiteral("message");
const QString OpenFile = QStringLiteral("open file");
const QString SaveFile = QStringLiteral("save file");
const QString PrintJob = QStringLiteral("print");
const QString PageSetupJob = QStringLiteral("page setup");
const QString Link = QStringLiteral("link");
const QString HelpPage = QStringLiteral("help");

void CloseModalForms()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isModal() && dialog->isVisible())
            dialog->hide();
}

QString HelpText(int command, int data)
{
    return QStringLiteral("%1 %2").arg(command).arg(data);
}
} // namespace

ScriptedAnswers::ScriptedAnswers()
    : m_before(CurrentDialogDoor())
{
    SetDialogDoor(this);
}

ScriptedAnswers::~ScriptedAnswers()
{
    for (const Expected& expected : m_expected)
        ADD_FAILURE() << "never asked: " << qPrintable(expected.kind) << " \"" << qPrintable(expected.text) << '"';
    SetDialogDoor(m_before);
}

void ScriptedAnswers::Expect(const QString& text, Answer answer)
{
    Add({.kind = Question, .text = text, .answer = answer});
}

void ScriptedAnswers::Expect(const QString& text, Icon icon, Buttons buttons, Answer answer)
{
    Add({.kind = Question, .text = text, .icon = icon, .buttons = buttons, .answer = answer});
}

void ScriptedAnswers::ExpectMessage(const QString& text)
{
    Add({.kind = Question, .text = text, .buttons = Buttons::Ok});
}

void ScriptedAnswers::ExpectMessage(const QString& text, Icon icon)
{
    Add({.kind = Question, .text = text, .icon = icon, .buttons = Buttons::Ok});
}

void ScriptedAnswers::ExpectMessage(const QString& text, Icon icon, const QString& title)
{
    Add({.kind = Question, .text = text, .icon = icon, .buttons = Buttons::Ok, .title = title});
}

void ScriptedAnswers::ExpectOpenFile(const QString& path)
{
    Add({.kind = OpenFile, .path = path});
}

void ScriptedAnswers::ExpectSaveFile(const QString& path)
{
    Add({.kind = SaveFile, .path = path});
}

void ScriptedAnswers::ExpectPrint(bool accepted)
{
    Add({.kind = PrintJob, .accepted = accepted});
}

void ScriptedAnswers::ExpectPageSetup(bool accepted)
{
    Add({.kind = PageSetupJob, .accepted = accepted});
}

void ScriptedAnswers::ExpectLink(const QString& target)
{
    Add({.kind = Link, .text = target});
}

void ScriptedAnswers::ExpectHelp(HelpCommand command, int data)
{
    Add({.kind = HelpPage, .text = HelpText(int(command), data)});
}

std::optional<ScriptedAnswers::Expected> ScriptedAnswers::Take(const QString& kind, const QString& text)
{
    m_asked.append(text);
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected " << qPrintable(kind) << ": \"" << qPrintable(text) << '"';
        return std::nullopt;
    }
    const Expected expected = m_expected.front();
    const bool anyText = expected.text.isEmpty() && kind != Question;
    if (expected.kind != kind || (!anyText && expected.text != text)) {
        ADD_FAILURE() << "asked " << qPrintable(kind) << ": \"" << qPrintable(text) << "\"\nexpected next "
                      << qPrintable(expected.kind) << ": \"" << qPrintable(expected.text) << '"';
        return std::nullopt;
    }
    m_expected.pop_front();
    return expected;
}

Answer ScriptedAnswers::Message(const QString& text, Icon icon, Buttons buttons, const QString& title)
{
    const std::optional<Expected> expected = Take(Question, text);
    if (!expected)
        return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    if (expected->icon) {
        EXPECT_EQ(int(icon), int(*expected->icon)) << "icon of \"" << qPrintable(text) << '"';
    }
    if (expected->buttons) {
        EXPECT_EQ(int(buttons), int(*expected->buttons)) << "buttons of \"" << qPrintable(text) << '"';
    }
    if (expected->title) {
        EXPECT_EQ(title.toStdString(), expected->title->toStdString()) << "title of \"" << qPrintable(text) << '"';
    }
    return expected->answer;
}

QString ScriptedAnswers::OpenFileName(const QString& title, const QString&)
{
    const std::optional<Expected> expected = Take(OpenFile, title);
    return expected ? expected->path : QString();
}

QString ScriptedAnswers::SaveFileName(const QString& title, const QString&, const QString&)
{
    const std::optional<Expected> expected = Take(SaveFile, title);
    return expected ? expected->path : QString();
}

bool ScriptedAnswers::Print(QPrinter&)
{
    const std::optional<Expected> expected = Take(PrintJob, QString());
    return expected && expected->accepted;
}

bool ScriptedAnswers::PageSetup(QPrinter&)
{
    const std::optional<Expected> expected = Take(PageSetupJob, QString());
    return expected && expected->accepted;
}

void ScriptedAnswers::OpenLink(const QString& target)
{
    Take(Link, target);
}

void ScriptedAnswers::Help(int command, int data)
{
    Take(HelpPage, HelpText(command, data));
}

ExpectedEnd::ExpectedEnd()
{
    SetProgramEnd([this](const RuntimeError& error) {
        m_error = error;
        CloseModalForms();
    });
}

ExpectedEnd::~ExpectedEnd()
{
    FailOnProgramEnd();
}

void FailOnProgramEnd()
{
    SetProgramEnd({});
    SetProgramEnd([](const RuntimeError& error) {
        ADD_FAILURE() << "the program ended: " << qPrintable(error.BoxText());
        CloseModalForms();
    });
}
