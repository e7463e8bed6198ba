#include "controls/text_box.h"
#include "support/test.h"

#include <QMainWindow>
#include <QMimeData>

namespace {

const QString Odd = QString::fromUtf8("O'Neil \"Bolts\"\r\nb\n") + QChar(0) + QString::fromUtf8("😀\t\u00A0end");

void Paste(QWidget* box, const QString& text)
{
    QApplication::clipboard()->setText(text);
    Press(box, Qt::Key_V, Qt::ControlModifier);
}

TEST(TextBoxes, KeepEveryCharacterThatIsSetOrPasted)
{
    TextBox box;
    box.setText(Odd);
    EXPECT_EQ(box.text(), Odd);
    Shown(&box);
    box.FocusAll();
    Paste(&box, Odd);
    EXPECT_EQ(box.text(), Odd);
    EXPECT_FALSE(box.hasSelectedText());
}

TEST(TextBoxes, KeepTheirSelectionWhileAMenuIsUsedByKeys)
{
    QMainWindow window;
    auto* box = new TextBox(&window);
    window.setCentralWidget(box);
    window.menuBar()->addMenu("&Edit")->addAction("Cu&t", box, &TextBox::cut);
    Shown(&window);
    box->setText("hello");
    box->FocusAll();
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_T);
    EXPECT_EQ(box->text(), "");
}

TEST(TextBoxes, TakeAPasteOfAnySizeAtOnceAndKeepWhatCodeSets)
{
    TextBox box;
    MultiLineTextBox lines;
    QString large;
    while (large.size() < 5'000'000)
        large += "five megabytes 😀 ";
    Shown(&box);
    Shown(&lines);
    QElapsedTimer timer;
    timer.start();
    Type(&box, "[]");
    Press(&box, Qt::Key_Left);
    Paste(&box, large);
    EXPECT_TRUE(box.text().startsWith("[five") && box.text().endsWith("]"));
    EXPECT_NEAR(double(box.text().size()), LongestTypedText, 1);
    Paste(&lines, large);
    EXPECT_NEAR(double(lines.Text().size()), LongestTypedText, 1);
    EXPECT_LT(timer.elapsed(), 10000) << "generous for slow builds";
    box.setText(large.left(100000));
    EXPECT_EQ(box.text().size(), 100000);
}

TEST(TextBoxes, ALimitHoldsForTypingPastingAndCode)
{
    TextBox box;
    box.setMaxLength(5);
    Shown(&box);
    Type(&box, "1234567");
    EXPECT_EQ(box.text(), "12345");
    box.setText("abcdefgh");
    EXPECT_EQ(box.text(), "abcde");
    const QString fourAndHalf = QString::fromUtf8("ab😀😀");
    box.setText(fourAndHalf);
    EXPECT_EQ(box.text(), fourAndHalf.left(4)) << "no half of an emoji";
    box.clear();
    Paste(&box, fourAndHalf);
    EXPECT_EQ(box.text(), fourAndHalf.left(4));
}

TEST(MultiLineTextBoxes, GiveBackLineEndsAsTheyCameIn)
{
    MultiLineTextBox box;
    for (const QString& text : {Odd, QString("a\r\nb\r\n"), QString("a\nb"), QString("a\rb"), QString()}) {
        box.SetText(text);
        EXPECT_EQ(box.Text(), text);
    }
    Shown(&box);
    const auto typeAtEnd = [&](const QString& text) {
        box.moveCursor(QTextCursor::End);
        for (const QChar c : text)
            c == '\n' ? QTest::keyClick(&box, Qt::Key_Return) : QTest::keyClick(&box, c.toLatin1());
    };
    box.SetText(QString("a\r\nb") + QChar::Nbsp);
    typeAtEnd("\nc");
    EXPECT_EQ(box.Text(), QString("a\r\nb") + QChar::Nbsp + "\r\nc");
    box.SetText("a\nb");
    typeAtEnd("\nc");
    EXPECT_EQ(box.Text(), "a\nb\nc");
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), "a\nb\nc\n");
}

TEST(MultiLineTextBoxes, ALimitHoldsForTypingAndPastingAndCode)
{
    MultiLineTextBox box;
    box.SetMaxLength(6);
    box.SetText("abcdefgh");
    EXPECT_EQ(box.Text(), "abcdef");
    Shown(&box);
    Type(&box, "12\n456789");
    EXPECT_EQ(box.Text(), "12\n456");
    Paste(&box, "x");
    EXPECT_EQ(box.Text(), "12\n456");
    box.selectAll();
    Paste(&box, "ab\r\ncdef");
    EXPECT_EQ(box.Text(), "ab\r\ncd");
    Press(&box, Qt::Key_Backspace);
    Press(&box, Qt::Key_Return);
    EXPECT_EQ(box.Text(), "ab\r\nc") << "a line end counts two where the text's own do";
    Press(&box, Qt::Key_Left);
    EXPECT_EQ(box.textCursor().position(), 3);
    const QString fiveAndHalf = QString::fromUtf8("abcde😀");
    box.SetText(fiveAndHalf);
    EXPECT_EQ(box.Text(), "abcde");
    box.selectAll();
    Paste(&box, fiveAndHalf);
    EXPECT_EQ(box.Text(), "abcde");
}

} // namespace
