#pragma once

#include "app/main_window.h"
#include "db/connection.h"
#include "support/scripted_answers.h"

#include <memory>

/// Says Yes to what the program asks, picks the shop's file where a file is asked for, and remembers what was told.
class Agreement : public DialogDoor {
public:
    explicit Agreement(QString file);
    ~Agreement() override;
    Agreement(const Agreement&) = delete;
    Agreement& operator=(const Agreement&) = delete;

    const QStringList& Told() const { return m_told; }

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title) override;
    QString OpenFileName(const QString&, const QString&) override { return m_file; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return m_file; }
    bool Print(QPrinter&) override { return false; }
    bool PageSetup(QPrinter&) override { return false; }
    void OpenLink(const QString&) override { }
    void Help(int, int) override { }
    void HelpAt(const QStringList&) override { }

private:
    QString m_file;
    QStringList m_told;
    DialogDoor* m_before;
};

/// The program, loaded from the db.mdb of a folder as its start loads it, with its main window. One at a time.
class Shop {
public:
    /// Puts a database of a shop into the folder: some items in three price lists, a group, custom fields, customers,
    /// vendors, an invoice with two lines, and of each kind one row that nothing uses, the first by name.
    static void Stock(const QString& folder);

    explicit Shop(const QString& folder);
    ~Shop();
    Shop(const Shop&) = delete;
    Shop& operator=(const Shop&) = delete;

    MainWindow& Window() { return *m_window; }
    InvoicePage& Page() { return *m_window->picNewInvoice; }
    /// The file that the user reads or writes.
    static QString FileIn(const QString& folder) { return folder + "/file.pdf"; }
    const QString& File() const { return m_file; }

    /// What was told: messages, and the error that ended the program.
    QStringList Told() const;
    bool HasEnded() const { return m_end.Ended(); }

private:
    QString m_file;
    Agreement m_agreement;
    ExpectedEnd m_end;
    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
};

inline constexpr auto RopeCode = "4006381333931";
