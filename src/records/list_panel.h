#pragma once

#include "controls/form.h"
#include "controls/layout.h"
#include "records/record_list.h"

/// A panel of the main window that shows one list with a bar of buttons below it. The list has the focus when the panel
/// comes into view.
class ListPanel : public Panel {
    Q_OBJECT
public:
    using Panel::Panel;

    /// Reads the list anew where it is in view, with the same record selected.
    void RefreshIfSeen();

    /// What Ctrl+F runs; the line that filters the list unless another is told.
    void FindBy(std::function<void()> find) { m_find = std::move(find); }

protected:
    /// The bar of buttons at the bottom.
    static QWidget* ButtonBar(const char* name, std::initializer_list<LayoutItem> buttons);

    /// What the buttons do with the list and its rows. They also run by F2, Ctrl+N and, in the list, Delete.
    struct RowButtons {
        QPushButton* open;
        QPushButton* add;
        QPushButton* remove;
    };
    /// Makes `list` the panel's: a click on a title sorts it through `load`, F5 reads it anew with the same record
    /// selected, and a double click or Enter on a row clicks the button that opens it. `load` fills it, and selects the
    /// row of `selectId`, else row number `row`.
    using Loader = std::function<void(int row, qint64 selectId)>;
    void ShowList(RecordList* list, const RowButtons& buttons, Loader load);
    /// Loads the list with the row number selected that is selected now.
    void LoadInPlace();

    void showEvent(QShowEvent* event) override;

private:
    void SetUpKeys(const RowButtons& buttons);

    RecordList* m_list = nullptr;
    Loader m_load;
    std::function<void()> m_find;
};
