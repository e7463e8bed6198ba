#include "controls/typed_text.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

bool TextBefore::IsTextBox(const QWidget* control)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(control))
        return !line->isReadOnly();
    const auto* lines = qobject_cast<const QPlainTextEdit*>(control);
    return lines && !lines->isReadOnly();
}

TextBefore::TextBefore(QWidget* box)
    : m_box(box)
{
    if (const auto* line = qobject_cast<QLineEdit*>(box)) {
        m_text = line->text();
        m_cursor = m_anchor = line->cursorPosition();
        if (line->hasSelectedText())
            m_anchor = m_cursor == line->selectionStart() ? line->selectionEnd() : line->selectionStart();
        m_isModified = line->isModified();
    } else if (const auto* lines = qobject_cast<QPlainTextEdit*>(box)) {
        const QTextCursor cursor = lines->textCursor();
        m_text = cursor.selectedText();
        m_cursor = cursor.position();
        m_anchor = cursor.anchor();
        m_characters = lines->document()->characterCount();
        m_undoSteps = lines->document()->availableUndoSteps();
        m_isModified = lines->document()->isModified();
    }
}

void TextBefore::TakeBack() const
{
    // What was typed right behind a text typed before is one step to undo with it. The text is put in anew then.
    if (auto* line = qobject_cast<QLineEdit*>(m_box)) {
        if (line->text() != m_text)
            line->undo();
        if (line->text() != m_text) {
            line->selectAll();
            line->insert(m_text);
        }
        if (m_anchor == m_cursor)
            line->setCursorPosition(m_cursor);
        else
            line->setSelection(m_anchor, m_cursor - m_anchor);
        line->setModified(m_isModified);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(m_box)) {
        QTextDocument* document = lines->document();
        while (document->availableUndoSteps() > m_undoSteps)
            document->undo();
        if (document->availableUndoSteps() < m_undoSteps)
            document->redo();
        QTextCursor cursor(document);
        if (const int typed = document->characterCount() - m_characters; typed != 0) {
            cursor.setPosition(qMin(m_anchor, m_cursor));
            cursor.setPosition(cursor.position() + typed + int(m_text.size()), QTextCursor::KeepAnchor);
            cursor.insertText(m_text);
        }
        document->clearUndoRedoStacks(QTextDocument::RedoStack);
        cursor.setPosition(m_anchor);
        cursor.setPosition(m_cursor, QTextCursor::KeepAnchor);
        lines->setTextCursor(cursor);
        document->setModified(m_isModified);
    }
}
