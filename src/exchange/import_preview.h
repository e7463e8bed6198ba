#pragma once

#include "controls/combo_box.h"
#include "controls/flex_grid.h"
#include "exchange/import_answers.h"
#include "exchange/import_reading.h"
#include "records/wizard_page.h"

#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

/// Shows the file and asks which of its columns feeds which field of the items. Next imports them.
class frmWizImport_Preview : public MessagePage {
    Q_OBJECT
public:
    frmWizImport_Preview(ImportWizard& wizard, QWidget* parent);

    CONTROL(ComboBox, cboSep);
    CONTROL(QCheckBox, chkFirstLine);
    CONTROL(FlexGrid, g);
    CONTROL(QLabel, lblRows);
    CONTROL(QScrollArea, picBack); ///< lets the rows of fields scroll
    CONTROL(QWidget, picFore);
    CONTROL(QScrollBar, VScroll);

    void done(int result) override;

protected:
    bool StoreAnswers() override;

private:
    struct FieldRow {
        QLabel* label;
        ComboBox* source;
    };
    QList<FieldRow> MakeFieldRows(qsizetype count);
    void ShowFields();
    void FillSources();

    void ReadAgain();
    void DoImportPreview();
    void ShowPreview();
    void DoImport();

    ImportWizard& m_wizard;
    const QList<FieldRow> m_fields; ///< `lblTableField_1`, `cboImportField_1` and so on
    QProgressBar* const m_progress = new QProgressBar;
    QTimer* const m_timer = new QTimer(this);
    std::optional<ImportReading> m_reading;
};
