#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

/// What a text box held before some keys were typed into it: text, cursor, selection, and whether it counted as
/// changed.
class TextBefore {
public:
    /// Whether typing into the control writes text.
    static bool IsTextBox(const QWidget* control);

    /// `box` is a text box.
    explicit TextBefore(QWidget* box);

    const QWidget* Box() const { return m_box; }
    /// Brings it all back, as if nothing had been typed since. Undo goes on from there where Qt lets it.
    void TakeBack() const;

private:
    QPointer<QWidget> m_box;
    QString m_text; ///< of a box of several lines: what was selected
    int m_anchor = 0;
    int m_cursor = 0;
    int m_characters = 0;
    int m_undoSteps = 0;
    bool m_isModified = false;
};
