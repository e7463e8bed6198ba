#include "controls/combo_box.h"

#include "base/runtime_error.h"
#include "controls/shared_style.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QStyleHints>
#include <QWheelEvent>

namespace {
constexpr int MeasuredEntries = 500;

// Some styles drop a list down as one tall menu, which measures every entry and has no scroll bar where the screen
// ends.
class ListStyle : public QProxyStyle {
public:
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* result) const override
    {
        if (hint == SH_ComboBox_Popup)
            if (auto* combo = qobject_cast<const QComboBox*>(widget);
                combo && combo->count() > combo->maxVisibleItems())
                return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    /// A text that is too long ends in dots, in the box as in its list.
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override
    {
        const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (element != CE_ComboBoxLabel || !box)
            return QProxyStyle::drawControl(element, option, painter, widget);
        constexpr int Margin = 2;
        QStyleOptionComboBox cut = *box;
        const QRect room = proxy()->subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
        cut.currentText = box->fontMetrics.elidedText(box->currentText, Qt::ElideRight, room.width() - Margin);
        QProxyStyle::drawControl(element, &cut, painter, widget);
    }
};
} // namespace

/// The entries, with a search over plain texts: Qt's own search wraps each of them and takes seconds in a long list.
class ComboBox::Entries : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : int(m_entries.size()); }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (index.row() < 0 || index.row() >= m_entries.size())
            return {};
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return m_entries[index.row()].first;
        return role == Qt::UserRole ? QVariant(m_entries[index.row()].second) : QVariant();
    }

    QModelIndexList match(
        const QModelIndex& start, int role, const QVariant& value, int hits, Qt::MatchFlags flags) const override
    {
        if (role != Qt::DisplayRole || hits != 1 || (flags & Qt::MatchTypeMask) != Qt::MatchStartsWith)
            return QAbstractListModel::match(start, role, value, hits, flags);
        const QString prefix = value.toString();
        const int count = int(m_entries.size());
        const int end = flags & Qt::MatchWrap ? start.row() + count : count;
        for (int i = start.row(); i < end; ++i)
            if (m_entries[i % count].first.startsWith(prefix, Qt::CaseInsensitive))
                return {index(i % count)};
        return {};
    }

    void Append(const QList<std::pair<QString, qint64>>& entries)
    {
        const int count = int(m_entries.size());
        beginInsertRows({}, count, count + int(entries.size()) - 1);
        m_entries.append(entries);
        endInsertRows();
    }

    void Clear()
    {
        beginResetModel();
        m_entries.clear();
        endResetModel();
    }

    const QList<std::pair<QString, qint64>>& All() const { return m_entries; }

private:
    QList<std::pair<QString, qint64>> m_entries;
};

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_entries(new Entries(this))
{
    setStyle(SharedStyle<ListStyle>());
    setModel(m_entries);
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideRight);
    setView(list);

    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setMaxVisibleItems(15);
    setFocusPolicy(Qt::StrongFocus);
    QObject::connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::AddItem(const QString& text, qint64 itemData)
{
    AddItems({{text, itemData}});
}

void ComboBox::AddItems(const QList<std::pair<QString, qint64>>& entries)
{
    if (entries.isEmpty())
        return;
    const QSignalBlocker silent(this);
    const int selected = currentIndex();
    m_entries->Append(entries);
    setCurrentIndex(selected);
}

void ComboBox::Clear()
{
    const QSignalBlocker silent(this);
    m_entries->Clear();
    setCurrentIndex(-1);
}

void ComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= count())
        throw InvalidPropertyValue();
    if (index == currentIndex())
        return;
    setCurrentIndex(index);
    emit Click();
}

qint64 ComboBox::ItemData(int index) const
{
    if (index < 0 || index >= count())
        throw InvalidPropertyArrayIndex();
    return m_entries->All()[index].second;
}

void ComboBox::showPopup()
{
    const int margins = 2 * view()->frameWidth() + view()->verticalScrollBar()->sizeHint().width() + 8;
    int widest = 0;
    for (int i = 0; i < qMin(count(), MeasuredEntries); ++i)
        widest = qMax(widest, view()->fontMetrics().horizontalAdvance(itemText(i)) + margins);
    view()->setMinimumWidth(qBound(0, widest, screen()->availableGeometry().width() / 2));
    QComboBox::showPopup();
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    // Qt drops the list down for a blank even in the midst of a name.
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && IsSearching())
        SearchOn(text);
    else
        QComboBox::keyPressEvent(event);
    if (!text.isEmpty() && text.front().isPrint())
        m_lastTyped.start();
}

bool ComboBox::IsSearching() const
{
    return m_lastTyped.isValid() && m_lastTyped.elapsed() < QGuiApplication::styleHints()->keyboardInputInterval();
}

void ComboBox::SearchOn(const QString& text)
{
    const int before = currentIndex();
    view()->setCurrentIndex(m_entries->index(before));
    view()->keyboardSearch(text);
    const int found = view()->currentIndex().row();
    if (found == before)
        return;
    setCurrentIndex(found);
    emit activated(found);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void SelectComboByText(ComboBox* combo, const QString& text)
{
    for (int i = 0; i < combo->ListCount(); ++i)
        if (combo->List(i) == text)
            return combo->SetListIndex(i);
}

void SelectComboByData(ComboBox* combo, qint64 value)
{
    for (int i = 0; i < combo->ListCount(); ++i)
        if (combo->ItemData(i) == value)
            return combo->SetListIndex(i);
}
