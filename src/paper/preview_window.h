#pragma once

#include "paper/preview_page.h"
#include "paper/report_layout.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QPageLayout>
#include <QSpinBox>
#include <QTimer>

class ComboBox;

/// A report on the screen, from which it is printed or saved as a PDF. It blocks no other window, and deletes itself
/// when it is closed.
class PreviewWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit PreviewWindow(Report report);

    ReportLayout& Layout() { return m_layout; }
    /// The page on view, from 0 on.
    int CurrentPage() const { return m_page; }
    /// Shows a page, or the nearest there is.
    void GoTo(int page);
    double Zoom() const { return m_zoom; }

private:
    enum class ZoomMode { Fixed, FitWidth, FitPage };

    QAction* AddAction(
        const char* name, const QString& text, const QList<QKeySequence>& keys, void (PreviewWindow::*run)());
    void FillScreen();
    void BuildToolBar();
    void BuildStatusBar();
    void AddNavigation(QToolBar* bar);
    void AddZoom(QToolBar* bar);

    void FirstPage();
    void PreviousPage();
    void NextPage();
    void LastPage();
    void FocusPageBox();
    void ShowPage();
    void ShowPageCount();
    void CountMore();

    void ZoomIn();
    void ZoomOut();
    void ZoomToPaper();
    void FitWidth();
    void FitPage();
    void StepZoom(int steps);
    void SetZoom(double zoom, ZoomMode mode);
    void ApplyZoom();
    void PickZoom();

    void Print();
    void OfferPdf();
    void PageSetup();
    void SaveAsPdf();
    void TellSaved(const QString& path);
    void CloseWindow();

    ReportLayout m_layout;
    QPageLayout m_paper; ///< as on view: other previews may have chosen another one since
    int m_page = 0;
    double m_zoom = 1;
    ZoomMode m_zoomMode = ZoomMode::Fixed;
    QTimer m_counting;

    PreviewPage* picPage = new PreviewPage;
    PreviewView* picView = new PreviewView;
    QSpinBox* txtPage = new QSpinBox;
    QLabel* lblPages = new QLabel;
    QLabel* lblSaved = new QLabel; ///< opens the PDF that was saved last
    ComboBox* cboZoom;
    QAction* m_first = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_next = nullptr;
    QAction* m_last = nullptr;
};

/// Opens a preview of the report on the current printer's paper.
void ShowPreview(Report report);
/// Closes all previews; for the end of the program.
void ClosePreviews();
