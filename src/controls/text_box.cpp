#include "controls/text_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>

#include <limits>

TextBox::TextBox(QWidget* parent)
    : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
    // A text longer than its box shows its start, except where somebody is typing.
    QObject::connect(this, &QLineEdit::textChanged, this, [this] {
        if (!hasFocus())
            setCursorPosition(0);
    });
}

void TextBox::FocusAll()
{
    setFocus();
    selectAll();
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    const int start = selectionStart();
    const int length = selectionLength();
    QLineEdit::focusOutEvent(event);
    // Qt keeps the selection while a menu is open, but not when it was opened by its access key.
    if (event->reason() == Qt::MenuBarFocusReason && length > 0)
        setSelection(start, length);
}

void TextBox::ShowWhole(const QString& text)
{
    setMaxLength(qMax(maxLength(), int(text.size())));
    setText(text);
}

MultiLineTextBox::MultiLineTextBox(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

QString MultiLineTextBox::Text() const
{
    if (!document()->isModified())
        return m_textAsSet;
    return WithLineEnds(document()->toRawText());
}

void MultiLineTextBox::SetText(const QString& text)
{
    m_textAsSet = m_maxLength > 0 ? text.left(m_maxLength) : text;
    m_crLf = text.contains(QLatin1String("\r\n"));
    setPlainText(m_textAsSet);
    document()->setModified(false);
}

void MultiLineTextBox::ShowWhole(const QString& text)
{
    SetMaxLength(qMax(m_maxLength, int(text.size())));
    SetText(text);
}

void MultiLineTextBox::SetMaxLength(int length)
{
    m_maxLength = length;
}

void MultiLineTextBox::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QChar first = event->text().isEmpty() ? QChar() : event->text().front();
    const bool inserts = isEnter || first.isPrint() || first.isSurrogate();
    const int needed = isEnter ? int(WithLineEnds(QStringLiteral("\n")).size()) : int(event->text().size());
    if (inserts && Room() < needed)
        return event->accept();
    QPlainTextEdit::keyPressEvent(event);
}

void MultiLineTextBox::inputMethodEvent(QInputMethodEvent* event)
{
    if (const int room = Room(); event->commitString().size() > room)
        event->setCommitString(event->commitString().left(room));
    QPlainTextEdit::inputMethodEvent(event);
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText())
        return;
    const QString text = source->text();
    if (textCursor().selectedText().size() == toPlainText().size())
        m_crLf = text.contains(QLatin1String("\r\n"));
    QString fitting = WithLineEnds(text).left(Room());
    if (fitting.endsWith(u'\r'))
        fitting.chop(1);
    textCursor().insertText(fitting);
    ensureCursorVisible();
}

int MultiLineTextBox::Room() const
{
    if (m_maxLength <= 0)
        return std::numeric_limits<int>::max();
    const QString replaced = WithLineEnds(textCursor().selectedText());
    return m_maxLength - int(Text().size()) + int(replaced.size());
}

QString MultiLineTextBox::WithLineEnds(QString text) const
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    if (m_crLf)
        text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return text;
}
