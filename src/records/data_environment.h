#pragma once

#include "db/connection.h"
#include "paper/report_design.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>

/// A named command of the data environment: a parent statement, and for a report with groups a child statement related
/// to it and sums over the children. Statements may hold `{parameter}` markers.
struct ReportCommand {
    QString name;
    QString parentStatement;
    QString childStatement; ///< "" for none
    QString relation; ///< added to the child statement; its marker `{parentKey}` takes the parent's key
    QString parentKey; ///< field of the parent
    QList<std::pair<QString, QString>> sums; ///< aggregate, child field
};

/// Where reports get their rows: a second connection on the same file, read only in effect, and the commands that the
/// wings register. Rows are read whole when a report is bound, and the connection is let go then: a cursor left open
/// under a preview would keep the screens from writing.
class MainDataEnvironment {
public:
    bool Has(const QString& command) const { return m_commands.contains(command); }
    void Register(const ReportCommand& command);
    /// For rewriting its text. An unknown name throws std::logic_error.
    ReportCommand& Command(const QString& name);
    void SetParameter(const QString& command, const QString& parameter, qint64 value);

    /// True from the first time a command's rows were read until it is closed.
    bool IsOpen(const QString& command) const { return m_open.contains(command); }
    /// The next report that is bound reads its rows anew.
    void Requery(const QString& command);
    void Close(const QString& command);
    /// Gives the report the rows of the command, of which it keeps the fields that the report's controls name. A
    /// command that is open gives the rows it has while a report shows them. Throws RuntimeError when the file cannot
    /// be opened or a statement fails.
    void Bind(Report& report, const QString& command);

private:
    /// Opens `MainConn` on the folder that "DBPath" tells now.
    void OpenConnection();
    std::shared_ptr<const ReportRows> Read(const ReportCommand& command, const Report& report);
    Sql Filled(const QString& command, const QString& statement) const;

    Connection MainConn;
    QHash<QString, ReportCommand> m_commands;
    QHash<QString, QHash<QString, qint64>> m_parameters;
    QHash<QString, std::weak_ptr<const ReportRows>> m_open;
};

/// The program's one data environment.
MainDataEnvironment& DataEnvironment();
