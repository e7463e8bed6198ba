#include "album.h"

#include "support/reading_check.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int CaptionHeight = 26;

QString WindowFolder()
{
    return QStringLiteral("windows");
}

/// How near to the eye a window is: menus cover dialogs, dialogs cover the window that works, that one the others.
int Nearness(const QWidget* window)
{
    if (window->windowType() == Qt::Popup)
        return 3;
    if (window->isModal())
        return 2;
    return window->isActiveWindow() ? 1 : 0;
}

bool IsOwnedBy(const QWidget* window, const QWidget* owner)
{
    for (const QWidget* up = window->parentWidget(); up; up = up->parentWidget())
        if (up->window() == owner)
            return true;
    return false;
}

/// From the farthest to the nearest.
QList<QWidget*> VisibleWindows()
{
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            windows << window;
    std::sort(windows.begin(), windows.end(), [](const QWidget* one, const QWidget* other) {
        if (Nearness(one) != Nearness(other))
            return Nearness(one) < Nearness(other);
        return IsOwnedBy(other, one);
    });
    return windows;
}

bool HasFrame(const QWidget& window)
{
    return window.windowType() == Qt::Dialog && !(window.windowFlags() & Qt::FramelessWindowHint);
}

void PaintWindow(QPainter& painter, QWidget& window, QPoint corner)
{
    const QRect place(corner, window.size());
    painter.drawPixmap(place.topLeft(), window.grab());
    if (HasFrame(window)) {
        const QRect caption(place.left(), place.top() - CaptionHeight, place.width(), CaptionHeight);
        painter.fillRect(caption, QColor(58, 74, 96));
        painter.setPen(Qt::white);
        painter.drawText(caption.adjusted(8, 0, -8, 0), Qt::AlignVCenter, window.windowTitle());
    }
    painter.setPen(QColor(58, 74, 96));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

QString CaptionOf(const QString& name)
{
    static const QRegularExpression words(QStringLiteral("^[a-z0-9]+(-[a-z0-9]+)*$"));
    if (!words.match(name).hasMatch())
        throw std::runtime_error("a picture's name is made of words with hyphens, not " + name.toStdString());
    QString caption = name;
    caption.replace(QLatin1Char('-'), QLatin1Char(' '));
    caption[0] = caption[0].toUpper();
    return caption;
}

constexpr auto IndexHead = R"(<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<title>Tavrin Inventory, a tour</title>
<style>
body { font-family: sans-serif; margin: 2em; background: #f4f5f7; color: #222 }
figure { display: inline-block; margin: 0 1.5em 1.5em 0; vertical-align: top }
img { width: 30em; border: 1px solid #889 }
figcaption { margin-top: 0.3em }
</style>
<h1>Tavrin Inventory, a tour</h1>
)";

} // namespace

Album::Album(const QString& folder, const QString& sharedKeys)
    : m_folder(QFileInfo(folder).absoluteFilePath())
    , m_sharedKeys(sharedKeys)
{
    if (!QDir().mkpath(folder))
        throw std::runtime_error("cannot write to " + folder.toStdString());
}

void Album::Chapter(const char* heading)
{
    m_index << QStringLiteral("<h2>%1</h2>").arg(QString::fromUtf8(heading).toHtmlEscaped());
}

void Album::Take(const char* name)
{
    const QString caption = CaptionOf(QLatin1String(name));
    QApplication::processEvents();
    const QScreen* screen = QApplication::primaryScreen();
    QPixmap picture(screen->size() * screen->devicePixelRatio());
    picture.setDevicePixelRatio(screen->devicePixelRatio());
    picture.fill(QColor(120, 130, 140));
    QPainter painter(&picture);
    for (QWidget* window : VisibleWindows()) {
        PaintWindow(painter, *window, window->mapToGlobal(QPoint()));
        CheckReading(window, m_sharedKeys);
    }
    painter.end();
    const QString file = QStringLiteral("%1-%2.png").arg(++m_number, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
    if (!picture.save(QDir(m_folder).filePath(file)))
        throw std::runtime_error("cannot write " + file.toStdString());
    if (QDir(m_folder).exists(WindowFolder()))
        KeepWindow(QLatin1String(name), *VisibleWindows().constLast());
    m_index << QStringLiteral(
        R"(<figure><a href="%1"><img src="%1" alt="%2"></a><figcaption>%3. %2</figcaption></figure>)")
                   .arg(file, caption)
                   .arg(m_number);
}

void Album::KeepWindow(const QString& name, QWidget& window) const
{
    constexpr int WidestPicture = 660;
    const int caption = HasFrame(window) ? CaptionHeight : 0;
    QImage picture(window.width(), window.height() + caption, QImage::Format_RGB32);
    QPainter painter(&picture);
    PaintWindow(painter, window, {0, caption});
    painter.end();
    if (picture.width() > WidestPicture)
        picture = picture.scaledToWidth(WidestPicture, Qt::SmoothTransformation);
    // With a palette of its own it takes a third of the bytes.
    picture = picture.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
    constexpr int Smallest = 0;
    const QString file =
        m_folder + QLatin1Char('/') + WindowFolder() + QLatin1Char('/') + name + QStringLiteral(".png");
    if (!picture.save(file, "PNG", Smallest))
        throw std::runtime_error("cannot write " + file.toStdString());
}

void Album::WriteIndex() const
{
    QFile index(QDir(m_folder).filePath(QStringLiteral("index.html")));
    const QByteArray page = IndexHead + m_index.join(QLatin1Char('\n')).toUtf8() + "\n</html>\n";
    if (!index.open(QFile::WriteOnly) || index.write(page) != page.size() || !index.flush())
        throw std::runtime_error("cannot write " + index.fileName().toStdString());
}
