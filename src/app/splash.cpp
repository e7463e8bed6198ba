#include "app/splash.h"

#include "app/image_lists.h"
#include "base/regional.h"
#include "controls/layout.h"

#include <QKeyEvent>

namespace {

constexpr QSize SplashSize(480, 280);
constexpr int CloseAfterMs = 1500;
constexpr int LoadEveryMs = 200;
constexpr auto OnPicture = "color: #ffffff; background: transparent;";

void SetUp(QLabel* label, const QString& text, double scale, QWidget* frame)
{
    label->setParent(frame);
    label->setText(text);
    label->setStyleSheet(QLatin1String(OnPicture));
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(scale > 1.5);
    label->setFont(font);
}

} // namespace

frmSplash::frmSplash(std::function<bool()> load)
    : Form("frmSplash", tr("Tavrin Inventory"), nullptr)
    , Timer1(new QTimer(this))
    , Timer2(new QTimer(this))
    , m_load(std::move(load))
{
    setWindowFlag(Qt::FramelessWindowHint);
    setFixedSize(SplashSize);

    for (const auto& [label, picture] : {std::pair(Picture1, "splash-xp"), std::pair(Picture2, "splash")}) {
        label->setParent(Frame1);
        label->setPixmap(ProgramPicture(QLatin1String(picture), SplashSize, devicePixelRatio()));
        label->setGeometry(QRect(QPoint(), SplashSize));
    }
    (IsWindowsXP() ? Picture2 : Picture1)->hide();

    SetUp(lblProductName, tr("Tavrin Inventory"), 2.4, Frame1);
    SetUp(lblDescription, tr("Stock and invoices, side by side"), 1.1, Frame1);
    SetUp(lblVersion, tr("Version %1").arg(QStringLiteral(TAVRIN_VERSION)), 0.9, Frame1);
    Frame1->setLayout(column({stretch(), lblProductName, lblDescription, gap(10), lblVersion}));
    Frame1->layout()->setContentsMargins(28, 20, 20, 20);
    setLayout(column({Frame1}));
    layout()->setContentsMargins(0, 0, 0, 0);

    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer2->setObjectName(QStringLiteral("Timer2"));
    On(Timer1, &QTimer::timeout, this, &frmSplash::Close);
    On(Timer2, &QTimer::timeout, this, &frmSplash::Load);
    Timer1->start(CloseAfterMs);
    Timer2->start(LoadEveryMs);
}

void frmSplash::Load()
{
    if (m_loading)
        return;
    m_loading = true;
    const bool canGoOn = m_load();
    m_loading = false;
    if (!canGoOn)
        Close();
}

void frmSplash::Close()
{
    // A message of the load stands above the splash: it goes when the load has ended.
    if (!m_loading)
        accept();
}

void frmSplash::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    Close();
}

void frmSplash::mousePressEvent(QMouseEvent*)
{
    Close();
}
