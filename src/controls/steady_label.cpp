#include "controls/steady_label.h"

#include <QEvent>

#include <utility>

namespace {

/// No digit is wider than a zero, so that texts of one outline have room in one place.
QString Outline(QString text)
{
    for (QChar& character : text)
        if (character.isDigit())
            character = QChar(character.unicode() - character.digitValue());
    return text;
}

} // namespace

SteadyLabel::SteadyLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // With a background of its own it is painted without all that lies below it.
    setAutoFillBackground(true);
    // To shape words takes longer than to draw them, and numbers have no pairs to be set closer.
    QFont unshaped = font();
    unshaped.setStyleStrategy(QFont::PreferNoShaping);
    setFont(unshaped);
}

void SteadyLabel::Show(const QString& text)
{
    setText(text);
    if (QString outline = Outline(text); outline != m_outline) {
        m_outline = std::move(outline);
        TakeRoom();
    }
}

void SteadyLabel::TakeRoom()
{
    if (m_outline.isEmpty())
        return setFixedSize(0, 0);
    // The hint is no smaller than the room so far. A label of a fixed size asks for no other one with another text.
    setFixedSize(sizeHint().expandedTo(QSize(fontMetrics().horizontalAdvance(m_outline), 0)));
}

void SteadyLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    setMinimumSize(0, 0);
    TakeRoom();
}

// Only below the mouse: Qt makes a document of a text that can be selected, which is dear to lay out and painted twice.

void SteadyLabel::enterEvent(QEnterEvent* event)
{
    QLabel::enterEvent(event);
    if (m_isSelectable)
        setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void SteadyLabel::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    if (m_isSelectable && !hasSelectedText() && !hasFocus())
        setTextInteractionFlags(Qt::NoTextInteraction);
}
