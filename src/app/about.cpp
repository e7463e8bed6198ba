#include "app/about.h"

#include "app/endpoints.h"
#include "app/image_lists.h"
#include "app/system_info.h"
#include "base/regional.h"
#include "controls/dialogs.h"
#include "controls/layout.h"
#include "controls/message_box.h"

namespace {

constexpr QSize PictureSize(96, 96);
constexpr int SiteIconSize = 24;

} // namespace

frmAbout::frmAbout(QWidget* parent)
    : Form("frmAbout", tr("About"), parent)
{
    Picture1->setPixmap(ProgramPicture(QStringLiteral("tavrin-xp"), PictureSize, devicePixelRatio()));
    Picture2->setPixmap(ProgramPicture(QStringLiteral("tavrin"), PictureSize, devicePixelRatio()));
    (IsWindowsXP() ? Picture2 : Picture1)->hide();

    lblProductName->setText(tr("Tavrin Inventory"));
    lblProductName->setFont(heading(QString())->font());
    lblVersion->setText(tr("Version %1").arg(QStringLiteral(TAVRIN_VERSION)));
    lblDescription->setText(tr("The fully flexible and easy to use inventory management system."));
    lblDescription->setWordWrap(true);
    Label2->ShowLink(MakerWebSite(), MakerWebSite());
    Picture4->setIcon(ProgramIcon(QStringLiteral("web-orders")));
    Picture4->setIconSize({SiteIconSize, SiteIconSize});
    Picture4->setAutoRaise(true);
    Picture4->setFocusPolicy(Qt::TabFocus);
    Picture4->setAccessibleName(tr("Web site"));
    Picture4->setToolTip(MakerWebSite());
    cmdOK->setText(tr("OK"));
    cmdSysInfo->setText(tr("&System Info..."));

    setLayout(column({
        row({
            column({Picture1, Picture2, stretch()}),
            gap(12),
            column({lblProductName, lblVersion, gap(6), lblDescription, gap(6), row({Picture4, Label2, stretch()}),
                stretch()}),
        }),
        row({cmdSysInfo, stretch(), cmdOK}),
    }));
    SetDefaultButton(cmdOK, true);
    SetCancelButton(cmdOK);
    cmdOK->setFocus();

    On(Label2, &QLabel::linkActivated, Label2, [] { OpenLink(MakerWebSite()); });
    On(Picture4, &QToolButton::clicked, Picture4, [] { OpenLink(MakerWebSite()); });
    On(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
}

void frmAbout::StartSysInfo()
{
    try {
        frmSystemInfo(SystemInfo(), this).ShowModal();
    } catch (const RuntimeError&) {
        MsgBox(tr("System Information Is Unavailable At This Time"), Icon::None);
    }
}
