#pragma once

#include "app/help_pages.h"
#include "app/help_window.h"
#include "controls/dialogs.h"

#include <QCoreApplication>
#include <QObject>

#include <memory>

/// Opens the help viewer, and keeps it usable beside whatever modal form is up. The program's help while it lives.
class HelpDesk : public QObject, public HelpViewer {
    Q_OBJECT
public:
    HelpDesk();
    ~HelpDesk() override;

    void Open(HelpCommand command, int data) override;
    void OpenAt(const QStringList& names) override;

    /// The viewer once it was opened, else null.
    frmHelp* Viewer() const { return m_viewer.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The viewer in front, or null after a message that there is no help.
    frmHelp* Front();

    std::unique_ptr<HelpPages> m_pages;
    std::unique_ptr<frmHelp> m_viewer;
};

/// The names to look for help under: those of the control that has the focus and of all that it stands on, from a
/// dialog on to the window that opened it, the nearest first.
QStringList HelpNamesAt(const QWidget* focused);
