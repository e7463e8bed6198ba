#pragma once

#include "controls/flex_grid.h"
#include "controls/text_box.h"

#include <QLabel>
#include <QToolButton>
#include <QWidget>

/// The line under a list that narrows it down, with every key, to the rows that hold all words typed. Esc closes it,
/// which lets all rows show; Down and Enter go into the rows, but for Enter on the button that closes it.
class FilterLine : public QWidget {
    Q_OBJECT
public:
    /// Puts itself, closed, under the list in the layout that holds it.
    explicit FilterLine(FlexGrid* list);

    /// Shows the line and lets it have the focus.
    void Open();
    void Close();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowCount();

    FlexGrid* m_list;
    TextBox* m_words = new TextBox(this);
    QLabel* m_count = new QLabel(this);
    QToolButton* m_close = new QToolButton(this);
};
