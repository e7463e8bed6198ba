#include "support/scripted_answers.h"

#include "base/guard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPrinter>

namespace {
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
        ADD_FAILURE() << "never asked " << qPrintable(Said(expected.kind, expected.text));
    SetDialogDoor(m_before);
}

void ScriptedAnswers::ExpectHelp(HelpCommand command, int data)
{
    Add({.kind = Kind::Help, .text = HelpText(int(command), data)});
}

void ScriptedAnswers::ExpectHelpAt(const QStringList& names)
{
    Add({.kind = Kind::Help, .text = names.join(QLatin1Char(' '))});
}

QString ScriptedAnswers::Said(Kind kind, const QString& text)
{
    constexpr const char* Names[] = {"message", "open file", "save file", "print", "page setup", "link", "help"};
    return QStringLiteral("%1: \"%2\"").arg(QLatin1String(Names[int(kind)]), text);
}

std::optional<ScriptedAnswers::Expected> ScriptedAnswers::Take(Kind kind, const QString& text)
{
    m_asked.append(text);
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected " << qPrintable(Said(kind, text));
        return std::nullopt;
    }
    const Expected expected = m_expected.front();
    const bool anyText = expected.text.isEmpty() && kind != Kind::Message;
    if (expected.kind != kind || (!anyText && expected.text != text)) {
        ADD_FAILURE() << "asked " << qPrintable(Said(kind, text)) << "\nexpected next "
                      << qPrintable(Said(expected.kind, expected.text));
        return std::nullopt;
    }
    m_expected.pop_front();
    return expected;
}

Answer ScriptedAnswers::Message(const QString& text, Icon icon, Buttons buttons, const QString& title)
{
    const std::optional<Expected> expected = Take(Kind::Message, text);
    if (!expected)
        return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    EXPECT_EQ(int(icon), int(expected->icon.value_or(icon))) << "icon of \"" << qPrintable(text) << '"';
    EXPECT_EQ(int(buttons), int(expected->buttons.value_or(buttons))) << "buttons of \"" << qPrintable(text) << '"';
    EXPECT_EQ(title.toStdString(), expected->title.value_or(title).toStdString())
        << "title of \"" << qPrintable(text) << '"';
    return expected->answer;
}

QString ScriptedAnswers::OpenFileName(const QString& title, const QString&)
{
    return Take(Kind::OpenFile, title).value_or(Expected{}).path;
}

QString ScriptedAnswers::SaveFileName(const QString& title, const QString&, const QString&)
{
    return Take(Kind::SaveFile, title).value_or(Expected{}).path;
}

bool ScriptedAnswers::Print(QPrinter&)
{
    return Take(Kind::Print).value_or(Expected{}).accepted;
}

bool ScriptedAnswers::PageSetup(QPrinter& printer)
{
    if (orientation)
        printer.setPageOrientation(*orientation);
    return Take(Kind::PageSetup).value_or(Expected{}).accepted;
}

void ScriptedAnswers::OpenLink(const QString& target)
{
    Take(Kind::Link, target);
}

void ScriptedAnswers::Help(int command, int data)
{
    Take(Kind::Help, HelpText(command, data));
}

void ScriptedAnswers::HelpAt(const QStringList& names)
{
    Take(Kind::Help, names.join(QLatin1Char(' ')));
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
