#include "controls/text_box.h"

#include "base/texts.h"
#include "controls/kept_pictures.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>
#include <QValidator>

#include <limits>

namespace {

/// Takes back what is too much of an insertion, which ends at the cursor.
class InsertionLimit : public QValidator {
public:
    explicit InsertionLimit(QLineEdit* box)
        : QValidator(box)
        , m_box(box)
    {
    }

    State validate(QString& text, int& cursor) const override
    {
        if (!m_box->isModified())
            m_limit = qMax(LongestTypedText, int(text.size()));
        const int excess = qMin(int(text.size()) - m_limit, cursor);
        if (excess > 0)
            Remove(text, cursor, excess);
        const bool isCut = excess > 0 || text.size() == m_box->maxLength();
        if (isCut && cursor > 0 && text.at(cursor - 1).isHighSurrogate()
            && (cursor == text.size() || !text.at(cursor).isLowSurrogate()))
            Remove(text, cursor, 1);
        return Acceptable;
    }

private:
    static void Remove(QString& text, int& cursor, int count)
    {
        cursor -= count;
        text.remove(cursor, count);
    }

    QLineEdit* m_box;
    mutable int m_limit = LongestTypedText;
};

} // namespace

TextBox::TextBox(QWidget* parent)
    : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new InsertionLimit(this));
    setStyle(StyleWithKeptPictures());
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

bool TextBox::event(QEvent* event)
{
    // No key of editing is on Enter. Qt would compare it with each of them, which takes a tenth of a scan.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
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
    m_textAsSet = m_maxLength > 0 ? Shortened(text, m_maxLength).toString() : text;
    m_crLf = text.contains(QLatin1String("\r\n"));
    setPlainText(m_textAsSet);
    document()->setModified(false);
}

void MultiLineTextBox::ShowWhole(const QString& text)
{
    if (m_maxLength > 0)
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
        event->setCommitString(Shortened(event->commitString(), room).toString());
    QPlainTextEdit::inputMethodEvent(event);
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText())
        return;
    const QString text = source->text();
    if (textCursor().selectedText().size() == toPlainText().size())
        m_crLf = text.contains(QLatin1String("\r\n"));
    QString fitting = Shortened(WithLineEnds(text), Room()).toString();
    if (fitting.endsWith(u'\r'))
        fitting.chop(1);
    textCursor().insertText(fitting);
    ensureCursorVisible();
}

int MultiLineTextBox::Room() const
{
    const QString replaced = WithLineEnds(textCursor().selectedText());
    const int limit = m_maxLength > 0 ? m_maxLength : LongestTypedText;
    return qMax(0, limit - int(Text().size()) + int(replaced.size()));
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
