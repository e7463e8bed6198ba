#include "controls/kept_pictures.h"
#include "support/test.h"

#include <QScrollBar>

namespace {

/// The widest gap between two pixels: an edge blended twice may differ by a step or two.
int Difference(const QImage& a, const QImage& b)
{
    int most = a.size() == b.size() ? 0 : 255;
    for (int y = 0; most < 255 && y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            most = std::max({most, std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                std::abs(one.blue() - other.blue())});
        }
    return most;
}

/// As it is painted anew each time, as its picture is first taken, and as that is shown again, at another place.
void ExpectSamePictures(QWidget& widget, const char* state)
{
    const auto picture = [&](QStyle* style, QPoint place) {
        widget.setStyle(style);
        QImage image(widget.size() + QSize(40, 40), QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        widget.render(&image, place, {}, QWidget::DrawChildren);
        return image;
    };
    for (const QPoint place : {QPoint(0, 0), QPoint(0, 0), QPoint(13, 7)})
        EXPECT_LE(Difference(picture(QApplication::style(), place), picture(StyleWithKeptPictures(), place)), 3)
            << state << " at " << place.x();
}

TEST(KeptPictures, LookAsTheStylePaintsThem)
{
    QWidget window;
    auto* box = new TextBox(&window);
    Shown(&window);
    for (const int width : {90, 200}) {
        box->resize(width, 26);
        box->setFocus();
        ExpectSamePictures(*box, "focused");
        box->setEnabled(false);
        ExpectSamePictures(*box, "disabled");
        box->setEnabled(true);
    }
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        QScrollBar bar(orientation);
        bar.resize(orientation == Qt::Vertical ? QSize(16, 150) : QSize(150, 16));
        for (const int value : {0, 40, 99}) {
            bar.setValue(value);
            ExpectSamePictures(bar, "scrolled");
        }
        bar.setMaximum(1000);
        ExpectSamePictures(bar, "with a short slider");
        bar.setLayoutDirection(Qt::RightToLeft);
        ExpectSamePictures(bar, "right to left");
        bar.setPalette(QPalette(QColor(40, 44, 52)));
        ExpectSamePictures(bar, "dark");
    }
}

} // namespace
