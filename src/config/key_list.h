#pragma once

#include <QListWidget>

/// A list box over a key table: each entry has a text and the id of its row.
class KeyList : public QListWidget {
    Q_OBJECT
public:
    explicit KeyList(QWidget* parent = nullptr);

    void AddEntry(const QString& text, qint64 id);
    /// Selects nothing when the list is empty.
    void SelectFirst();

    bool HasSelection() const;
    /// Throws InvalidPropertyArrayIndex when nothing is selected.
    qint64 SelectedId() const;
};
