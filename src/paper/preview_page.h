#pragma once

#include "paper/report_layout.h"

#include <QScrollArea>
#include <QWidget>

/// A sheet of a report on the screen.
class PreviewPage : public QWidget {
public:
    explicit PreviewPage(QWidget* parent = nullptr);

    void ShowPage(const ReportLayout* layout, ReportPage page);
    /// 1 is the size of the paper.
    void SetZoom(double zoom);
    /// The zoom at which the sheet with its border takes `pixels`, in width or in height.
    double ZoomForWidth(int pixels) const;
    double ZoomForHeight(int pixels) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double PixelsATwip() const;
    void FitToSheet();

    const ReportLayout* m_layout = nullptr;
    ReportPage m_page;
    double m_zoom = 1;
};

/// The space around the sheet: scrolls, and asks for another page when it is scrolled past an end of this one.
class PreviewView : public QScrollArea {
    Q_OBJECT
public:
    explicit PreviewView(QWidget* parent = nullptr);

signals:
    void PastEnd();
    void PastStart();
    void ZoomWheel(int steps);
    void Resized();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_turned = 0; ///< by the wheel, in eighths of a degree, beyond the steps that were told
};
