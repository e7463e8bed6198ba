#include "controls/paper_setup.h"

#include "base/regional.h"
#include "controls/layout.h"

namespace {
constexpr QPageSize::PageSizeId Papers[] = {QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::B5,
    QPageSize::Letter, QPageSize::Legal, QPageSize::Executive, QPageSize::Tabloid};

bool UsesInches()
{
    return Regional().measurementSystem() != QLocale::MetricSystem;
}
} // namespace

frmPaperSetup::frmPaperSetup(const QPageLayout& current, QWidget* parent)
    : Form("frmPaperSetup", tr("Page Setup"), parent)
    , m_current(current.pageSize())
    , m_unit(UsesInches() ? QPageLayout::Inch : QPageLayout::Millimeter)
{
    optPortrait->setText(tr("&Portrait"));
    optLandscape->setText(tr("&Landscape"));
    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("Cancel"));
    setLayout(column({
        fields({
            {tr("Pape&r:"), cboPaper},
            {tr("Orientation:"), row({optPortrait, optLandscape, stretch()})},
        }),
        group(tr("Margins"),
            fieldColumns({
                {{tr("L&eft:"), txtLeft}, {tr("&Top:"), txtTop}},
                {{tr("R&ight:"), txtRight}, {tr("&Bottom:"), txtBottom}},
            })),
        row({stretch(), cmdOK, cmdCancel}),
    }));
    cmdOK->setDefault(true);
    SetCancelButton(cmdCancel);

    ListPapers(m_current);
    (current.orientation() == QPageLayout::Landscape ? optLandscape : optPortrait)->setChecked(true);
    PrepareMargins(current.margins(m_unit));
    LimitMargins();

    On(cboPaper, &ComboBox::Click, this, &frmPaperSetup::LimitMargins);
    On(optPortrait, &QRadioButton::toggled, this, &frmPaperSetup::LimitMargins);
    On(cmdOK, &QPushButton::clicked, this, &frmPaperSetup::accept);
}

// A paper that is not in the list stands below it.
void frmPaperSetup::ListPapers(const QPageSize& current)
{
    for (const QPageSize::PageSizeId paper : Papers)
        cboPaper->AddItem(QPageSize::name(paper), paper);
    SelectComboByData(cboPaper, current.id());
    if (cboPaper->ListIndex() < 0) {
        cboPaper->AddItem(current.name(), current.id());
        cboPaper->SetListIndex(cboPaper->ListCount() - 1);
    }
}

void frmPaperSetup::PrepareMargins(const QMarginsF& margins)
{
    const std::pair<QDoubleSpinBox*, qreal> boxes[] = {
        {txtLeft, margins.left()}, {txtTop, margins.top()}, {txtRight, margins.right()}, {txtBottom, margins.bottom()}};
    for (const auto& [box, margin] : boxes) {
        box->setLocale(Regional());
        box->setDecimals(m_unit == QPageLayout::Inch ? 2 : 1);
        box->setSingleStep(m_unit == QPageLayout::Inch ? 0.1 : 1);
        box->setSuffix(m_unit == QPageLayout::Inch ? tr(" in") : tr(" mm"));
        box->setMaximum(1000);
        box->setValue(margin);
    }
}

void frmPaperSetup::LimitMargins()
{
    const QSizeF paper = Chosen().fullRect(m_unit).size();
    for (QDoubleSpinBox* box : {txtLeft, txtRight})
        box->setMaximum(paper.width() / 3);
    for (QDoubleSpinBox* box : {txtTop, txtBottom})
        box->setMaximum(paper.height() / 3);
}

QPageLayout frmPaperSetup::Chosen() const
{
    const auto paper = static_cast<QPageSize::PageSizeId>(cboPaper->SelectedData());
    return QPageLayout(paper == m_current.id() ? m_current : QPageSize(paper),
        optLandscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(txtLeft->value(), txtTop->value(), txtRight->value(), txtBottom->value()), m_unit);
}
