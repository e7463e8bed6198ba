#pragma once

#include "base/guard.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QSignalBlocker>

/// A drop-down list. Each entry has a text and a whole number, its item data. Filling selects nothing and fires
/// nothing; selecting, by the user or by `SetListIndex`, fires `Click`.
class ComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr);

    void AddItem(const QString& text, qint64 itemData);
    /// Adds all entries in one step; what a list of 100,000 items is filled with.
    void AddItems(const QList<std::pair<QString, qint64>>& entries);
    void Clear();

    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }
    /// -1 selects nothing. Fires Click if another entry becomes the selected one, also for the first selection.
    /// Throws InvalidPropertyValue for an index out of range.
    void SetListIndex(int index);

    QString List(int index) const { return itemText(index); }
    /// Throws InvalidPropertyArrayIndex for an index out of range, and so for "nothing selected".
    qint64 ItemData(int index) const;
    /// The item data of the selected entry. Throws as `ItemData` does when nothing is selected.
    qint64 SelectedData() const { return ItemData(currentIndex()); }
    QString Text() const { return currentText(); }

    // Qt's own would select the first entry.
    void addItem(const QString&) = delete;
    void addItems(const QStringList&) = delete;

    void showPopup() override;

signals:
    /// The user picked an entry (also the same one again), stepped by a key, or code selected another.
    void Click();

protected:
    /// Typing finds an entry by the start of its text, blanks included.
    void keyPressEvent(QKeyEvent* event) override;
    /// The wheel steps the list with the focus only, so that scrolling a form changes nothing by accident.
    void wheelEvent(QWheelEvent* event) override;

private:
    bool IsSearching() const;
    void SearchOn(const QString& text);

    class Entries;
    Entries* m_entries;
    QElapsedTimer m_lastTyped;
};

/// Selects the first entry equal to `text`; with no match the selection stays.
void SelectComboByText(ComboBox* combo, const QString& text);
/// Selects the first entry whose item data equals `value` compared as numbers; with no match the selection stays.
void SelectComboByData(ComboBox* combo, qint64 value);

/// Selects an entry where failures are dropped. What choosing it does runs as `chosen` on its own, so that a failing
/// statement there ends that and nothing more; it does not run when there is no such entry.
template <typename Handler>
void SelectIgnoring(ComboBox* combo, int index, Handler chosen)
{
    const bool selected = Ignoring([&] {
        const QSignalBlocker quiet(combo);
        combo->SetListIndex(index);
    });
    if (selected)
        Ignoring(chosen);
}
