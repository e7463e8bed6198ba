#pragma once

#include "diary.h"
#include "watch.h"

#include "make_database/dice.h"

#include <QObject>

class QMenu;
class QWidget;

/// Plays with the program's windows whenever they wait for their user, in whatever loop of modal forms. After its last
/// event it closes what is open, the main window in the end.
class Monkey : public QObject {
public:
    /// The events are counted on from `first`, and are `count` at most.
    Monkey(quint64 seed, int first, int count, const Diary& diary, Watch& watch);

protected:
    bool event(QEvent* event) override;

private:
    void Act();
    void Play();
    void GoHome();
    void CloseFront(QWidget* window);

    void PickFile(QWidget* dialog);
    void ChooseEntry(QWidget* menu);
    void MoveHeldMouse(QWidget* window);
    void ClickSomewhere(QWidget* window);
    void ClickTwice(QWidget* window);
    void ClickRight(QWidget* window);
    void StartDrag(QWidget* window);
    void TurnWheel(QWidget* window);
    void TypeSomething(QWidget* window);
    void FillBox(QWidget* window);
    void StrikeKey(QWidget* window);
    void StrikeAccessKey(QWidget* window);
    void PressEnter(QWidget* window);
    void ScanCode(QWidget* window);
    void OpenMenu(QWidget* window);
    void Resize(QWidget* window);
    void ChangeState(QWidget* window);
    void CloseWindow(QWidget* window);
    void Wait(QWidget* window);
    void FillClipboard(QWidget* window);

    /// Tells what is about to be done.
    void Note(const QString& what);
    /// A control of the window and a place in it; the widget is null where nothing shows.
    struct Spot PickSpot(QWidget* window);

    struct Deed {
        int weight;
        void (Monkey::*act)(QWidget* window);
    };
    static const Deed Deeds[];

    Dice m_dice;
    int m_event;
    int m_end;
    const Diary& m_diary;
    Watch& m_watch;
    bool m_isPosted = false;
    int m_triesToFocus = 0;
    int m_triesToClose = 0;
};
