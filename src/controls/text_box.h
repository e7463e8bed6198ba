#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

/// The most that typing and pasting make of a box without a limit of its own, the platform's limit. Qt takes seconds to
/// lay out longer ones at each key.
inline constexpr int LongestTypedText = 65535;

/// A one-line text box without Qt's limit of 32767 characters. Texts keep their line ends and control characters;
/// a length limit set with setMaxLength limits typing and pasting and cuts texts set by code. A text set by code is
/// otherwise taken whole. No limit cuts a character in half.
class TextBox : public QLineEdit {
public:
    explicit TextBox(QWidget* parent = nullptr);

    /// Focuses the box with all its text selected.
    void FocusAll();
    /// Shows a stored text whole. The limit is for what the user enters: the next save would store a longer text cut.
    void ShowWhole(const QString& text);

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// A text box of several lines. Tab moves on to the next control.
class MultiLineTextBox : public QPlainTextEdit {
public:
    explicit MultiLineTextBox(QWidget* parent = nullptr);

    /// The text as it was set or typed; line ends that came in as CR LF go out so.
    QString Text() const;
    void SetText(const QString& text);
    /// As that of TextBox.
    void ShowWhole(const QString& text);
    /// 0 for no limit but the one of typing. A longer text set by code is cut.
    void SetMaxLength(int length);
    int MaxLength() const { return m_maxLength; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    /// How many characters may still come in, those selected being replaced.
    int Room() const;
    QString WithLineEnds(QString text) const;

    int m_maxLength = 0;
    QString m_textAsSet;
    bool m_crLf = false;
};
