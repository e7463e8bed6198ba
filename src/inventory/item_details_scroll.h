#pragma once

#include <QScrollArea>
#include <QScrollBar>

/// The part of the item record that scrolls when the screen is too small for it. Asks for the height its content wants
/// and for `width`.
class ItemDetailsScroll : public QScrollArea {
public:
    ItemDetailsScroll(QWidget* content, int width)
        : m_width(width)
    {
        setWidget(content);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override
    {
        const QSize content = widget()->sizeHint();
        return {qMax(m_width, content.width()) + verticalScrollBar()->sizeHint().width(), content.height()};
    }

private:
    int m_width;
};
