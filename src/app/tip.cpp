#include "app/tip.h"

#include "app/image_lists.h"
#include "app/tips.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/settings_store.h"
#include "controls/layout.h"

namespace {

constexpr QSize BulbSize(48, 48);
constexpr QSize TipTextSize(380, 130);

const QString& ShowTipsKey()
{
    static const QString key = QStringLiteral("Show Tips at Startup");
    return key;
}

const QString& CurrentTipKey()
{
    static const QString key = QStringLiteral("Current Tip");
    return key;
}

} // namespace

bool frmTip::ShowAtStartup()
{
    return CLng(GetOption(ShowTipsKey(), QStringLiteral("1"))) != 0;
}

frmTip::frmTip(QWidget* parent)
    : Form("frmTip", tr("Tip of the Day"), parent)
{
    auto* bulb = new QLabel;
    bulb->setPixmap(ProgramPicture(QStringLiteral("tip"), BulbSize, devicePixelRatio()));
    bulb->setAlignment(Qt::AlignTop);
    lblTipText->setTextFormat(Qt::PlainText);
    lblTipText->setWordWrap(true);
    lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblTipText->setMinimumSize(TipTextSize);
    chkLoadTipsAtStartup->setText(tr("&Show Tips at Startup"));
    cmdNextTip->setText(tr("&Next Tip"));
    cmdOK->setText(tr("OK"));

    setLayout(column({
        row({bulb, gap(8), column({heading(tr("Did you know...")), gap(4), lblTipText}), stretch()}),
        row({chkLoadTipsAtStartup, stretch(), cmdNextTip, cmdOK}),
    }));
    SetDefaultButton(cmdOK, true);
    SetCancelButton(cmdOK);
    cmdOK->setFocus();

    chkLoadTipsAtStartup->setChecked(ShowAtStartup());
    m_currentTip = CLng(GetOption(CurrentTipKey(), QStringLiteral("1")));
    if (!LoadTips())
        lblTipText->setText(TipFileMissingText());

    On(chkLoadTipsAtStartup, &QCheckBox::toggled, chkLoadTipsAtStartup,
        [](bool on) { SaveOption(ShowTipsKey(), on ? QStringLiteral("1") : QStringLiteral("0")); });
    On(cmdNextTip, &QPushButton::clicked, this, &frmTip::DoNextTip);
}

bool frmTip::LoadTips()
{
    const std::optional<QStringList> tips = ReadTips(NativePath(ProgramFolder(), QLatin1String(TipFileName)));
    if (!tips)
        return false;
    m_tips = *tips;
    DoNextTip();
    return true;
}

void frmTip::DoNextTip()
{
    m_currentTip = NextTip(m_currentTip, int(m_tips.size()));
    SaveOption(CurrentTipKey(), QString::number(m_currentTip));
    ShowTip();
}

void frmTip::ShowTip()
{
    if (!m_tips.isEmpty())
        lblTipText->setText(m_tips.at(m_currentTip - 1));
}
