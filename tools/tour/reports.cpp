#include "reports.h"

#include "steps.h"

#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

void LookAtReports(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    ClickToolbar(window, "Reports");
    album.Take("reports");
    ReportsPanel& reports = *window.picReports;
    Pick(reports.cboGraphType, ReportsPanel::tr("Compare Item Sales!"));
    Pick(reports.cboReportSecondProduct, QStringLiteral("Black Tea Assam"));
    album.Take("item-sales-compared");
    Pick(reports.cboGraphStyle, ReportsPanel::tr("2D Line"));
    Click(reports.cmdExpand);
    album.Take("graph-expanded");
    Click(reports.cmdExpand);

    At("frmReorderReportFilter", [&album](QDialog& form) {
        album.Take("reorder-report-filter");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(
        window, "mnuReportS", "mnuReportFilterReorder", album, "filtered-reorder-report-in-the-reports-menu");

    const Qt::WindowStates states = window.windowState();
    const QSize size = window.size();
    window.showNormal();
    window.resize(900, 500);
    Pick(reports.cboGraphType, ReportsPanel::tr("Invoices per month"));
    Pick(reports.cboGraphStyle, ReportsPanel::tr("3D Area"));
    album.Take("reports-in-a-small-window");
    window.resize(size);
    window.setWindowState(states);
}
