#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"

#include <QDoubleSpinBox>
#include <QPageLayout>
#include <QRadioButton>

/// Asks for paper, orientation and margins of a document where there is no printer whose own dialog would: that dialog
/// does not work without one. Margins are in the units of the user's country.
class frmPaperSetup : public Form {
    Q_OBJECT
public:
    frmPaperSetup(const QPageLayout& current, QWidget* parent);

    QPageLayout Chosen() const;

    CONTROL(ComboBox, cboPaper);
    CONTROL(QRadioButton, optPortrait);
    CONTROL(QRadioButton, optLandscape);
    CONTROL(QDoubleSpinBox, txtLeft);
    CONTROL(QDoubleSpinBox, txtRight);
    CONTROL(QDoubleSpinBox, txtTop);
    CONTROL(QDoubleSpinBox, txtBottom);
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdCancel);

private:
    void ListPapers(const QPageSize& current);
    void PrepareMargins(const QMarginsF& margins);
    /// Leaves the text at least a third of the paper in either direction.
    void LimitMargins();

    QPageSize m_current;
    QPageLayout::Unit m_unit;
};
