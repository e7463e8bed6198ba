#pragma once

#include "base/runtime_error.h"
#include "controls/dialogs.h"
#include "controls/message_box.h"

#include <QPageLayout>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

/// Answers the program's dialogs from a script while it lives. A dialog that the script does not expect next, and an
/// answer that nobody asked for, fail the test.
class ScriptedAnswers : public DialogDoor {
public:
    ScriptedAnswers();
    ~ScriptedAnswers() override;
    ScriptedAnswers(const ScriptedAnswers&) = delete;
    ScriptedAnswers& operator=(const ScriptedAnswers&) = delete;

    /// A question. Without icon and buttons these may be any.
    void Expect(const QString& text, Answer answer) { Add({.kind = Kind::Message, .text = text, .answer = answer}); }
    void Expect(const QString& text, Icon icon, Buttons buttons, Answer answer)
    {
        Add({.kind = Kind::Message, .text = text, .icon = icon, .buttons = buttons, .answer = answer});
    }
    /// A message with OK alone; without icon and title these may be any.
    void ExpectMessage(const QString& text, std::optional<Icon> icon = {}, const std::optional<QString>& title = {})
    {
        Add({.kind = Kind::Message, .text = text, .icon = icon, .buttons = Buttons::Ok, .title = title});
    }
    /// A file picker, answered with `path`; "" is Cancel.
    void ExpectOpenFile(const QString& path) { Add({.kind = Kind::OpenFile, .path = path}); }
    void ExpectSaveFile(const QString& path) { Add({.kind = Kind::SaveFile, .path = path}); }
    void ExpectPrint(bool accepted) { Add({.kind = Kind::Print, .accepted = accepted}); }
    void ExpectPageSetup(bool accepted) { Add({.kind = Kind::PageSetup, .accepted = accepted}); }
    bool hasPrinter = true;
    std::optional<QPageLayout::Orientation> orientation; ///< that the page setup chooses
    void ExpectLink(const QString& target) { Add({.kind = Kind::Link, .text = target}); }
    void ExpectHelp(HelpCommand command, int data);
    void ExpectHelpAt(const QStringList& names);

    /// Whether all that was expected has been asked.
    bool Done() const { return m_expected.empty(); }
    /// Everything asked so far: message texts, picker titles, links.
    const QStringList& Asked() const { return m_asked; }

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title) override;
    QString OpenFileName(const QString& title, const QString& filter) override;
    QString SaveFileName(const QString& title, const QString& filter, const QString& suggested) override;
    bool Print(QPrinter& printer) override;
    bool PageSetup(QPrinter& printer) override;
    bool HasPrinter() override { return hasPrinter; }
    void OpenLink(const QString& target) override;
    void Help(int command, int data) override;
    void HelpAt(const QStringList& names) override;

private:
    enum class Kind { Message, OpenFile, SaveFile, Print, PageSetup, Link, Help };
    struct Expected {
        Kind kind = Kind::Message;
        QString text = {};
        std::optional<Icon> icon = {};
        std::optional<Buttons> buttons = {};
        std::optional<QString> title = {};
        Answer answer = Answer::Ok;
        QString path = {};
        bool accepted = false;
    };
    void Add(Expected expected) { m_expected.push_back(std::move(expected)); }
    static QString Said(Kind kind, const QString& text);
    /// The next expected dialog if it is of this kind; otherwise fails the test and returns nothing.
    std::optional<Expected> Take(Kind kind, const QString& text = {});

    std::deque<Expected> m_expected;
    QStringList m_asked;
    DialogDoor* m_before;
};

/// Stands in for the end of the program: records the error, closes all modal forms so that the test goes on, and lets
/// the program live again when it goes out of scope.
class ExpectedEnd {
public:
    ExpectedEnd();
    ~ExpectedEnd();
    ExpectedEnd(const ExpectedEnd&) = delete;
    ExpectedEnd& operator=(const ExpectedEnd&) = delete;

    bool Ended() const { return m_error.has_value(); }
    /// 0 while the program runs on.
    int Number() const { return m_error ? m_error->Number() : 0; }
    QString Description() const { return m_error ? m_error->Description() : QString(); }

private:
    std::optional<RuntimeError> m_error;
};

/// An end of the program that no ExpectedEnd awaits fails the test.
void FailOnProgramEnd();
