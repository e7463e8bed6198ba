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

protected:
    /// The bar of buttons at the bottom.
    static QWidget* ButtonBar(const char* name, std::initializer_list<LayoutItem> buttons);

    /// Makes `list` the panel's: a click on a title sorts it through `load`, and a double click or Enter on a row
    /// clicks `open`. `load` fills it, and selects the row of `selectId`, else row number `row`.
    using Loader = std::function<void(int row, qint64 selectId)>;
    void ShowList(RecordList* list, QPushButton* open, Loader load);
    /// Loads the list with the row number selected that is selected now.
    void LoadInPlace();

    void showEvent(QShowEvent* event) override;

private:
    RecordList* m_list = nullptr;
    Loader m_load;
};
