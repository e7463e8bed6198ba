#include "controls/readable_links.h"

#include <QApplication>
#include <QPalette>

#include <cstdlib>

void LetLinksBeRead()
{
    constexpr int LeastContrast = 80;
    QPalette palette = QApplication::palette();
    const auto color = [&palette](QPalette::ColorRole role) { return palette.color(role).rgb(); };
    const QRgb text = color(QPalette::Text);
    for (const QPalette::ColorRole role : {QPalette::Link, QPalette::LinkVisited}) {
        const QRgb link = color(role);
        if (std::abs(qGray(link) - qGray(color(QPalette::Base))) < LeastContrast)
            palette.setColor(role,
                QColor(
                    (qRed(link) + qRed(text)) / 2, (qGreen(link) + qGreen(text)) / 2, (qBlue(link) + qBlue(text)) / 2));
    }
    QApplication::setPalette(palette);
}
