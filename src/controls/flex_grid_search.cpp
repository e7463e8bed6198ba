#include "controls/flex_grid.h"
#include "controls/flex_grid_model.h"

#include <QApplication>

void FlexGrid::SetFilter(const QString& words)
{
    if (words == Filter())
        return;
    m_setByCode = true;
    m_model->SetFilter(words);
    m_setByCode = false;
    if (m_row == 0)
        m_row = m_hiddenRow;
    ShowCurrent();
}

const QString& FlexGrid::Filter() const
{
    return m_model->Filter();
}

int FlexGrid::ShownRows() const
{
    return m_model->rowCount();
}

void FlexGrid::Reveal(int row)
{
    CheckRow(row);
    if (row > 0)
        m_model->Reveal(row - 1);
}

void FlexGrid::FilterAnew()
{
    m_setByCode = true;
    m_model->FilterAnew();
    m_setByCode = false;
}

void FlexGrid::EnterRows()
{
    setFocus(Qt::OtherFocusReason);
    if (m_row == 0 && Rows() > 1)
        SelectRow(1);
}

void FlexGrid::keyboardSearch(const QString& typed)
{
    const bool goesOn = !m_typed.isEmpty() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
    if (m_searchColumn < 0 || ShownRows() == 0 || (!goesOn && typed == QLatin1String(" ")))
        return;
    m_sinceTyped.start();
    m_typed = goesOn ? m_typed + typed : typed;
    // What no row begins with no row begins with longer: the keys of a bar code come fast and need no search each.
    if (goesOn && m_foundNone)
        return;
    const int here = qMax(0, currentIndex().row());
    int row = m_model->FindStart(m_searchColumn, m_typed, goesOn ? here : currentIndex().row() + 1);
    // The same letter again and again goes from row to row.
    if (row < 0 && m_typed.count(typed) * typed.size() == m_typed.size())
        row = m_model->FindStart(m_searchColumn, typed, here + 1);
    m_foundNone = row < 0;
    if (!m_foundNone)
        SelectRow(row + 1);
}
