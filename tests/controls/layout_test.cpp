#include "controls/layout.h"
#include "support/test.h"

namespace {

TEST(Layouts, TheControlsOfABlockShareTheirEdgesAndTakeTheWidth)
{
    QWidget screen;
    auto* name = new TextBox;
    auto* zip = new TextBox;
    auto* phone = new TextBox;
    auto* text = new QLabel("This text is far too long for one line of a form, so it goes on in the next one, and on.");
    auto* hint = instructions("Instructions - enter the name and the telephone number and then click OK to go on.");
    auto* label = new QLabel("R && D:");
    auto* box = group(
        "Address", fieldColumns({{{"Name:", name}, {label, row({new QLabel("from"), zip})}}, {{"Phone:", phone}}}));
    screen.setLayout(column({hint, box, gap(10), row({stretch(), text}), stretch(2)}));
    text->hide();
    screen.resize(500, 300);
    Shown(&screen);
    EXPECT_LT(name->x(), zip->x());
    EXPECT_EQ(name->y(), phone->y());
    EXPECT_EQ(label->buddy(), zip);
    EXPECT_EQ(zip->accessibleName(), "R & D");
    SetLabelOf(label, text);
    EXPECT_EQ(text->accessibleName(), "") << "what it shows is heard";
    EXPECT_GT(phone->x(), name->geometry().right() + 12);
    EXPECT_GT(name->width(), 120);
    EXPECT_GT(hint->height(), hint->fontMetrics().lineSpacing() * 2 - 4) << "the instructions wrap";
    EXPECT_EQ(qobject_cast<QGroupBox*>(box)->title(), "Address");
}

TEST(Layouts, WhatTakesTheFocusIsScrolledIntoView)
{
    auto* content = new QWidget;
    content->setMinimumSize(900, 900);
    auto* first = new TextBox(content);
    auto* last = new TextBox(content);
    last->setGeometry(700, 800, 150, 24);
    const std::unique_ptr<QScrollArea> area(scrolling(content));
    area->resize(300, 200);
    Shown(area.get());
    first->setFocus();
    last->setFocus();
    EXPECT_TRUE(area->viewport()->rect().contains(QRect(last->mapTo(area->viewport(), QPoint()), last->size())));
}

} // namespace
