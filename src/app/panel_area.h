#pragma once

#include <QWidget>

class QStackedLayout;

/// The area of the main window that shows one panel at a time. All panels keep its size, also those out of sight, so
/// that their grids have their real widths before they are first shown.
class PanelArea : public QWidget {
    Q_OBJECT
public:
    explicit PanelArea(QWidget* parent = nullptr);

    void AddPanel(QWidget* panel);
    int PanelCount() const;
    void ShowPanel(int number);

    /// Gives the panels out of sight, and all in them, their places.
    void PlaceHiddenPanels();

signals:
    void Resized();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QStackedLayout* m_stack;
};
