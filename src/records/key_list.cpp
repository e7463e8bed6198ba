#include "records/key_list.h"

#include "controls/flex_grid_paint.h"
#include "controls/keys.h"

#include <QKeyEvent>
#include <QMouseEvent>

KeyList::KeyList(QWidget* parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
}

void KeyList::ShowEntries(const KeyTable& table, const Sql& entries)
{
    clear();
    for (Recordset rs = gConnection->Execute(entries); !rs.Eof(); rs.MoveNext()) {
        auto* entry = new QListWidgetItem(EntryText(table, rs), this);
        entry->setData(Qt::UserRole, rs["id"].ToLong());
    }
    if (count() > 0)
        setCurrentRow(0);
    SetEmptyText(m_emptyText);
}

std::optional<qint64> KeyList::SelectedId() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    return selected.constFirst()->data(Qt::UserRole).toLongLong();
}

void KeyList::SetEmptyText(const QString& text)
{
    m_emptyText = text;
    // What an empty list shows a screen reader says.
    setAccessibleDescription(count() > 0 ? QString() : m_emptyText);
}

void KeyList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    PaintEmptyText(this, m_emptyText);
}

void KeyList::mousePressEvent(QMouseEvent* event)
{
    if (indexAt(event->pos()).isValid())
        QListWidget::mousePressEvent(event);
}

void KeyList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        emit Opened();
}

void KeyList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QListWidget::keyPressEvent(event);
    event->accept();
    emit Opened();
}

void LetKeysEdit(QWidget* list, const KeyButtons& buttons)
{
    LetKeyClick(buttons.add, Qt::Key_Insert, list);
    LetKeyClick(buttons.edit, Qt::Key_F2, list);
    LetKeyClick(buttons.remove, Qt::Key_Delete, list);
}
