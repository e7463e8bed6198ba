#include "reports/reorder_filter.h"

#include "controls/hourglass.h"
#include "controls/layout.h"
#include "records/lists.h"

bool frmReorderReportFilter::ReorderFilterConfirmed = false;
int frmReorderReportFilter::ReorderFilterKind = 0;
QString frmReorderReportFilter::ReorderFilterValue;
QString frmReorderReportFilter::ReorderSortField;

namespace {
/// The statement sorts by these, whatever they are called on the screen.
constexpr const char* SortFields[] = {
    QT_TRANSLATE_NOOP("frmReorderReportFilter", "Name"), QT_TRANSLATE_NOOP("frmReorderReportFilter", "Number")};
} // namespace

frmReorderReportFilter::frmReorderReportFilter(QWidget* parent)
    : Form("frmReorderReportFilter", tr("Filtered Reorder Report"), parent)
{
    BuildLayout();
    FillLists();
    optFilter_0->setChecked(true);
    EnableChosenList();

    for (QRadioButton* option : {optFilter_0, optFilter_1, optFilter_2, optFilter_3})
        On(option, &QRadioButton::toggled, this, &frmReorderReportFilter::EnableChosenList);
    On(cmdDisplay, &QPushButton::clicked, this, &frmReorderReportFilter::Confirm);
}

void frmReorderReportFilter::BuildLayout()
{
    optFilter_0->setText(tr("No Filter"));
    optFilter_1->setText(tr("Vendor:"));
    optFilter_2->setText(tr("Item:"));
    optFilter_3->setText(tr("Item Location:"));
    cmdDisplay->setText(tr("OK"));
    cmdDisplay->setDefault(true);
    cmdCancel->setText(tr("&Close"));
    SetCancelButton(cmdCancel);

    auto* choices = new QGridLayout;
    choices->setColumnStretch(1, 1);
    choices->addWidget(optFilter_0, 0, 0);
    int line = 1;
    for (const Filter& filter : Filters()) {
        filter.list->setAccessibleName(filter.option->text().remove(u':'));
        filter.list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        filter.list->setMinimumContentsLength(30);
        choices->addWidget(filter.option, line, 0);
        choices->addWidget(filter.list, line++, 1);
    }
    setLayout(column({
        instructions(tr("Instructions - select how you would like the Reorder Report filtered and then click OK to "
                        "display.")),
        choices,
        fields({{tr("Sort by:"), cboSort}}),
        stretch(),
        row({stretch(), cmdDisplay, cmdCancel}),
    }));
}

std::array<frmReorderReportFilter::Filter, 3> frmReorderReportFilter::Filters() const
{
    return {Filter{optFilter_1, cboVendor}, {optFilter_2, cboItem}, {optFilter_3, cboItemLocation}};
}

void frmReorderReportFilter::FillLists()
{
    const Hourglass hourglass(tr("Reading the items..."));
    FillCombo(cboVendor, Sql("SELECT id, businessname FROM [Vendor] WHERE id<>1 ORDER BY businessname"));
    FillCombo(cboItem, Sql("SELECT id, name FROM [Item] ORDER BY name"));
    FillCombo(cboItemLocation, Sql("SELECT id, name FROM [Location] WHERE id<>1 ORDER BY name"));
    for (const Filter& filter : Filters()) {
        filter.option->setEnabled(filter.list->ListCount() > 0);
        if (filter.list->ListCount() > 0)
            filter.list->SetListIndex(0);
    }
    for (const char* field : SortFields)
        cboSort->AddItem(tr(field), 0);
    cboSort->SetListIndex(0);
}

void frmReorderReportFilter::EnableChosenList()
{
    for (const Filter& filter : Filters())
        filter.list->setEnabled(filter.option->isChecked());
}

void frmReorderReportFilter::Confirm()
{
    ReorderFilterConfirmed = true;
    ReorderFilterKind = 0;
    ReorderFilterValue = QStringLiteral("-1");
    int kind = 0;
    for (const Filter& filter : Filters()) {
        ++kind;
        if (!filter.option->isChecked())
            continue;
        ReorderFilterValue = QString::number(filter.list->SelectedData());
        ReorderFilterKind = kind;
    }
    ReorderSortField = QLatin1String(SortFields[cboSort->ListIndex()]);
    accept();
}
