#pragma once

#include "records/key_table.h"

#include <QListWidget>
#include <QPushButton>

/// A list box over a key table: each entry has a text and the id of its row.
class KeyList : public QListWidget {
    Q_OBJECT
public:
    explicit KeyList(QWidget* parent = nullptr);

    /// Shows the rows of the statement, `table.entries` with its markers filled, and selects the first.
    void ShowEntries(const KeyTable& table, const Sql& entries);

    std::optional<qint64> SelectedId() const;

    /// What the list says while it has no entries.
    void SetEmptyText(const QString& text);

signals:
    /// A double click anywhere in the list, or Enter.
    void Opened();

protected:
    /// A press beside the entries leaves the selection as it is.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_emptyText;
};

/// The buttons beside a list of key rows.
struct KeyButtons {
    QPushButton* add;
    QPushButton* edit;
    QPushButton* remove;
};
/// Insert, F2 and Delete in the list click its buttons.
void LetKeysEdit(QWidget* list, const KeyButtons& buttons);
