#include "app/tip.h"

#include "app/image_lists.h"
#include "app/tips.h"
#include "base/files.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/settings_store.h"
#include "base/texts.h"
#include "controls/layout.h"

namespace {

constexpr QSize BulbSize(48, 48);
constexpr QSize TipTextSize(380, 130);
/// A label takes seconds to lay out a text of megabytes.
constexpr qsizetype LongestTip = 20'000;

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

/// Both numbers are 1 at first, and again where the store, edited by hand, holds no number.
qint32 StoredNumber(const QString& key)
{
    qint32 number = 1;
    Ignoring([&] { number = CLng(GetOption(key, QStringLiteral("1"))); });
    return number;
}

} // namespace

bool frmTip::ShowAtStartup()
{
    return StoredNumber(ShowTipsKey()) != 0;
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
    chkLoadTipsAtStartup->setText(tr("&Show Tips at Startup"));
    cmdNextTip->setText(tr("&Next Tip"));
    cmdOK->setText(tr("OK"));

    // The dialog keeps its size whatever the length of a tip.
    QScrollArea* tip = scrolling(lblTipText);
    tip->setMinimumSize(TipTextSize);
    setLayout(column({
        row({bulb, gap(8), column({heading(tr("Did you know...")), gap(4), tip}), stretch()}),
        row({chkLoadTipsAtStartup, stretch(), cmdNextTip, cmdOK}),
    }));
    SetDefaultButton(cmdOK, true);
    SetCancelButton(cmdOK);
    cmdOK->setFocus();

    chkLoadTipsAtStartup->setChecked(ShowAtStartup());
    m_currentTip = StoredNumber(CurrentTipKey());
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
        lblTipText->setText(Shortened(m_tips.at(m_currentTip - 1), LongestTip).toString());
}
