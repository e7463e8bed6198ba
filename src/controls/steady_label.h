#pragma once

#include <QLabel>

/// A line of text that changes often, aligned right: it keeps the room that its widest text took, so that another text
/// paints the label alone, where Qt would lay out the whole window anew for each. No text takes no room.
class SteadyLabel : public QLabel {
    Q_OBJECT
public:
    explicit SteadyLabel(QWidget* parent = nullptr);

    /// To be called in place of setText.
    void Show(const QString& text);
    /// Lets the mouse select the text, to copy it.
    void LetSelect() { m_isSelectable = true; }

protected:
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void TakeRoom();

    QString m_outline; ///< of the text: what it is when all of its digits are zeros
    bool m_isSelectable = false;
};
