#include "monkey.h"

#include "front.h"
#include "hands.h"
#include "virtual_time.h"
#include "words.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFileDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>

namespace {

constexpr int ThinkMs[] = {5, 20, 60, 60, 150, 150, 400, 1500};
constexpr int HandMs = 90;

constexpr Qt::Key Keys[] = {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Return,
    Qt::Key_Escape, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,
    Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_Menu,
    Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5, Qt::Key_F10, Qt::Key_A, Qt::Key_5, Qt::Key_Plus,
    Qt::Key_Minus};
constexpr Qt::Key ControlKeys[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y,
    Qt::Key_N, Qt::Key_F, Qt::Key_P, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Plus,
    Qt::Key_Minus, Qt::Key_0};

/// Nobody closes the program every minute.
constexpr int ExitChance = 3;
constexpr auto ExitEntry = "mnuFileExit";

/// What Esc does not close. It stands last in a question, and takes back where it can.
QAbstractButton* LastButton(const QMessageBox& box)
{
    return box.escapeButton() ? box.escapeButton() : box.buttons().constLast();
}

Spot MiddleOf(QWidget* widget)
{
    return {widget, widget->rect().center()};
}

} // namespace

const Monkey::Deed Monkey::Deeds[] = {
    {30, &Monkey::ClickSomewhere},
    {5, &Monkey::ClickTwice},
    {3, &Monkey::ClickRight},
    {3, &Monkey::StartDrag},
    {3, &Monkey::TurnWheel},
    {8, &Monkey::TypeSomething},
    {12, &Monkey::FillBox},
    {14, &Monkey::StrikeKey},
    {3, &Monkey::StrikeAccessKey},
    {4, &Monkey::PressEnter},
    {5, &Monkey::ScanCode},
    {5, &Monkey::OpenMenu},
    {2, &Monkey::Resize},
    {1, &Monkey::ChangeState},
    {2, &Monkey::CloseWindow},
    {2, &Monkey::Wait},
    {1, &Monkey::FillClipboard},
};

Monkey::Monkey(quint64 seed, int first, int count, const Diary& diary, Watch& watch)
    : m_dice(seed)
    , m_event(first)
    , m_end(first + count)
    , m_diary(diary)
    , m_watch(watch)
{
    // A loop of events that blocks has nothing left to do: the program waits for its user.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (!std::exchange(m_isPosted, true))
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    });
}

bool Monkey::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    m_isPosted = false;
    Act();
    return true;
}

void Monkey::Act()
{
    m_watch.Look();
    PassTime(m_dice.Pick(ThinkMs));
    constexpr int Patience = 3;
    if (FocusAWindow() && ++m_triesToFocus < Patience)
        return;
    m_triesToFocus = 0;
    if (m_event < m_end)
        Play();
    else
        GoHome();
}

void Monkey::Note(const QString& what)
{
    m_diary.Write(Line::Event, QStringLiteral("%1 %2").arg(m_event).arg(what));
}

void Monkey::Play()
{
    const QList<QWidget*> windows = OpenWindows();
    if (windows.isEmpty())
        return;
    ++m_event;
    QWidget* active = QApplication::activeWindow();
    const bool stays = windows.contains(active) && m_dice.Chance(90);
    QWidget* window = stays ? active : m_dice.Pick(windows);
    if (HeldButton() != Qt::NoButton)
        return MoveHeldMouse(window);
    if (qobject_cast<QFileDialog*>(window))
        return PickFile(window);
    if (qobject_cast<QMenu*>(window) && m_dice.Chance(60))
        return ChooseEntry(window);
    int weights = 0;
    for (const Deed& deed : Deeds)
        weights += deed.weight;
    int drawn = m_dice.Between(1, weights);
    for (const Deed& deed : Deeds)
        if ((drawn -= deed.weight) <= 0)
            return (this->*deed.act)(window);
}

void Monkey::GoHome()
{
    constexpr int Patience = 300;
    const QList<QWidget*> windows = OpenWindows();
    if (windows.isEmpty())
        return;
    if (++m_triesToClose > Patience)
        m_watch.Found(
            QStringLiteral("the program cannot be left: %1 does not close").arg(Described(windows.constLast())));
    CloseFront(windows.constLast());
}

void Monkey::CloseFront(QWidget* window)
{
    Note(QStringLiteral("leave %1").arg(Described(window)));
    // A page of a wizard opens again when its window is closed: Esc leaves it.
    const bool asksFirst = m_triesToClose % 2 == 1;
    if (HeldButton() != Qt::NoButton)
        MouseRelease(MiddleOf(window));
    else if (const auto* box = qobject_cast<QMessageBox*>(window))
        Click(MiddleOf(LastButton(*box)), Qt::LeftButton);
    else if (asksFirst || QApplication::activePopupWidget())
        PressKey(Qt::Key_Escape, Qt::NoModifier);
    else
        window->close();
}

// A picker shows the whole disk: nothing but a name is given to it, and it starts in the monkey's own folder.
void Monkey::PickFile(QWidget* dialog)
{
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!name || m_dice.Chance(20)) {
        Note(QStringLiteral("cancel the picker"));
        return static_cast<QFileDialog*>(dialog)->reject();
    }
    const QString file = PickFileName(m_dice);
    Note(QStringLiteral("pick the file %1").arg(file));
    name->setFocus();
    name->setText(m_watch.Folder() + QLatin1Char('/') + file);
    // Its Enter would go to the list of names that complete what is typed.
    QMetaObject::invokeMethod(dialog, "accept");
}

void Monkey::ChooseEntry(QWidget* menu)
{
    QList<QAction*> entries;
    for (QAction* entry : menu->actions())
        if (entry->isEnabled() && entry->isVisible() && !entry->isSeparator()
            && (entry->objectName() != QLatin1String(ExitEntry) || m_dice.Chance(ExitChance)))
            entries.append(entry);
    if (entries.isEmpty())
        return PressKey(Qt::Key_Escape, Qt::NoModifier);
    QAction* entry = m_dice.Pick(entries);
    Note(QStringLiteral("choose %1 (%2)").arg(entry->objectName(), entry->text()));
    Click({menu, static_cast<QMenu*>(menu)->actionGeometry(entry).center()}, Qt::LeftButton);
}

Spot Monkey::PickSpot(QWidget* window)
{
    QWidget* control = PickControl(window, m_dice);
    if (!control)
        control = window;
    return {control,
        QPoint(m_dice.Between(0, qMax(0, control->width() - 1)), m_dice.Between(0, qMax(0, control->height() - 1)))};
}

void Monkey::MoveHeldMouse(QWidget* window)
{
    const Spot spot = PickSpot(window);
    const bool lets = m_dice.Chance(60);
    Note((lets ? QStringLiteral("let go at %1") : QStringLiteral("drag to %1")).arg(Described(spot.widget)));
    MouseMove(spot);
    if (lets && HeldButton() != Qt::NoButton)
        MouseRelease(spot);
}

void Monkey::ClickSomewhere(QWidget* window)
{
    const Spot spot = PickSpot(window);
    Note(QStringLiteral("click %1 at %2, %3").arg(Described(spot.widget)).arg(spot.at.x()).arg(spot.at.y()));
    Click(spot, m_dice.Chance(2) ? Qt::MiddleButton : Qt::LeftButton);
}

void Monkey::ClickTwice(QWidget* window)
{
    const Spot spot = PickSpot(window);
    Note(QStringLiteral("click twice %1 at %2, %3").arg(Described(spot.widget)).arg(spot.at.x()).arg(spot.at.y()));
    DoubleClick(spot);
}

void Monkey::ClickRight(QWidget* window)
{
    const Spot spot = PickSpot(window);
    Note(QStringLiteral("click right %1 at %2, %3").arg(Described(spot.widget)).arg(spot.at.x()).arg(spot.at.y()));
    Click(spot, Qt::RightButton);
}

void Monkey::StartDrag(QWidget* window)
{
    const Spot spot = PickSpot(window);
    Note(QStringLiteral("hold %1 at %2, %3").arg(Described(spot.widget)).arg(spot.at.x()).arg(spot.at.y()));
    MouseMove(spot);
    MousePress(spot, Qt::LeftButton);
}

void Monkey::TurnWheel(QWidget* window)
{
    const Spot spot = PickSpot(window);
    const int steps = m_dice.Pick(QList<int>{-10, -3, -1, 1, 3, 10});
    const bool sideways = m_dice.Chance(10);
    Note(QStringLiteral("wheel %1 over %2").arg(steps).arg(Described(spot.widget)));
    Wheel(spot, sideways ? QPoint(steps * 120, 0) : QPoint(0, steps * 120),
        m_dice.Chance(10) ? Qt::ControlModifier : Qt::NoModifier);
}

void Monkey::TypeSomething(QWidget*)
{
    const QString text = PickText(m_dice);
    Note(QStringLiteral("type \"%1\" into %2").arg(text, Described(QApplication::focusWidget())));
    TypeText(text, HandMs);
}

void Monkey::FillBox(QWidget* window)
{
    QWidget* box = PickTextBox(window, m_dice);
    if (!box)
        return ClickSomewhere(window);
    const QString text = PickText(m_dice);
    Note(QStringLiteral("fill %1 with \"%2\"").arg(Described(box), text));
    Click(MiddleOf(box), Qt::LeftButton);
    PressKey(Qt::Key_A, Qt::ControlModifier);
    TypeText(text, HandMs);
    if (m_dice.Chance(50))
        PressKey(Qt::Key_Tab, Qt::NoModifier);
}

void Monkey::StrikeKey(QWidget*)
{
    const int drawn = m_dice.Between(1, 100);
    const Qt::KeyboardModifiers modifiers = drawn <= 70 ? Qt::NoModifier
        : drawn <= 80                                   ? Qt::KeyboardModifiers(Qt::ShiftModifier)
                                                        : Qt::KeyboardModifiers(Qt::ControlModifier);
    const Qt::Key key = drawn > 85 ? m_dice.Pick(ControlKeys) : m_dice.Pick(Keys);
    const int times = m_dice.Chance(10) ? m_dice.Between(2, 30) : 1;
    Note(QStringLiteral("press %1 x %2 in %3")
             .arg(QKeySequence(int(modifiers) | key).toString())
             .arg(times)
             .arg(Described(QApplication::focusWidget())));
    for (int i = 0; i < times; ++i) {
        PassTime(HandMs);
        PressKey(key, modifiers);
    }
}

void Monkey::StrikeAccessKey(QWidget*)
{
    const auto key = Qt::Key(Qt::Key_A + m_dice.Between(0, 25));
    Note(QStringLiteral("press Alt+%1 in %2").arg(QChar(key)).arg(Described(QApplication::focusWidget())));
    PressKey(key, Qt::AltModifier);
}

void Monkey::PressEnter(QWidget*)
{
    Note(QStringLiteral("press Enter in %1").arg(Described(QApplication::focusWidget())));
    PressKey(Qt::Key_Return, Qt::NoModifier);
}

void Monkey::ScanCode(QWidget*)
{
    const QString code = PickCode(m_watch.BarCodes(), m_dice);
    const int times = m_dice.Chance(20) ? 3 : 1;
    Note(QStringLiteral("scan %1 x %2 over %3").arg(code).arg(times).arg(Described(QApplication::focusWidget())));
    for (int i = 0; i < times; ++i) {
        PassTime(m_dice.Between(5, 200));
        Scan(code, m_dice.Between(5, 30));
    }
}

void Monkey::OpenMenu(QWidget* window)
{
    auto* main = qobject_cast<QMainWindow*>(window);
    if (!main || !main->menuBar()->isVisible() || main->menuBar()->actions().isEmpty())
        return PressEnter(window);
    QAction* menu = m_dice.Pick(main->menuBar()->actions());
    Note(QStringLiteral("open the menu %1").arg(menu->text()));
    Click({main->menuBar(), main->menuBar()->actionGeometry(menu).center()}, Qt::LeftButton);
}

void Monkey::Resize(QWidget* window)
{
    const QSize size(m_dice.Between(200, 1700), m_dice.Between(150, 1200));
    Note(QStringLiteral("resize %1 to %2 x %3").arg(Described(window)).arg(size.width()).arg(size.height()));
    if (!QApplication::activePopupWidget())
        window->resize(size);
}

void Monkey::ChangeState(QWidget* window)
{
    const auto state =
        m_dice.Pick(QList<Qt::WindowStates>{Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen});
    Note(QStringLiteral("state %1 of %2").arg(int(state)).arg(Described(window)));
    if (!QApplication::activePopupWidget())
        window->setWindowState(state);
}

void Monkey::CloseWindow(QWidget* window)
{
    Note(QStringLiteral("close %1").arg(Described(window)));
    const bool isMain = window->objectName() == QLatin1String("frmMain");
    if (!isMain || m_dice.Chance(ExitChance))
        window->close();
}

void Monkey::Wait(QWidget*)
{
    const int time = m_dice.Between(100, 5000);
    Note(QStringLiteral("wait %1 ms").arg(time));
    PassTime(time);
}

void Monkey::FillClipboard(QWidget*)
{
    const QString text = m_dice.Chance(20) ? QStringLiteral("one\ttwo\r\nthree\n\nfour") : PickText(m_dice);
    Note(QStringLiteral("put \"%1\" on the clipboard").arg(text));
    QGuiApplication::clipboard()->setText(text);
}
