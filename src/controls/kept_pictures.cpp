#include "controls/kept_pictures.h"

#include "controls/shared_style.h"

#include <QCache>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>

#include <cmath>

namespace {

constexpr int MostPixels = 1 << 18;

/// All that a picture depends on.
struct Picture {
    QSize size;
    double pixelRatio = 1;
    QStyle::State state;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    qint64 palette = 0;
    // Of a scroll bar only.
    QRect slider;
    Qt::Orientation orientation = Qt::Horizontal;
    QStyle::SubControls parts, activeParts;

    bool operator==(const Picture&) const = default;
};

size_t qHash(const Picture& picture, size_t seed)
{
    return qHashMulti(seed, picture.size.width(), picture.size.height(), picture.pixelRatio, int(picture.state),
        int(picture.direction), picture.palette, picture.slider.top(), picture.slider.left(), picture.slider.height(),
        picture.slider.width(), int(picture.orientation), int(picture.parts), int(picture.activeParts));
}

Picture PictureOf(const QStyleOption& option)
{
    return {option.rect.size(), 1, option.state, option.direction, option.palette.cacheKey(), {}, {}, {}, {}};
}

class KeptPictures : public QProxyStyle {
public:
    // Of other styles nobody knows what their pictures depend on.
    KeptPictures()
        : m_keeps(baseStyle()->inherits("QFusionStyle"))
    {
    }

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override
    {
        const auto draw = [&](QPainter* on) { QProxyStyle::drawPrimitive(element, option, on, widget); };
        if (element == PE_FrameLineEdit)
            Draw(PictureOf(*option), option->rect.topLeft(), painter, draw);
        else
            draw(painter);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override
    {
        const auto draw = [&](QPainter* on) { QProxyStyle::drawComplexControl(control, option, on, widget); };
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        // One that comes and goes is never the same.
        if (control != CC_ScrollBar || !bar || styleHint(SH_ScrollBar_Transient, option, widget, nullptr))
            return draw(painter);
        Picture picture = PictureOf(*option);
        picture.slider = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
        picture.orientation = bar->orientation;
        picture.parts = bar->subControls;
        picture.activeParts = bar->activeSubControls;
        Draw(picture, option->rect.topLeft(), painter, draw);
    }

private:
    template <typename DrawOn>
    void Draw(Picture picture, QPoint place, QPainter* painter, const DrawOn& draw) const
    {
        picture.pixelRatio = painter->device()->devicePixelRatioF();
        const bool isOnPixels = painter->worldTransform().type() <= QTransform::TxTranslate
            && picture.pixelRatio == std::floor(picture.pixelRatio);
        if (!m_keeps || !isOnPixels || picture.size.isEmpty())
            return draw(painter);
        // Without the hint, which a scroll bar sets and pixel on pixel has no need of, it is a plain copy.
        const bool isSmooth = painter->testRenderHint(QPainter::SmoothPixmapTransform);
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
        painter->drawPixmap(place, Kept(picture, place, draw));
        painter->setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
    }

    template <typename DrawOn>
    QPixmap Kept(const Picture& picture, QPoint place, const DrawOn& draw) const
    {
        if (const QPixmap* kept = m_pictures.object(picture))
            return *kept;
        QPixmap pixmap(picture.size * picture.pixelRatio);
        pixmap.setDevicePixelRatio(picture.pixelRatio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.translate(-place);
        draw(&painter);
        painter.end();
        m_pictures.insert(picture, new QPixmap(pixmap), qsizetype(pixmap.width()) * pixmap.height());
        return pixmap;
    }

    mutable QCache<Picture, QPixmap> m_pictures{MostPixels};
    bool m_keeps;
};

} // namespace

QStyle* StyleWithKeptPictures()
{
    return SharedStyle<KeptPictures>();
}
