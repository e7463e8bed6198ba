#include "controls/hourglass.h"

#include "base/sign_of_life.h"

#include <QApplication>
#include <QBackingStore>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QWindow>

namespace {

constexpr qint64 UntilTold = 1000;
constexpr qint64 BetweenPaintings = 250;
constexpr int NoteMargin = 7;

struct Wait {
    int hourglasses = 0;
    QString doing;
    QElapsedTimer clock;
    qint64 nextPainting = UntilTold;
    QPointer<QLabel> note;
};
Wait gWait;

QWidget* WindowInFront()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            return window;
    return nullptr;
}

/// Lies over the lower left corner of the window, so that nothing in it moves and what stood there is there again
/// afterwards.
void ShowNote()
{
    QWidget* window = WindowInFront();
    if (!window || !window->isVisible())
        return;
    gWait.note = new QLabel(gWait.doing, window);
    gWait.note->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    gWait.note->setAutoFillBackground(true);
    gWait.note->setMargin(NoteMargin);
    gWait.note->adjustSize();
    gWait.note->move(0, window->height() - gWait.note->height());
    gWait.note->show();
    gWait.note->repaint();
}

/// Shows once more what was painted last: another window may have wiped it away. Nothing is laid out or painted anew,
/// and a list that is being filled is not asked for its rows.
void ShowWindowsAgain()
{
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->windowHandle() && window->windowHandle()->isExposed() && window->backingStore())
            window->backingStore()->flush(window->rect());
}

void ShowWait()
{
    if (gWait.clock.elapsed() < gWait.nextPainting)
        return;
    if (!gWait.note && !gWait.doing.isEmpty())
        ShowNote();
    ShowWindowsAgain();
    gWait.nextPainting = gWait.clock.elapsed() + BetweenPaintings;
}

void StartClock()
{
    gWait.clock.start();
    gWait.nextPainting = UntilTold;
    SetSignOfLife(ShowWait);
}

void StopClock()
{
    SetSignOfLife(nullptr);
    delete gWait.note;
}

/// Lives until the events are handled again, for nothing tells when the file is free.
struct FileWait {
    Q_DECLARE_TR_FUNCTIONS(FileWait)
public:
    Hourglass hourglass{tr("Waiting for another program that has the database open...")};
};
FileWait* gFileWait = nullptr;

void ShowFileWait()
{
    if (gFileWait)
        return;
    gFileWait = new FileWait;
    const auto end = [] {
        delete gFileWait;
        gFileWait = nullptr;
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), end, Qt::QueuedConnection);
}

} // namespace

void TellWaitsForTheFile()
{
    SetSignOfFileWait(ShowFileWait);
}

Hourglass::Hourglass(const QString& doing)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (gWait.hourglasses++ > 0)
        return;
    gWait.doing = doing;
    StartClock();
}

Hourglass::~Hourglass()
{
    QApplication::restoreOverrideCursor();
    if (--gWait.hourglasses == 0)
        StopClock();
}

ArrowOverHourglass::ArrowOverHourglass()
    : m_waiting(QApplication::overrideCursor() != nullptr)
{
    if (!m_waiting)
        return;
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    StopClock();
}

ArrowOverHourglass::~ArrowOverHourglass()
{
    if (!m_waiting)
        return;
    QApplication::restoreOverrideCursor();
    StartClock();
}
