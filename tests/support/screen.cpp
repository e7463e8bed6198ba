#include "support/screen.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <list>

namespace {
struct Awaited {
    std::string what;
    std::function<bool(QDialog*)> matches;
    std::function<void(QDialog*)> visit;
};

std::list<Awaited> gAwaited;

/// Qt's own wait counts a form as active as soon as the window that owns it is.
bool BecomesActive(const QWidget* window)
{
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
}

void Visit(const QPointer<QDialog>& dialog, const Awaited& awaited)
{
    if (!dialog || !dialog->isVisible()) {
        ADD_FAILURE() << awaited.what << " closed before it was visited";
        return;
    }
    EXPECT_TRUE(BecomesActive(dialog)) << awaited.what << " did not become active";
    // An exception must not cross the event loop.
    try {
        awaited.visit(dialog);
    } catch (const std::exception& error) {
        ADD_FAILURE() << "in " << awaited.what << ": " << error.what();
    }
    if (dialog && dialog->isVisible()) {
        ADD_FAILURE() << awaited.what << " was left open by its visit";
        dialog->hide();
    }
}

void ModalFormShown(const QPointer<QDialog>& dialog)
{
    for (auto awaited = gAwaited.begin(); awaited != gAwaited.end(); ++awaited) {
        if (!awaited->matches(dialog))
            continue;
        const Awaited found = *awaited;
        gAwaited.erase(awaited);
        if (found.visit)
            QTimer::singleShot(0, dialog, [dialog, found] { Visit(dialog, found); });
        return;
    }
    ADD_FAILURE() << "nobody awaits the form " << qPrintable(dialog->objectName()) << " \""
                  << qPrintable(dialog->windowTitle()) << '"';
    QTimer::singleShot(0, dialog, [dialog] { dialog->hide(); });
}

class FormWatch : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool shows = event->type() == QEvent::Show;
        if ((!shows && event->type() != QEvent::Hide) || event->spontaneous())
            return false;
        auto* dialog = qobject_cast<QDialog*>(watched);
        if (!dialog || !dialog->isModal() || qobject_cast<QProgressDialog*>(dialog))
            return false;
        if (shows) {
            m_before[dialog] = QApplication::activeWindow();
            ModalFormShown(dialog);
        } else if (const QPointer<QWidget> before = m_before.take(dialog); before && before->isVisible()) {
            // A window manager does this where there is one.
            before->activateWindow();
        }
        return false;
    }

private:
    QHash<QObject*, QPointer<QWidget>> m_before;
};

/// The part of a control that takes what is typed.
QWidget* Target(QWidget* control)
{
    if (auto* date = control->findChild<QDateEdit*>())
        return date;
    return control->focusProxy() ? Target(control->focusProxy()) : control;
}

/// False, with a failure, for a control that a user could not reach now.
bool Reachable(const QWidget* control, const char* act)
{
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* window = control->window();
    const bool blocked = modal && window != modal && !modal->isAncestorOf(control) && window->windowType() != Qt::Popup
        && !modal->windowHandle()->isAncestorOf(window->windowHandle(), QWindow::IncludeTransients);
    if (control->isVisible() && control->isEnabled() && !blocked)
        return true;
    const char* const why = blocked ? "behind a modal form" : control->isVisible() ? "switched off" : "hidden";
    ADD_FAILURE() << "cannot " << act << ' ' << qPrintable(control->objectName()) << ": it is " << why;
    return false;
}

void Activate(QWidget* control)
{
    if (QApplication::activeWindow() != control->window()) {
        control->window()->activateWindow();
        EXPECT_TRUE(BecomesActive(control->window())) << "the window did not become active";
    }
}

void FocusOn(QWidget* control)
{
    Activate(control);
    if (!control->hasFocus() && !control->isAncestorOf(QApplication::focusWidget()))
        control->setFocus(Qt::TabFocusReason);
}

void SelectAll(QWidget* control)
{
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        edit->selectAll();
    else if (auto* text = qobject_cast<QPlainTextEdit*>(control))
        text->selectAll();
    else if (auto* spin = qobject_cast<QAbstractSpinBox*>(control))
        spin->selectAll();
}

// QTest's own typing takes Latin letters only.
void TypeCharacter(QWidget* control, const QString& character)
{
    const QChar first = character.front();
    const Qt::Key key = first == u'\n' ? Qt::Key_Return
        : first.unicode() < 128        ? Qt::Key(first.toUpper().unicode())
                                       : Qt::Key_unknown;
    const QString text = first == u'\n' ? QStringLiteral("\r") : character;
    QTest::sendKeyEvent(QTest::Click, control, key, text, Qt::NoModifier);
}
QStringList CellsOf(const FlexGrid* grid, int row)
{
    QStringList cells;
    for (int col = 0; col < grid->Cols(); ++col)
        cells.append(grid->TextMatrix(row, col));
    return cells;
}

} // namespace

void FailToFind(const QObject* root, const char* name)
{
    ADD_FAILURE() << "no " << name << " of that kind in " << (root ? qPrintable(root->objectName()) : "nothing");
}

void Shown(QWidget* window)
{
    window->show();
    window->activateWindow();
    EXPECT_TRUE(BecomesActive(window)) << qPrintable(window->objectName()) << " did not become active";
}

void Click(QWidget* control)
{
    if (!Reachable(control, "click"))
        return;
    Activate(control);
    const bool isBox = qobject_cast<QCheckBox*>(control) || qobject_cast<QRadioButton*>(control);
    const QPoint spot = isBox ? QPoint(qMin(8, control->width() / 2), control->height() / 2) : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, spot);
}

void Type(QWidget* control, const QString& text)
{
    if (!Reachable(control, "type into"))
        return;
    QWidget* target = Target(control);
    FocusOn(target);
    SelectAll(target);
    if (text.isEmpty())
        QTest::keyClick(target, Qt::Key_Delete);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int units = text[i].isHighSurrogate() ? 2 : 1;
        TypeCharacter(target, text.mid(i, units));
        i += units - 1;
    }
}

void Press(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (!Reachable(control, "press a key in"))
        return;
    FocusOn(control);
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : Target(control), key, modifiers);
}

void Tab(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    ASSERT_TRUE(QApplication::focusWidget()) << "nothing has the focus";
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Pick(QComboBox* combo, const QString& entry)
{
    if (!Reachable(combo, "pick in"))
        return;
    const int index = combo->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        ADD_FAILURE() << "no \"" << qPrintable(entry) << "\" in " << qPrintable(combo->objectName()) << ": "
                      << qPrintable(Entries(combo).join(QStringLiteral(" | ")));
        return;
    }
    FocusOn(combo);
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(index, combo->modelColumn()));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void ClickRow(FlexGrid* grid, int row, bool twice)
{
    if (!Reachable(grid, "click in"))
        return;
    if (row < 1 || row >= grid->Rows()) {
        ADD_FAILURE() << "no row " << row << " in " << qPrintable(grid->objectName());
        return;
    }
    Activate(grid);
    const QModelIndex cell = grid->model()->index(row - 1, qMax(0, grid->columnAt(1)));
    grid->scrollTo(cell);
    QRect area = grid->visualRect(cell) & grid->viewport()->rect();
    const QPoint spot(area.left() + qMin(5, area.width() / 2), area.center().y());
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    if (twice)
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
}

void ClickTitle(FlexGrid* grid, int col)
{
    if (!Reachable(grid, "click in"))
        return;
    Activate(grid);
    QHeaderView* header = grid->horizontalHeader();
    const QPoint spot(header->sectionViewportPosition(col) + header->sectionSize(col) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
}

QList<QStringList> GridRows(const FlexGrid* grid)
{
    QList<QStringList> rows;
    for (int row = 1; row < grid->Rows(); ++row)
        rows.append(CellsOf(grid, row));
    return rows;
}

QStringList GridTitles(const FlexGrid* grid)
{
    return CellsOf(grid, 0);
}

QStringList GridColumn(const FlexGrid* grid, int col)
{
    QStringList texts;
    for (const QStringList& row : GridRows(grid))
        texts.append(row[col]);
    return texts;
}

QStringList Entries(const QAbstractItemModel* list)
{
    QStringList entries;
    for (int i = 0; i < list->rowCount(); ++i)
        entries.append(list->index(i, 0).data().toString());
    return entries;
}

void WhenDialogShows(const char* what, std::function<bool(QDialog*)> matches, std::function<void(QDialog*)> visit)
{
    gAwaited.push_back({what, std::move(matches), std::move(visit)});
}

void StartWatchingForms()
{
    static FormWatch* watch = nullptr;
    if (!watch) {
        watch = new FormWatch(qApp);
        qApp->installEventFilter(watch);
    }
    gAwaited.clear();
}

void CheckAwaitedForms()
{
    for (const Awaited& awaited : gAwaited)
        ADD_FAILURE() << awaited.what << " never showed";
    gAwaited.clear();
}
