#pragma once

#include "paper/report_design.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QList>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>
#include <optional>
#include <vector>

/// A font measured in twips, the same for preview, printer and PDF: lines break alike on all three.
struct ReportTypeface {
    ReportTypeface(const QString& family, const ReportFont& reportFont);

    /// True when a plain Latin text is known to fit without shaping it; false may also mean "not known".
    bool SurelyFits(QStringView text, qreal width) const;
    qreal Advance(const QString& text) const;
    /// True when this font or one of those behind it can show the character.
    bool Has(char32_t character) const;
    qreal LineHeight() const { return 1.08 * (metrics.ascent() + metrics.descent()); }

    ReportFont key;
    QFont font;
    QFontMetricsF metrics;

private:
    friend class ReportTextPainter;

    /// The width of a text of plain characters that is at most `most` wide; nothing for any other.
    std::optional<qreal> PlainAdvance(QStringView text, qreal most) const;

    /// The widths of the plain Latin characters; below 0 for those that have to be shaped.
    std::array<float, 128> m_advances;
    std::array<quint32, 128> m_glyphs;
    QRawFont m_rawFont;
    mutable QHash<char32_t, bool> m_has;
};

/// Draws texts. Plain Latin texts on one baseline go to the painter together, as glyphs: shaping each text again and
/// starting a text object for each column would take three times as long.
class ReportTextPainter {
public:
    explicit ReportTextPainter(QPainter& painter);
    ~ReportTextPainter();
    ReportTextPainter(const ReportTextPainter&) = delete;
    ReportTextPainter& operator=(const ReportTextPainter&) = delete;

    void Draw(const ReportTypeface& typeface, QPointF baseline, const QString& text);

private:
    void Flush();

    QPainter& m_painter;
    const ReportTypeface* m_typeface = nullptr;
    qreal m_baseline = 0;
    QList<quint32> m_glyphs;
    QList<QPointF> m_places;
};

/// The fonts of one report, each made once. The named family comes first; a character that it lacks is taken from the
/// fonts that have it.
class ReportFonts {
public:
    explicit ReportFonts(const QString& family);
    const ReportTypeface& At(const ReportFont& font);

private:
    QString m_family;
    std::vector<std::unique_ptr<ReportTypeface>> m_typefaces;
};

/// A text brought into its control: its lines and the font they are set in.
struct ReportTextBlock {
    QStringList lines;
    const ReportTypeface* typeface = nullptr;
};

/// Breaks, shortens or shrinks `text` as the control tells, so that no line is wider than `width`.
ReportTextBlock FitText(const QString& text, const ReportControl& control, qreal width, ReportFonts& fonts);
