#include "controls/scan_watch.h"

#include "base/guard.h"
#include "base/retail_code.h"
#include "base/settings_store.h"
#include "controls/form.h"
#include "controls/held_keys.h"
#include "controls/scan_sound.h"
#include "controls/status_line.h"
#include "controls/typed_text.h"

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <climits>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int UsualGap = 35;
constexpr qsizetype ShortestScan = 6;
constexpr const char* KeepsCodesOut = "keepsCodesOut";
constexpr const char* ScansClose = "scansClose";

int ScanGap()
{
    bool isNumber = false;
    const int gap = GetConfig(QStringLiteral("Scan Gap"), QString()).toInt(&isNumber);
    return isNumber ? gap : UsualGap;
}

bool IsCharacter(const QKeyEvent* key)
{
    return !key->text().isEmpty() && key->text().front().isPrint() && !key->isAutoRepeat()
        && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool IsEnter(const QKeyEvent* key)
{
    return (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && !(key->modifiers() & ~Qt::KeypadModifier);
}

/// A scanner presses Shift for a capital letter.
bool IsShift(const QKeyEvent* key)
{
    return key->key() == Qt::Key_Shift || key->key() == Qt::Key_CapsLock;
}

void ClosePopups()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        if (!popup->close())
            return;
}

bool IsBelow(const QWidget* widget, const QWidget* ancestor)
{
    while (widget && widget != ancestor)
        widget = widget->parentWidget();
    return widget;
}

/// Sees each key before any control does. What a text box takes in is remembered, so that it can be taken back; all
/// other controls get a key only when it is certain that it belongs to no scan, one gap later, since what they do with
/// it cannot be taken back.
class ScanWatch : public QObject {
    Q_DECLARE_TR_FUNCTIONS(ScanWatch)
public:
    ScanWatch()
        : QObject(qApp)
    {
        m_gapEnd.setSingleShot(true);
        QObject::connect(&m_gapEnd, &QTimer::timeout, this, [this] { GapEnded(); });
        qApp->installEventFilter(this);
        // A key that is held down is no burst.
        LetHeldKeysActOnce();
    }

    void Add(const ScanTaker& taker)
    {
        m_gap = ScanGap();
        std::erase_if(m_takers, [](const Taker& known) { return !known.screen; });
        m_takers.push_back({taker.screen, taker});
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return m_gap > 0 && watched->isWindowType() && event != m_replayed
                && IsTaken(static_cast<QWindow*>(watched), static_cast<QKeyEvent*>(event));
        case QEvent::ShortcutOverride:
            return m_gap > 0 && IsEndOfAScan(static_cast<QKeyEvent*>(event));
        case QEvent::MouseButtonPress:
            if (watched->isWindowType() && !m_isOnItsWay)
                EndBurst();
            return false;
        default:
            return false;
        }
    }

private:
    struct Taker {
        QPointer<QWidget> screen;
        ScanTaker calls;
    };
    struct HeldKey {
        QPointer<QWindow> window;
        std::unique_ptr<QKeyEvent> event;
    };

    // Keys.

    bool IsTaken(QWindow* window, const QKeyEvent* key)
    {
        if (m_isOnItsWay || (key->type() == QEvent::KeyRelease && !m_held.empty())) {
            Hold(window, key);
            return true;
        }
        return key->type() == QEvent::KeyPress && IsPressTaken(window, key);
    }

    QWidget* WorkedWith() const
    {
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        // It takes a moment until the window below a dialog that has closed is active.
        QWidget* active = QApplication::activeWindow();
        return active ? active : m_arrivedIn.data();
    }

    /// What takes the keys.
    QWidget* Target() const
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        QWidget* focus = QApplication::focusWidget();
        const QWidget* window = WorkedWith();
        return focus || !window ? focus : window->focusWidget();
    }

    /// Two keys at a scanner's speed are a scanner's; a busy computer may hold up some of those behind them.
    ulong LongestGap() const
    {
        constexpr int Hitch = 5;
        const bool isForgiven = m_code.size() >= 2 && m_hitches <= m_code.size() / 8;
        return ulong(m_gap) * (isForgiven ? Hitch : 1);
    }

    bool GoesOn(const QKeyEvent* key) const
    {
        return !m_code.isEmpty() && key->timestamp() >= m_last && key->timestamp() - m_last <= LongestGap();
    }

    /// A list that has dropped down takes Enter before it is pressed, when shortcuts are looked for.
    bool IsEndOfAScan(QKeyEvent* key) const
    {
        const bool isEnd =
            QApplication::activePopupWidget() && GoesOn(key) && IsEnter(key) && m_code.size() >= ShortestScan;
        if (isEnd)
            key->accept();
        return isEnd;
    }

    bool IsPressTaken(QWindow* window, const QKeyEvent* key)
    {
        // The time is that of the key itself: keys that had to wait for the program are as fast as they were pressed.
        if (!GoesOn(key))
            EndBurst();
        else if (key->timestamp() - m_last > ulong(m_gap))
            ++m_hitches;
        m_last = key->timestamp();
        if (IsShift(key))
            return false;
        if (IsCharacter(key))
            return IsCharacterTaken(window, key);
        if (IsEnter(key)) {
            if (QMessageBox* box = BoxInFront())
                return IsEnterTaken(*box, key);
            if (m_code.size() >= ShortestScan)
                return IsScanTaken();
        }
        EndBurst();
        return false;
    }

    bool IsCharacterTaken(QWindow* window, const QKeyEvent* key)
    {
        m_code += key->text();
        QWidget* target = Target();
        if (!m_held.empty() || HasToWait(target)) {
            Hold(window, key);
            m_isCertain = false;
            m_gapEnd.start(int(LongestGap()));
            return true;
        }
        if (TextBefore::IsTextBox(target) && (m_before.empty() || m_before.back().Box() != target))
            m_before.emplace_back(target);
        return false;
    }

    bool HasToWait(const QWidget* target) const { return BoxInFront() || !TextBefore::IsTextBox(target); }

    void Hold(QWindow* window, const QKeyEvent* key)
    {
        m_held.push_back({window, std::unique_ptr<QKeyEvent>(key->clone())});
    }

    void GapEnded()
    {
        // The next key may have come while the program was busy.
        if (!std::exchange(m_isCertain, true))
            m_gapEnd.start(0);
        else
            LetHeldGo();
    }

    void EndBurst()
    {
        LetHeldGo();
        Forget();
    }

    /// The keys that wait get to where they were bound for, but not to a message box: one at a time is what people
    /// press.
    void LetHeldGo()
    {
        m_gapEnd.stop();
        if (QMessageBox* box = BoxInFront(); box && m_code.size() > 1 && !m_held.empty())
            return Refuse(*box);
        for (std::deque<HeldKey> held = std::exchange(m_held, {}); !held.empty(); held.pop_front())
            Send(held.front());
    }

    void Send(const HeldKey& held)
    {
        const QScopedValueRollback<const QEvent*> replaying(m_replayed, held.event.get());
        // Not by sendEvent, which would no longer count it as pressed by the user.
        if (held.window)
            qApp->notify(held.window, held.event.get());
    }

    void Forget()
    {
        m_gapEnd.stop();
        m_code.clear();
        m_hitches = 0;
        m_before.clear();
    }

    void TakeBack()
    {
        m_held.clear();
        for (const TextBefore& before : m_before)
            before.TakeBack();
        Forget();
        ClosePopups();
    }

    // Scans.

    bool IsScanTaken()
    {
        const QString code = m_code;
        const Taker* taker = TakerNow();
        QWidget* target = Target();
        if (!taker)
            return IsStrayTaken(target, code);
        const bool isKnown = target != taker->calls.box && IsKnown(*taker, code);
        const bool isTyped =
            TextBefore::IsTextBox(target) && !(target->property(KeepsCodesOut).toBool() && IsRetailCode(code));
        if (target == taker->calls.box || (!isKnown && (isTyped || !taker->calls.tellUnknown))) {
            EndBurst();
            return false;
        }
        TakeBack();
        if (isKnown)
            SendOn(*taker, code);
        else
            Guarded(std::function(taker->calls.tellUnknown));
        return true;
    }

    /// No screen that takes scans is worked with. What a text box holds can be seen and mended, and so it stays; but in
    /// a form Enter would save it, and in a list it would open the current row. What else types as fast, such as a text
    /// expander, is told by having no digit, and in a text box by having no check digit.
    bool IsStrayTaken(const QWidget* target, const QString& code)
    {
        const bool isInForm = QApplication::activeModalWidget();
        const bool isInBox = TextBefore::IsTextBox(target);
        const bool isCode =
            isInBox ? IsRetailCode(code) : std::any_of(code.begin(), code.end(), [](QChar c) { return c.isDigit(); });
        if (!isCode || (isInBox && !isInForm)) {
            EndBurst();
            return false;
        }
        if (isInBox)
            EndBurst();
        else
            TakeBack();
        PlayScanSound(ScanSound::NotFound);
        ShowStatus(isInBox ? tr("The code was typed. Press Enter to go on.")
                : isInForm ? tr("Close this form first, then scan again.")
                           : tr("Open an invoice first, then scan again."));
        return true;
    }

    static bool IsKnown(const Taker& taker, const QString& code)
    {
        bool isKnown = false;
        Guarded([&] { isKnown = taker.calls.isKnown(code); });
        return isKnown;
    }

    // Message boxes. What is at stake is more than a scan: nobody presses Enter that fast behind another key, so that
    // even the end of a scan that came haltingly answers nothing.

    QMessageBox* BoxInFront() const { return qobject_cast<QMessageBox*>(WorkedWith()); }

    bool IsEnterTaken(QMessageBox& box, const QKeyEvent* key)
    {
        constexpr ulong Late = 300;
        const QString code = m_code;
        if (code.isEmpty())
            return m_refused > 0 && key->timestamp() - m_refused <= Late;
        const Taker* taker = box.property(ScansClose).toBool() ? TakerNow() : nullptr;
        if (taker) {
            TakeBack();
            SendOn(*taker, code);
        } else {
            Refuse(box);
        }
        return true;
    }

    void Refuse(const QMessageBox& box)
    {
        TakeBack();
        m_refused = m_last;
        PlayScanSound(ScanSound::NotFound);
        ShowStatus(box.standardButtons() & QMessageBox::No ? tr("Answer the question first, then scan again.")
                                                           : tr("Close the message first, then scan again."));
    }

    /// The screen that takes scans and that the user works with, be it behind dialogs of its own and message boxes.
    const Taker* TakerNow() const
    {
        const QWidget* window = WorkedWith();
        while (qobject_cast<const QMessageBox*>(window))
            window = window->parentWidget() ? window->parentWidget()->window() : m_arrivedIn.data();
        for (const Taker& taker : m_takers)
            if (window && taker.screen && taker.screen->isVisible()
                && (taker.screen->window() == window || IsBelow(window, taker.screen)))
                return &taker;
        return nullptr;
    }

    // On the way to the bar code box. Keys that come meanwhile wait, so that none of the next scan goes astray.

    void SendOn(const Taker& taker, const QString& code)
    {
        m_isOnItsWay = true;
        m_closedIn = INT_MAX;
        GoOn(taker, code);
    }

    void GoOn(const Taker& taker, const QString& code)
    {
        QWidget* modal = QApplication::activeModalWidget();
        auto* form = dynamic_cast<Form*>(modal);
        const bool isClosable =
            modal && (modal->property(ScansClose).toBool() || (form && IsBelow(form, taker.screen)));
        if (!taker.screen || !taker.screen->isVisible())
            return Arrived(taker);
        const bool isThere = !modal || modal == taker.screen->window();
        if (!isThere && !isClosable)
            return Arrived(taker);
        // What opened a dialog that was just closed has to come to its end first. A click may have opened another
        // since.
        const bool isNew = !isThere && modal != m_below;
        if (isNew || QThread::currentThread()->loopLevel() < m_closedIn) {
            if (isThere) {
                Arrived(taker);
                return Take(taker.calls, code);
            }
            if (form && !IsKnown(taker, code)) {
                Arrived(taker);
                return Guarded(taker.calls.tellUnknown);
            }
            m_closedIn = QThread::currentThread()->loopLevel();
            if (form)
                form->Cancel();
            else
                static_cast<QMessageBox*>(modal)->accept();
            if (modal->isVisible())
                return Arrived(taker);
            m_below = QApplication::activeModalWidget();
        }
        QTimer::singleShot(0, this, [this, taker, code] { GoOn(taker, code); });
    }

    void Arrived(const Taker& taker)
    {
        m_arrivedIn = taker.screen ? taker.screen->window() : nullptr;
        for (HeldKey& held : m_held)
            held.window = m_arrivedIn ? m_arrivedIn->windowHandle() : nullptr;
        if (m_held.empty())
            m_isOnItsWay = false;
        else
            QTimer::singleShot(0, this, [this] { LetGoOn(); });
    }

    /// The keys that waited are typed now.
    void LetGoOn()
    {
        m_isOnItsWay = false;
        for (std::deque<HeldKey> held = std::exchange(m_held, {}); !held.empty(); held.pop_front())
            if (!held.front().window || !IsTaken(held.front().window, held.front().event.get()))
                Send(held.front());
    }

    static void Take(const ScanTaker& taker, const QString& code)
    {
        if (taker.prepare)
            Guarded([&] { taker.prepare(code); });
        taker.box->FocusAll();
        taker.box->insert(code);
        if (taker.lookUp)
            taker.lookUp->click();
        else
            taker.box->selectAll();
    }

    int m_gap = UsualGap;
    std::vector<Taker> m_takers;

    QString m_code; ///< the burst so far
    int m_hitches = 0; ///< gaps in it that were too long
    ulong m_last = 0; ///< when its last key was pressed
    ulong m_refused = 0; ///< when the last key was pressed that a message box did not take
    std::vector<TextBefore> m_before;
    std::deque<HeldKey> m_held;
    const QEvent* m_replayed = nullptr;
    QTimer m_gapEnd;
    bool m_isCertain = false;

    bool m_isOnItsWay = false;
    QPointer<QWidget> m_arrivedIn;
    QPointer<QWidget> m_below; ///< the dialog under the one that was closed
    int m_closedIn = INT_MAX; ///< the level of the event loop that closes
};

ScanWatch& Watch()
{
    static QPointer<ScanWatch> watch;
    if (!watch)
        watch = new ScanWatch;
    return *watch;
}

} // namespace

void TakeScans(const ScanTaker& taker)
{
    Watch().Add(taker);
}

void KeepCodesOut(std::initializer_list<QLineEdit*> boxes)
{
    for (QLineEdit* box : boxes)
        box->setProperty(KeepsCodesOut, true);
}

void LetScansClose(QMessageBox* box)
{
    box->setProperty(ScansClose, true);
}
