#include "app/help_window.h"

#include "base/guard.h"
#include "controls/dialogs.h"
#include "controls/ink_icon.h"
#include "controls/keys.h"
#include "controls/layout.h"
#include "controls/window_place.h"

#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>

namespace {

constexpr QSize FirstSize(1010, 690);
constexpr int FirstPaneWidth = 270;
constexpr int AddressRole = Qt::UserRole;
constexpr int MostResults = 100;

/// A query for pages with words that begin as these do. What else the search engine would make of signs is lost, and
/// the quotes keep "NOT" a word.
QString QueryOf(const QString& words)
{
    static const QRegularExpression notLetters(
        QStringLiteral("[^\\w]+"), QRegularExpression::UseUnicodePropertiesOption);
    const QStringList parts = words.split(notLetters, Qt::SkipEmptyParts);
    return parts.isEmpty() ? QString() : u'"' + parts.join(QStringLiteral("\"* \"")) + QStringLiteral("\"*");
}

void SetUp(QWidget* control, const char* name, const QString& accessibleName)
{
    control->setObjectName(QLatin1String(name));
    control->setAccessibleName(accessibleName);
}

} // namespace

frmHelp::frmHelp(HelpPages& pages)
    : txtPage(new HelpBrowser(pages))
    , m_pages(pages)
    , m_search(pages.Engine().searchEngine())
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Tavrin Inventory Help"));
    SetUp(tabHelp, "tabHelp", tr("Ways to a page"));
    SetUp(txtPage, "txtPage", tr("Help page"));
    tabHelp->addTab(ContentsPane(), tr("&Contents"));
    tabHelp->addTab(IndexPane(), tr("&Index"));
    tabHelp->addTab(SearchPane(), tr("&Search"));
    BuildFindBar();
    BuildToolbar();

    auto* page = new QWidget;
    auto* content = column({txtPage, picFind});
    content->setContentsMargins(0, 0, 0, 0);
    page->setLayout(content);
    auto* splitter = new QSplitter;
    splitter->addWidget(tabHelp);
    splitter->addWidget(page);
    splitter->setStretchFactor(1, 1);
    const int paneWidth = qMax(FirstPaneWidth, tabHelp->tabBar()->sizeHint().width() + 2 * splitter->handleWidth());
    splitter->setSizes({paneWidth, FirstSize.width() - paneWidth});
    setCentralWidget(splitter);
    resize(FirstSize);
    RememberPlace(this);

    On(txtPage, &QTextBrowser::sourceChanged, this, &frmHelp::FollowPage);
    On(m_search, &QHelpSearchEngine::indexingFinished, this, [this] {
        m_indexed = true;
        Search();
    });
    On(m_search, &QHelpSearchEngine::searchingFinished, this, &frmHelp::ShowResults);
    m_search->reindexDocumentation();
}

QWidget* frmHelp::ContentsPane()
{
    QHelpContentWidget* contents = m_pages.Engine().contentWidget();
    SetUp(contents, "lstContents", tr("Contents"));
    On(contents, &QHelpContentWidget::linkActivated, this, &frmHelp::ShowPage);
    On(contents, &QHelpContentWidget::clicked, this, [this, contents](const QModelIndex& entry) {
        txtPage->setSource(m_pages.Engine().contentModel()->contentItemAt(entry)->url());
        contents->setFocus();
    });
    On(m_pages.Engine().contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents] {
        contents->expandAll();
        FollowPage();
    });
    return contents;
}

QWidget* frmHelp::IndexPane()
{
    QHelpIndexWidget* index = m_pages.Engine().indexWidget();
    SetUp(index, "lstIndex", tr("Index"));
    SetUp(txtIndex, "txtIndex", tr("Look for"));
    txtIndex->setPlaceholderText(tr("Type the first letters of a word"));
    txtIndex->setClearButtonEnabled(true);
    On(txtIndex, &QLineEdit::textChanged, this, [index](const QString& text) { index->filterIndices(text); });
    On(txtIndex, &QLineEdit::returnPressed, this, [index] { index->activateCurrentItem(); });
    OnKey(txtIndex, Qt::Key_Down, [index] { index->setFocus(); });
    On(index, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink& page) { ShowPage(page.url); });
    On(index, &QHelpIndexWidget::documentsActivated, this,
        [this](const QList<QHelpLink>& pages) { ShowPage(pages.constFirst().url); });
    auto* pane = new QWidget;
    pane->setLayout(column({txtIndex, index}));
    return pane;
}

QWidget* frmHelp::SearchPane()
{
    SetUp(txtSearch, "txtSearch", tr("Words to search for"));
    txtSearch->setPlaceholderText(tr("Type words, then press Enter"));
    txtSearch->setClearButtonEnabled(true);
    SetUp(lstResults, "lstResults", tr("Pages found"));
    lblResults->setWordWrap(true);
    On(txtSearch, &QLineEdit::returnPressed, this, &frmHelp::Search);
    OnKey(txtSearch, Qt::Key_Down, [this] { lstResults->setFocus(); });
    On(lstResults, &QListWidget::itemActivated, this, &frmHelp::OpenResult);
    On(lstResults, &QListWidget::itemClicked, this, &frmHelp::OpenResult);
    auto* pane = new QWidget;
    pane->setLayout(column({txtSearch, lblResults, lstResults}));
    return pane;
}

void frmHelp::BuildFindBar()
{
    auto* label = new QLabel;
    label->setText(tr("&Find in page:"));
    SetUp(txtFind, "txtFind", tr("Find in page"));
    label->setBuddy(txtFind);
    auto* next = new QPushButton(tr("&Next"));
    auto* previous = new QPushButton(tr("&Previous"));
    picFind->setLayout(row({label, txtFind, next, previous, lblFind, stretch()}));
    picFind->hide();
    On(txtFind, &QLineEdit::textChanged, this, [this] {
        // From where the last one begins, so that it may grow with what is typed.
        QTextCursor cursor = txtPage->textCursor();
        cursor.setPosition(cursor.selectionStart());
        txtPage->setTextCursor(cursor);
        FindNext();
    });
    On(txtFind, &QLineEdit::returnPressed, this, &frmHelp::FindNext);
    On(next, &QPushButton::clicked, this, &frmHelp::FindNext);
    On(previous, &QPushButton::clicked, this, &frmHelp::FindPrevious);
}

void frmHelp::BuildToolbar()
{
    QToolBar* bar = addToolBar(tr("Toolbar"));
    bar->setObjectName(QStringLiteral("Toolbar"));
    bar->setMovable(false);
    InkExtensionButton(bar);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setContextMenuPolicy(Qt::PreventContextMenu);
    const auto key = [](const char* text) { return QKeySequence(QLatin1String(text)); };

    auto* back = new QAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("Back"), this);
    auto* forward = new QAction(style()->standardIcon(QStyle::SP_ArrowForward), tr("Forward"), this);
    back->setObjectName(QStringLiteral("mnuBack"));
    forward->setObjectName(QStringLiteral("mnuForward"));
    back->setShortcut(key("Alt+Left"));
    forward->setShortcut(key("Alt+Right"));
    back->setEnabled(false);
    forward->setEnabled(false);
    On(back, &QAction::triggered, txtPage, [this] { txtPage->backward(); });
    On(forward, &QAction::triggered, txtPage, [this] { txtPage->forward(); });
    On(txtPage, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    On(txtPage, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar->addActions({back, forward});

    QAction* home = AddAction("mnuHome", tr("Home"), {key("Alt+Home")}, &frmHelp::Home);
    home->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    bar->addAction(home);
    bar->addSeparator();
    bar->addAction(AddAction("mnuFind", tr("Find in Page"), {key("Ctrl+F")}, &frmHelp::ShowFindBar));
    QAction* print = AddAction("mnuPrint", tr("Print..."), {key("Ctrl+P")}, &frmHelp::Print);
    print->setEnabled(HasPrinter());
    bar->addAction(print);
    AddAction("mnuFindNext", tr("Find Next"), {key("F3")}, &frmHelp::FindNext);
    AddAction("mnuFindPrevious", tr("Find Previous"), {key("Shift+F3")}, &frmHelp::FindPrevious);
    AddAction("mnuLarger", tr("Larger"), {key("Ctrl++"), key("Ctrl+=")}, &frmHelp::Enlarge);
    AddAction("mnuSmaller", tr("Smaller"), {key("Ctrl+-")}, &frmHelp::Shrink);
    AddAction("mnuLeave", tr("Close"), {key("Esc"), key("Ctrl+W")}, &frmHelp::Leave);
}

QAction* frmHelp::AddAction(
    const char* name, const QString& text, const QList<QKeySequence>& keys, void (frmHelp::*run)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    On(action, &QAction::triggered, this, [this, run] { (this->*run)(); });
    addAction(action);
    return action;
}

void frmHelp::ShowTab(Tab tab)
{
    if (txtPage->source().isEmpty())
        Home();
    tabHelp->setCurrentIndex(tab);
    if (tab == ContentsTab)
        m_pages.Engine().contentWidget()->setFocus();
    else
        (tab == IndexTab ? txtIndex : txtSearch)->setFocus();
}

void frmHelp::ShowPage(const QUrl& page)
{
    txtPage->setSource(page.isEmpty() ? m_pages.PageOf(QStringLiteral("1")) : page);
    txtPage->setFocus();
}

void frmHelp::FollowPage()
{
    const QString title = txtPage->documentTitle();
    const QString help = tr("Tavrin Inventory Help");
    // The first page has the name of the whole.
    setWindowTitle(title.isEmpty() || title == help ? help : tr("%1 - Tavrin Inventory Help").arg(title));
    QHelpContentWidget* contents = m_pages.Engine().contentWidget();
    if (const QModelIndex entry = contents->indexOf(txtPage->source()); entry.isValid())
        contents->setCurrentIndex(entry);
}

void frmHelp::Search()
{
    lstResults->clear();
    const QString query = QueryOf(txtSearch->text());
    lblResults->clear();
    if (query.isEmpty())
        return;
    lblResults->setText(tr("Searching..."));
    // Otherwise the end of the indexing starts it.
    if (m_indexed)
        m_search->search(query);
}

void frmHelp::ShowResults()
{
    lstResults->clear();
    for (const QHelpSearchResult& result : m_search->searchResults(0, MostResults)) {
        auto* entry = new QListWidgetItem(result.title(), lstResults);
        entry->setData(AddressRole, result.url());
    }
    const int count = lstResults->count();
    lblResults->setText(count > 0 ? tr("Pages found: %1").arg(count) : tr("No page has all of these words."));
    lstResults->setCurrentRow(0);
}

void frmHelp::OpenResult(const QListWidgetItem* result)
{
    txtPage->setSource(result->data(AddressRole).toUrl());
}

void frmHelp::ShowFindBar()
{
    picFind->show();
    txtFind->setFocus();
    txtFind->selectAll();
}

void frmHelp::FindNext()
{
    FindInPage({});
}

void frmHelp::FindPrevious()
{
    FindInPage(QTextDocument::FindBackward);
}

void frmHelp::FindInPage(QTextDocument::FindFlags direction)
{
    const QString text = txtFind->text();
    lblFind->clear();
    if (text.isEmpty() || txtPage->find(text, direction))
        return;
    // Once more from the other end of the page.
    const QTextCursor before = txtPage->textCursor();
    txtPage->moveCursor(direction ? QTextCursor::End : QTextCursor::Start);
    if (txtPage->find(text, direction))
        return;
    txtPage->setTextCursor(before);
    lblFind->setText(tr("Not found."));
}

void frmHelp::Home()
{
    ShowPage(QUrl());
}

void frmHelp::Print()
{
    if (QPrinter& printer = CurrentPrinter(); PrintDialog(printer))
        txtPage->print(&printer);
}

void frmHelp::Enlarge()
{
    txtPage->zoomIn();
}

void frmHelp::Shrink()
{
    txtPage->zoomOut();
}

void frmHelp::Leave()
{
    if (!picFind->isVisible()) {
        close();
        return;
    }
    picFind->hide();
    txtPage->setFocus();
}
