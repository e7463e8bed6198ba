#include "app/help_desk.h"

#include "app/main_window.h"
#include "base/guard.h"
#include "controls/message_box.h"

#include <QApplication>
#include <QDir>
#include <QWindow>

HelpDesk::HelpDesk()
{
    SetHelpViewer(this);
    QCoreApplication::instance()->installEventFilter(this);
}

HelpDesk::~HelpDesk()
{
    SetHelpViewer(nullptr);
}

void HelpDesk::Open(HelpCommand command, int data)
{
    constexpr int IndexTab = -2;
    frmHelp* viewer = Front();
    if (!viewer)
        return;
    if (command == HelpCommand::Context)
        viewer->ShowPage(m_pages->PageOf(QString::number(data)));
    else
        viewer->ShowTab(data == IndexTab ? frmHelp::IndexTab : frmHelp::SearchTab);
}

void HelpDesk::OpenAt(const QStringList& names)
{
    frmHelp* viewer = Front();
    if (!viewer)
        return;
    QUrl page;
    for (auto name = names.begin(); page.isEmpty() && name != names.end(); ++name)
        page = m_pages->PageOf(*name);
    viewer->ShowPage(page);
}

frmHelp* HelpDesk::Front()
{
    if (!m_viewer) {
        auto pages = std::make_unique<HelpPages>(HelpFile());
        if (!pages->AreThere()) {
            MsgBox(tr("The help file %1 is missing or damaged.").arg(QDir::toNativeSeparators(HelpFile())),
                Icon::Information);
            return nullptr;
        }
        m_pages = std::move(pages);
        m_viewer = std::make_unique<frmHelp>(*m_pages);
    }
    // A window that belongs to the modal form is not blocked by it. It has to be so before it shows.
    const QWidget* modal = QApplication::activeModalWidget();
    m_viewer->winId();
    m_viewer->windowHandle()->setTransientParent(modal ? modal->windowHandle() : nullptr);
    m_viewer->show();
    if (m_viewer->isMinimized())
        m_viewer->showNormal();
    m_viewer->raise();
    m_viewer->activateWindow();
    return m_viewer.get();
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_viewer || (event->type() != QEvent::Show && event->type() != QEvent::Hide))
        return false;
    auto* form = qobject_cast<QWidget*>(watched);
    if (!form || !form->isWindow() || !form->isModal() || !m_viewer->windowHandle())
        return false;
    // A form tells that it shows before it blocks the other windows, and that it hides after it has freed them.
    const QWidget* modal = event->type() == QEvent::Show ? form : QApplication::activeModalWidget();
    m_viewer->windowHandle()->setTransientParent(modal ? modal->windowHandle() : nullptr);
    return false;
}

QStringList HelpNamesAt(const QWidget* focused)
{
    QStringList names;
    for (const QWidget* widget = focused; widget; widget = widget->parentWidget()) {
        if (const auto* window = qobject_cast<const MainWindow*>(widget))
            for (const Panel* panel : window->Panels())
                if (panel->isVisible())
                    names.append(panel->objectName());
        if (!widget->objectName().isEmpty())
            names.append(widget->objectName());
    }
    names.removeDuplicates();
    return names;
}
