#pragma once

#include <QHelpEngine>
#include <QHelpLink>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

/// The help pages, compiled into one file. What Qt makes of them, the words to search for above all, lies in a folder
/// of its own that goes with this object: the program's folder may be one that nobody may write to.
class HelpPages {
public:
    explicit HelpPages(const QString& file);
    ~HelpPages();
    HelpPages(const HelpPages&) = delete;
    HelpPages& operator=(const HelpPages&) = delete;

    /// False when the file is missing or is none of this kind; nothing else may be asked then.
    bool AreThere() const { return m_engine != nullptr; }

    QHelpEngine& Engine() { return *m_engine; }
    /// The page of a name or a number that the pages are marked with; empty when none is.
    QUrl PageOf(const QString& name) const;
    /// What the file holds under an address.
    QByteArray Read(const QUrl& address) const;

private:
    /// Lets go of the engine.
    void FinishReading();

    QTemporaryDir m_folder;
    std::unique_ptr<QHelpEngine> m_engine;
};

/// The help file in the program's folder.
QString HelpFile();
