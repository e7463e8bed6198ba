#include "controls/link_label.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

bool Follows(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
}

} // namespace

LinkLabel::LinkLabel(QWidget* parent)
    : QLabel(parent)
{
    // Qt's own keys for links take a second Tab before Enter does anything.
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::TabFocus);
}

void LinkLabel::ShowLink(const QString& target, const QString& text)
{
    m_target = target;
    setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(target.toHtmlEscaped(), text.toHtmlEscaped()));
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (!Follows(event))
        return QLabel::keyPressEvent(event);
    // Accepted first: the form's default button is not to run as well.
    event->accept();
    emit linkActivated(m_target);
}

void LinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(backgroundRole());
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
