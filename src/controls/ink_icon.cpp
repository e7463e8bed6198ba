#include "controls/ink_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QToolButton>

namespace {

class InkEngine : public QIconEngine {
public:
    explicit InkEngine(const QIcon& icon)
        : m_icon(icon)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, Inked(rect.size(), ratio, mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Inked(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_icon.actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new InkEngine(m_icon); }

private:
    QPixmap Inked(const QSize& size, qreal ratio, QIcon::Mode mode, QIcon::State state) const
    {
        const QPalette palette = QApplication::palette();
        const QColor ink =
            palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        if (ink.lightness() <= palette.color(QPalette::Button).lightness())
            return m_icon.pixmap(size, ratio, mode, state);
        QPixmap picture = m_icon.pixmap(size, ratio, QIcon::Normal, state);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), ink);
        return picture;
    }

    QIcon m_icon;
};

} // namespace

QIcon InkIcon(const QIcon& icon)
{
    return QIcon(new InkEngine(icon));
}

void InkExtensionButton(QWidget* bar)
{
    for (const char* name : {"qt_menubar_ext_button", "qt_toolbar_ext_button"})
        if (auto* button = bar->findChild<QToolButton*>(QLatin1String(name), Qt::FindDirectChildrenOnly))
            button->setIcon(InkIcon(button->icon()));
}
