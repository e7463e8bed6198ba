#pragma once

#include "app/help_browser.h"

#include <QAction>
#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QTabWidget>

/// The help viewer: contents, index and search beside the page. It blocks no window, and is used beside a modal form.
class frmHelp : public QMainWindow {
    Q_OBJECT
public:
    explicit frmHelp(HelpPages& pages);

    enum Tab { ContentsTab, IndexTab, SearchTab };
    /// Brings a tab to the front with the cursor in it.
    void ShowTab(Tab tab);
    /// Shows a page, or the first one for an empty address, with the cursor in it.
    void ShowPage(const QUrl& page);

    QTabWidget* tabHelp = new QTabWidget;
    QLineEdit* txtIndex = new QLineEdit;
    QLineEdit* txtSearch = new QLineEdit;
    QListWidget* lstResults = new QListWidget;
    QLabel* lblResults = new QLabel;
    HelpBrowser* txtPage;
    QWidget* picFind = new QWidget; ///< the bar below the page, shown while something is looked for in it
    QLineEdit* txtFind = new QLineEdit;
    QLabel* lblFind = new QLabel;

private:
    QWidget* ContentsPane();
    QWidget* IndexPane();
    QWidget* SearchPane();
    void BuildFindBar();
    void BuildToolbar();
    QAction* AddAction(const char* name, const QString& text, const QList<QKeySequence>& keys, void (frmHelp::*run)());

    void FollowPage();
    void Search();
    void ShowResults();
    void OpenResult(const QListWidgetItem* result);
    void ShowFindBar();
    void FindNext();
    void FindPrevious();
    void FindInPage(QTextDocument::FindFlags direction);
    void Home();
    void Print();
    void Enlarge();
    void Shrink();
    void Leave();

    HelpPages& m_pages;
    QHelpSearchEngine* m_search;
    bool m_indexed = false;
};
