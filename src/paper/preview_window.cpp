#include "paper/preview_window.h"

#include "base/guard.h"
#include "base/texts.h"
#include "controls/combo_box.h"
#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "controls/ink_icon.h"
#include "controls/message_box.h"
#include "controls/window_place.h"
#include "paper/report_output.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPrinter>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {
constexpr int PagesASlice = 20;
constexpr double Zooms[] = {0.1, 0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3, 4};
constexpr int FitWidthEntry = -1;
constexpr int FitPageEntry = -2;

int Percent(double zoom)
{
    return static_cast<int>(std::lround(zoom * 100));
}

ReportMargins InTwips(const PageMargins& margins)
{
    const auto twips = [](int thousandths) { return static_cast<int>(std::lround(thousandths * 1.44)); };
    return {twips(margins.left), twips(margins.top), twips(margins.right), twips(margins.bottom)};
}

QMarginsF InInches(const ReportMargins& margins)
{
    return QMarginsF(margins.left, margins.top, margins.right, margins.bottom) / 1440;
}

QString SuggestedFile(QString title)
{
    for (QChar& character : title)
        if (QStringLiteral("\\/:*?\"<>|").contains(character) || character < u' ')
            character = u'_';
    constexpr int LongestTitle = 80; // a file's name has an end
    return Shortened(title, LongestTitle).toString().trimmed() + QLatin1String(".pdf");
}
} // namespace

PreviewWindow::PreviewWindow(Report report)
    : m_layout(std::move(report), PaperOf(CurrentPrinter()))
    , m_paper(CurrentPrinter().pageLayout())
    , cboZoom(new ComboBox)
{
    setObjectName(QStringLiteral("preview"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(m_layout.Design().title);
    picView->setWidget(picPage);
    picView->setAccessibleName(tr("Page"));
    setCentralWidget(picView);
    BuildToolBar();
    BuildStatusBar();
    if (!RememberPlace(this))
        FillScreen();

    On(picView, &PreviewView::PastEnd, this, &PreviewWindow::NextPage);
    On(picView, &PreviewView::PastStart, this, &PreviewWindow::PreviousPage);
    On(picView, &PreviewView::ZoomWheel, this, [this](int steps) { StepZoom(steps); });
    On(picView, &PreviewView::Resized, this, &PreviewWindow::ApplyZoom);
    On(txtPage, &QSpinBox::valueChanged, this, [this](int page) { GoTo(page - 1); });
    // So that the keys turn pages again once one was chosen.
    On(txtPage->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this, [this] { picView->setFocus(); });
    On(cboZoom, &ComboBox::Click, this, &PreviewWindow::PickZoom);
    On(&m_counting, &QTimer::timeout, this, &PreviewWindow::CountMore);

    ShowPage();
    SetZoom(1, ZoomMode::Fixed);
    picView->setFocus();
    m_counting.start(0);
}

void PreviewWindow::FillScreen()
{
    // Where nothing maximises windows, and when it is made smaller again, it takes what its frame leaves.
    constexpr QMargins Frame(8, 40, 8, 8);
    setGeometry(screen()->availableGeometry().marginsRemoved(Frame));
    setWindowState(Qt::WindowMaximized);
}

QAction* PreviewWindow::AddAction(
    const char* name, const QString& text, const QList<QKeySequence>& keys, void (PreviewWindow::*run)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    QString tip = QString(text).remove(u'&');
    if (!keys.isEmpty())
        tip += QStringLiteral(" (%1)").arg(keys.front().toString(QKeySequence::NativeText));
    action->setToolTip(tip);
    On(action, &QAction::triggered, this, [this, run] { (this->*run)(); });
    addAction(action);
    return action;
}

void PreviewWindow::BuildToolBar()
{
    auto* bar = addToolBar(tr("Preview"));
    bar->setObjectName(QStringLiteral("Toolbar"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    InkExtensionButton(bar);
    bar->addAction(
        AddAction("mnuPrint", tr("&Print..."), {QKeySequence(QStringLiteral("Ctrl+P"))}, &PreviewWindow::Print));
    bar->addAction(AddAction("mnuPageSetup", tr("Page Set&up..."), {QKeySequence(QStringLiteral("Ctrl+Shift+P"))},
        &PreviewWindow::PageSetup));
    bar->addAction(AddAction(
        "mnuSavePdf", tr("&Save as PDF..."), {QKeySequence(QStringLiteral("Ctrl+S"))}, &PreviewWindow::SaveAsPdf));
    bar->addSeparator();
    AddNavigation(bar);
    bar->addSeparator();
    AddZoom(bar);
    bar->addSeparator();
    bar->addAction(AddAction("mnuClose", tr("&Close"),
        {QKeySequence(QStringLiteral("Esc")), QKeySequence(QStringLiteral("Ctrl+W"))}, &PreviewWindow::CloseWindow));
}

void PreviewWindow::BuildStatusBar()
{
    lblSaved->setObjectName(QStringLiteral("lblSaved"));
    lblSaved->setTextInteractionFlags(Qt::TextBrowserInteraction);
    // A long path is cut rather than making the window wider.
    lblSaved->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblSaved->hide();
    statusBar()->addWidget(lblSaved, 1);
    On(lblSaved, &QLabel::linkActivated, this, OpenLink);
}

void PreviewWindow::AddNavigation(QToolBar* bar)
{
    m_first =
        AddAction("mnuFirstPage", tr("First Page"), {QKeySequence(QStringLiteral("Home"))}, &PreviewWindow::FirstPage);
    m_previous = AddAction("mnuPreviousPage", tr("Previous Page"), {QKeySequence(QStringLiteral("Ctrl+PgUp"))},
        &PreviewWindow::PreviousPage);
    m_next = AddAction(
        "mnuNextPage", tr("Next Page"), {QKeySequence(QStringLiteral("Ctrl+PgDown"))}, &PreviewWindow::NextPage);
    m_last = AddAction("mnuLastPage", tr("Last Page"), {QKeySequence(QStringLiteral("End"))}, &PreviewWindow::LastPage);
    const QAction* go = AddAction(
        "mnuGoToPage", tr("Go to Page"), {QKeySequence(QStringLiteral("Ctrl+G"))}, &PreviewWindow::FocusPageBox);
    m_first->setIcon(InkIcon(style()->standardIcon(QStyle::SP_MediaSkipBackward)));
    m_previous->setIcon(InkIcon(style()->standardIcon(QStyle::SP_MediaSeekBackward)));
    m_next->setIcon(InkIcon(style()->standardIcon(QStyle::SP_MediaSeekForward)));
    m_last->setIcon(InkIcon(style()->standardIcon(QStyle::SP_MediaSkipForward)));
    txtPage->setObjectName(QStringLiteral("txtPage"));
    txtPage->setAccessibleName(tr("Page"));
    txtPage->setToolTip(go->toolTip());
    txtPage->setKeyboardTracking(false);
    txtPage->setMinimum(1);
    lblPages->setObjectName(QStringLiteral("lblPages"));
    bar->addAction(m_first);
    bar->addAction(m_previous);
    bar->addWidget(txtPage);
    bar->addWidget(lblPages);
    bar->addAction(m_next);
    bar->addAction(m_last);
}

void PreviewWindow::AddZoom(QToolBar* bar)
{
    cboZoom->setObjectName(QStringLiteral("cboZoom"));
    cboZoom->setAccessibleName(tr("Zoom"));
    cboZoom->setToolTip(tr("Zoom"));
    for (const double zoom : Zooms)
        cboZoom->AddItem(tr("%1 %").arg(Percent(zoom)), Percent(zoom));
    cboZoom->AddItem(tr("Fit Width"), FitWidthEntry);
    cboZoom->AddItem(tr("Fit Page"), FitPageEntry);
    bar->addAction(
        AddAction("mnuZoomOut", tr("Zoom &Out"), {QKeySequence(QStringLiteral("Ctrl+-"))}, &PreviewWindow::ZoomOut));
    bar->addWidget(cboZoom);
    bar->addAction(AddAction("mnuZoomIn", tr("Zoom &In"),
        {QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))}, &PreviewWindow::ZoomIn));
    AddAction("mnuZoomPaper", tr("100 %"), {QKeySequence(QStringLiteral("Ctrl+0"))}, &PreviewWindow::ZoomToPaper);
    AddAction("mnuFitWidth", tr("Fit Width"), {QKeySequence(QStringLiteral("Ctrl+1"))}, &PreviewWindow::FitWidth);
    AddAction("mnuFitPage", tr("Fit Page"), {QKeySequence(QStringLiteral("Ctrl+2"))}, &PreviewWindow::FitPage);
}

void PreviewWindow::GoTo(int page)
{
    page = std::max(page, 0);
    if (!m_layout.HasPage(page))
        page = m_layout.PageCount() - 1;
    if (page == m_page)
        return;
    m_page = page;
    ShowPage();
}

void PreviewWindow::FirstPage()
{
    GoTo(0);
}

void PreviewWindow::PreviousPage()
{
    if (m_page == 0)
        return;
    GoTo(m_page - 1);
    picView->verticalScrollBar()->setValue(picView->verticalScrollBar()->maximum());
}

void PreviewWindow::NextPage()
{
    GoTo(m_page + 1);
}

void PreviewWindow::LastPage()
{
    const Hourglass hourglass(tr("Counting the pages..."));
    GoTo(m_layout.PageCount() - 1);
}

void PreviewWindow::FocusPageBox()
{
    txtPage->setFocus();
    txtPage->selectAll();
}

void PreviewWindow::ShowPage()
{
    picPage->ShowPage(&m_layout, m_layout.Page(m_page));
    picView->verticalScrollBar()->setValue(0);
    ShowPageCount();
}

void PreviewWindow::ShowPageCount()
{
    const std::optional<int> count = m_layout.KnownPageCount();
    const QSignalBlocker silent(txtPage);
    txtPage->setMaximum(count.value_or(9999999));
    txtPage->setValue(m_page + 1);
    lblPages->setText(count ? tr(" of %1 ").arg(*count) : tr(" of ... "));
    m_first->setEnabled(m_page > 0);
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_layout.HasPage(m_page + 1));
    m_last->setEnabled(m_next->isEnabled());
}

void PreviewWindow::CountMore()
{
    if (!m_layout.CountOn(PagesASlice))
        return;
    m_counting.stop();
    ShowPageCount();
}

void PreviewWindow::ZoomIn()
{
    StepZoom(1);
}

void PreviewWindow::ZoomOut()
{
    StepZoom(-1);
}

void PreviewWindow::ZoomToPaper()
{
    SetZoom(1, ZoomMode::Fixed);
}

void PreviewWindow::FitWidth()
{
    SetZoom(m_zoom, ZoomMode::FitWidth);
}

void PreviewWindow::FitPage()
{
    SetZoom(m_zoom, ZoomMode::FitPage);
}

void PreviewWindow::StepZoom(int steps)
{
    constexpr double Nearly = 0.005;
    double zoom = m_zoom;
    for (; steps > 0; --steps) {
        const auto* larger = std::ranges::find_if(Zooms, [&](double step) { return step > zoom + Nearly; });
        zoom = larger == std::end(Zooms) ? zoom : *larger;
    }
    for (; steps < 0; ++steps) {
        const auto* notSmaller = std::ranges::find_if(Zooms, [&](double step) { return step > zoom - Nearly; });
        zoom = notSmaller == std::begin(Zooms) ? zoom : *(notSmaller - 1);
    }
    SetZoom(zoom, ZoomMode::Fixed);
}

void PreviewWindow::SetZoom(double zoom, ZoomMode mode)
{
    m_zoom = zoom;
    m_zoomMode = mode;
    const QSignalBlocker silent(cboZoom);
    const int entry = mode == ZoomMode::Fixed ? Percent(zoom)
        : mode == ZoomMode::FitWidth          ? FitWidthEntry
                                              : FitPageEntry;
    SelectComboByData(cboZoom, entry);
    ApplyZoom();
}

void PreviewWindow::ApplyZoom()
{
    constexpr double SmallestZoom = 0.05;
    // The whole space is counted less a scroll bar, so that fitting does not swing between with and without one.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const double width = picPage->ZoomForWidth(picView->width() - bar - 4);
    const double height = picPage->ZoomForHeight(picView->height() - 4);
    if (m_zoomMode == ZoomMode::FitWidth)
        m_zoom = std::max(width, SmallestZoom);
    else if (m_zoomMode == ZoomMode::FitPage)
        m_zoom = std::max(std::min(width, height), SmallestZoom);
    picPage->SetZoom(m_zoom);
}

void PreviewWindow::PickZoom()
{
    const qint64 entry = cboZoom->SelectedData();
    if (entry == FitWidthEntry)
        FitWidth();
    else if (entry == FitPageEntry)
        FitPage();
    else
        SetZoom(static_cast<double>(entry) / 100, ZoomMode::Fixed);
}

void PreviewWindow::Print()
{
    QPrinter& printer = CurrentPrinter();
    if (!HasPrinter())
        return OfferPdf();
    const QPageLayout shared = printer.pageLayout();
    printer.setPageLayout(m_paper);
    if (!PrintDialog(printer)) {
        printer.setPageLayout(shared);
        return;
    }
    const Hourglass hourglass(tr("Printing..."));
    if (PrintReport(m_layout, printer))
        statusBar()->showMessage(tr("The document was handed to the printer."));
    else
        statusBar()->showMessage(tr("The printer did not take the document."));
}

void PreviewWindow::OfferPdf()
{
    const QString question = tr("No printer is installed. Do you want to save the document as a PDF instead?");
    if (MsgBox(question, Icon::Question, Buttons::YesNo) == Answer::Yes)
        SaveAsPdf();
}

void PreviewWindow::PageSetup()
{
    QPrinter& printer = CurrentPrinter();
    const QPageLayout shared = printer.pageLayout();
    printer.setPageLayout(m_paper);
    printer.setPageMargins(InInches(m_layout.Design().margins), QPageLayout::Inch);
    PageMargins margins;
    if (!ShowPaperSetup(this, margins)) {
        printer.setPageLayout(shared);
        return;
    }
    m_paper = printer.pageLayout();
    m_layout.SetPaper(PaperOf(printer), InTwips(margins));
    m_page = 0;
    ShowPage();
    ApplyZoom();
    m_counting.start(0);
}

void PreviewWindow::SaveAsPdf()
{
    const QString path =
        SaveFileNameOfKind(tr("Save as PDF"), tr("PDF documents (*.pdf)"), SuggestedFile(windowTitle()));
    if (path.isEmpty())
        return;
    bool saved = false;
    {
        const Hourglass hourglass(tr("Writing the PDF..."));
        saved = SaveReportAsPdf(m_layout, path);
    }
    if (!saved)
        return MsgBox(tr("Unable to write to file %1").arg(path), Icon::Critical);
    TellSaved(path);
}

void PreviewWindow::TellSaved(const QString& path)
{
    statusBar()->clearMessage();
    const QString link = QStringLiteral("<a href=\"%1\">%2</a>")
                             .arg(QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded()),
                                 QDir::toNativeSeparators(path).toHtmlEscaped());
    lblSaved->setText(tr("Saved as %1").arg(link));
    lblSaved->show();
}

void PreviewWindow::CloseWindow()
{
    close();
}

void ShowPreview(Report report)
{
    auto* window = new PreviewWindow(std::move(report));
    window->show();
    window->raise();
    window->activateWindow();
}

void ClosePreviews()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* preview = qobject_cast<PreviewWindow*>(window))
            preview->close();
}
