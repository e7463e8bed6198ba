#include "controls/filter_line.h"

#include "base/guard.h"
#include "controls/layout.h"

#include <QApplication>
#include <QKeyEvent>
#include <QToolButton>

namespace {
/// The box layout that holds the widget, at any depth.
QBoxLayout* BoxAround(QLayout* layout, QWidget* widget)
{
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() == widget)
            return qobject_cast<QBoxLayout*>(layout);
        if (QBoxLayout* box = BoxAround(item->layout(), widget))
            return box;
    }
    return nullptr;
}

void PutUnder(QWidget* widget, QWidget* line)
{
    QBoxLayout* box = BoxAround(widget->parentWidget()->layout(), widget);
    const int place = box->indexOf(widget);
    const int share = box->stretch(place);
    box->removeWidget(widget);
    box->insertLayout(place, column({widget, line}), share);
}
} // namespace

FilterLine::FilterLine(FlexGrid* list)
    : QWidget(list->parentWidget())
    , m_list(list)
{
    m_words->setObjectName(QStringLiteral("txtFilter"));
    m_words->setPlaceholderText(tr("Words to look for, in any order"));
    auto* label = new QLabel(tr("Filter:"));
    SetLabelOf(label, m_words);
    m_close->setAutoRaise(true);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_close->setToolTip(tr("Close the filter (Esc)"));
    m_close->setAccessibleName(tr("Close the filter"));
    setLayout(row({label, m_words, m_count, m_close}));
    layout()->setContentsMargins(0, 0, 0, 0);
    setFocusProxy(m_words);
    setVisible(false);
    PutUnder(list, this);
    setTabOrder(list, m_words);
    setTabOrder(m_words, m_close);

    On(m_words, &TextBox::textChanged, list, &FlexGrid::SetFilter);
    On(m_close, &QToolButton::clicked, this, &FilterLine::Close);
    On(list->model(), &QAbstractItemModel::modelReset, this, &FilterLine::ShowCount);
    On(list->model(), &QAbstractItemModel::rowsInserted, this, &FilterLine::ShowCount);
    On(list->model(), &QAbstractItemModel::rowsRemoved, this, &FilterLine::ShowCount);
}

void FilterLine::Open()
{
    show();
    ShowCount();
    m_words->setFocus(Qt::ShortcutFocusReason);
    m_words->selectAll();
}

void FilterLine::Close()
{
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    m_words->clear();
    hide();
    if (hadFocus)
        m_list->setFocus(Qt::OtherFocusReason);
}

void FilterLine::ShowCount()
{
    // Rows that came one by one have lifted the filter.
    if (m_list->Filter().isEmpty() && !m_words->text().isEmpty())
        return Close();
    m_count->setText(tr("%1 of %2").arg(m_list->ShownRows()).arg(m_list->Rows() - 1));
}

void FilterLine::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        return Close();
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        return m_close->hasFocus() ? Close() : m_list->EnterRows();
    default:
        QWidget::keyPressEvent(event);
    }
}
