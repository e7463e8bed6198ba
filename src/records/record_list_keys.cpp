#include "base/guard.h"
#include "controls/keys.h"
#include "records/record_list.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace {

/// A menu shows what stands behind a tab as the entry's key.
QString WithKey(const QString& caption, const QKeySequence& key)
{
    return key.isEmpty() ? caption : caption + u'\t' + key.toString(QKeySequence::NativeText);
}

} // namespace

void RecordList::LetDownEnter(std::initializer_list<QWidget*> boxes)
{
    for (QWidget* box : boxes)
        OnKey(box, Qt::Key_Down, [this] {
            if (isVisible())
                EnterRows();
        });
}

void RecordList::OpenFilter()
{
    if (!m_filterLine)
        m_filterLine = new FilterLine(this);
    m_filterLine->Open();
}

void RecordList::CloseFilter()
{
    if (m_filterLine)
        m_filterLine->Close();
}

void RecordList::ShowAdded(const std::function<void()>& add)
{
    const int rows = Rows();
    add();
    if (Rows() > rows)
        CloseFilter();
}

void RecordList::keyPressEvent(QKeyEvent* event)
{
    if (event->text() == QLatin1String("/")) {
        event->accept();
        return OpenFilter();
    }
    if (event->key() == Qt::Key_Escape && m_filterLine && m_filterLine->isVisible()) {
        event->accept();
        return m_filterLine->Close();
    }
    FlexGrid::keyPressEvent(event);
}

void RecordList::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex cell = byKey ? currentIndex() : indexAt(event->pos());
    // By key also without a row: the order of a list can be chosen while it is empty.
    if (byKey)
        ShowMenu(viewport()->mapToGlobal(cell.isValid() ? visualRect(cell).center() : QPoint()));
    else if (cell.isValid())
        ShowMenu(event->globalPos());
}

void RecordList::ShowMenu(const QPoint& where)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QPushButton* button : m_buttons) {
        QAction* act = menu->addAction(WithKey(button->text(), KeyOf(button)));
        act->setEnabled(button->isEnabled());
        On(act, &QAction::triggered, button, [button] { button->click(); });
    }
    menu->addSeparator();
    const auto add = [&](const QString& text, const QKeySequence& key, void (*act)(RecordList&)) {
        QAction* action = menu->addAction(WithKey(text, key));
        On(action, &QAction::triggered, this, [this, act] { act(*this); });
    };
    add(tr("&Copy"), QKeySequence::Copy, [](RecordList& list) { list.CopyRow(); });
    add(tr("&Filter"), Qt::Key_Slash, [](RecordList& list) { list.OpenFilter(); });
    if (m_sorts)
        AddOrders(menu->addMenu(tr("S&ort By")));
    menu->popup(where);
}

void RecordList::AddOrders(QMenu* menu)
{
    auto* titles = new QActionGroup(menu);
    for (int col = 0; col < Cols(); ++col) {
        if (!m_columns.at(col).order)
            continue;
        QAction* action = menu->addAction(TextMatrix(0, col).replace(u'&', QStringLiteral("&&")));
        action->setCheckable(true);
        action->setChecked(col == SortedColumn());
        titles->addAction(action);
        On(action, &QAction::triggered, this, [this, col] { SortBy(col); });
    }
}
