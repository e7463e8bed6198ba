#include "paper/report_fonts.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double TwipsAPoint = 20;
constexpr double SmallestPoints = 1;
/// What is shrunk below this could not be read; the longest amounts are above it.
constexpr double SmallestShrunk = 4;
constexpr double LargestPoints = 72;
/// No line of a page holds more; what is longer is cut before it is measured.
constexpr int LongestParagraph = 4000;

QFont MakeFont(const QString& family, const ReportFont& font)
{
    QFont made;
    made.setFamilies({family, QStringLiteral("Liberation Sans"), QStringLiteral("Helvetica"),
        QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    made.setStyleHint(QFont::SansSerif);
    made.setBold(font.bold);
    // Unhinted and without ligatures or kerning, widths do not depend on the device and add up letter by letter.
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setKerning(false);
    const double points = std::clamp(font.points, SmallestPoints, LargestPoints);
    made.setPixelSize(static_cast<int>(std::lround(points * TwipsAPoint)));
    return made;
}

QStringList Paragraphs(const QString& text, int most)
{
    QStringList paragraphs;
    qsizetype start = 0;
    while (start < text.size() && paragraphs.size() < most) {
        qsizetype end = text.indexOf(u'\n', start);
        if (end < 0)
            end = text.size();
        qsizetype length = end - start;
        if (length > 0 && text[end - 1] == u'\r')
            --length;
        paragraphs.append(text.mid(start, std::min<qsizetype>(length, LongestParagraph)));
        start = end + 1;
    }
    return paragraphs;
}

// The character as the face can show it: itself, or a compatible form such as a plain yen sign for one of full width,
// or nothing.
QString Shown(char32_t character, const ReportTypeface& face)
{
    QString text = QString::fromUcs4(&character, 1);
    if (face.Has(character))
        return text;
    const QString compatible = text.normalized(QString::NormalizationForm_KC);
    const QList<uint> characters = compatible.toUcs4();
    const bool isShown =
        compatible != text && std::ranges::all_of(characters, [&face](char32_t each) { return face.Has(each); });
    return isShown ? compatible : QString();
}

// Control characters have no place on paper, and what no font has would print as a black bar.
QString OneLine(const QString& text, const ReportTypeface& face)
{
    QString line;
    bool isMissing = false;
    for (const char32_t character : text.left(LongestParagraph).toUcs4()) {
        if (isMissing && QChar::isMark(character))
            continue;
        if (QChar::category(character) == QChar::Other_Control) {
            line += u' ';
            continue;
        }
        const QString shown = Shown(character, face);
        isMissing = shown.isEmpty();
        line += isMissing ? QStringLiteral("?") : shown;
    }
    return line;
}

// Where a script cannot be written, boxes stand in for its letters: glyph 1 of a font that comes from no file.
bool IsMissing(const QGlyphRun& run)
{
    const QList<quint32> glyphs = run.glyphIndexes();
    return glyphs.contains(0) || (glyphs.contains(1) && run.rawFont().fontTable("head").isEmpty());
}

// A font may have a letter and yet lack the rules to write its script; only the shaped text tells.
bool CanShape(char32_t character, const QFont& font)
{
    QTextLayout layout(QString::fromUcs4(&character, 1), font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return std::ranges::none_of(layout.glyphRuns(), IsMissing);
}

void WrapParagraph(const QString& paragraph, qreal width, int most, const ReportTypeface& face, QStringList& lines)
{
    if (face.SurelyFits(paragraph, width)) {
        lines.append(paragraph);
        return;
    }
    QTextLayout layout(paragraph, face.font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (int count = 1;; ++count) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        const QString rest = paragraph.mid(line.textStart());
        if (count == most || line.textLength() == 0) {
            lines.append(face.metrics.elidedText(rest, Qt::ElideRight, width));
            break;
        }
        const QString shown = rest.left(line.textLength()).trimmed();
        // Blanks at the end take no room, but they are not at the end where the last of them bears an accent.
        lines.append(face.Advance(shown) > width + 1 ? face.metrics.elidedText(shown, Qt::ElideRight, width) : shown);
    }
    layout.endLayout();
}

ReportTextBlock Wrapped(const QString& text, const ReportControl& control, qreal width, const ReportTypeface& face)
{
    ReportTextBlock block{{}, &face};
    for (const QString& paragraph : Paragraphs(text, control.totalLines + 1)) {
        const int left = control.totalLines - static_cast<int>(block.lines.size());
        if (left <= 0) {
            QString& last = block.lines.back();
            last = face.metrics.elidedText(last + QChar(0x2026), Qt::ElideRight, width);
            break;
        }
        WrapParagraph(OneLine(paragraph, face), width, std::min(left, control.paragraphLines), face, block.lines);
    }
    return block;
}

ReportTextBlock Shrunk(const QString& text, const ReportControl& control, qreal width, ReportFonts& fonts)
{
    const ReportTypeface* face = &fonts.At(control.font);
    const qreal advance = face->Advance(text);
    if (advance <= width)
        return {{text}, face};
    // Half points keep the number of fonts small.
    const double points = std::floor(2 * std::min(control.font.points, LargestPoints) * width / advance) / 2;
    face = &fonts.At({std::max(points, SmallestShrunk), control.font.bold});
    return {{face->metrics.elidedText(text, Qt::ElideRight, width)}, face};
}
} // namespace

ReportTypeface::ReportTypeface(const QString& family, const ReportFont& reportFont)
    : key(reportFont)
    , font(MakeFont(family, reportFont))
    , metrics(font)
    , m_rawFont(QRawFont::fromFont(font))
{
    m_advances.fill(-1);
    for (size_t code = ' '; code < m_advances.size() - 1; ++code) {
        const QChar character{char16_t(code)};
        const QList<quint32> glyphs = m_rawFont.glyphIndexesForString(QString(character));
        if (glyphs.size() != 1 || glyphs[0] == 0)
            continue;
        m_glyphs[code] = glyphs[0];
        m_advances[code] = static_cast<float>(metrics.horizontalAdvance(character));
    }
}

std::optional<qreal> ReportTypeface::PlainAdvance(QStringView text, qreal most) const
{
    float sum = 0;
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code >= m_advances.size() || m_advances[code] < 0)
            return {};
        sum += m_advances[code];
        if (sum > most)
            return {};
    }
    return sum;
}

bool ReportTypeface::Has(char32_t character) const
{
    if (character < m_advances.size())
        return true;
    const auto known = m_has.constFind(character);
    if (known != m_has.constEnd())
        return *known;
    // Blanks, accents and joiners are part of what stands beside them.
    const QChar::Category category = QChar::category(character);
    const bool isPart = QChar::isSpace(character) || QChar::isMark(character) || category == QChar::Other_Format
        || category == QChar::Other_Control;
    return *m_has.insert(character, isPart || CanShape(character, font));
}

bool ReportTypeface::SurelyFits(QStringView text, qreal width) const
{
    return PlainAdvance(text, width).has_value();
}

qreal ReportTypeface::Advance(const QString& text) const
{
    const std::optional<qreal> plain = PlainAdvance(text, std::numeric_limits<float>::max());
    return plain ? *plain : metrics.horizontalAdvance(text);
}

ReportTextPainter::ReportTextPainter(QPainter& painter)
    : m_painter(painter)
{
}

ReportTextPainter::~ReportTextPainter()
{
    Flush();
}

void ReportTextPainter::Draw(const ReportTypeface& typeface, QPointF baseline, const QString& text)
{
    if (&typeface != m_typeface || baseline.y() != m_baseline)
        Flush();
    if (!typeface.SurelyFits(text, std::numeric_limits<float>::max())) {
        m_painter.setFont(typeface.font);
        m_painter.drawText(baseline, text);
        return;
    }
    m_typeface = &typeface;
    m_baseline = baseline.y();
    for (const QChar character : text) {
        m_glyphs.append(typeface.m_glyphs[character.unicode()]);
        m_places.append(baseline);
        baseline.rx() += typeface.m_advances[character.unicode()];
    }
}

void ReportTextPainter::Flush()
{
    if (m_glyphs.isEmpty())
        return;
    QGlyphRun run;
    run.setRawFont(m_typeface->m_rawFont);
    run.setRawData(m_glyphs.constData(), m_places.constData(), static_cast<int>(m_glyphs.size()));
    m_painter.drawGlyphRun(QPointF(), run);
    m_glyphs.clear();
    m_places.clear();
}

ReportFonts::ReportFonts(const QString& family)
    : m_family(family)
{
}

const ReportTypeface& ReportFonts::At(const ReportFont& font)
{
    for (const auto& typeface : m_typefaces)
        if (typeface->key.points == font.points && typeface->key.bold == font.bold)
            return *typeface;
    m_typefaces.push_back(std::make_unique<ReportTypeface>(m_family, font));
    return *m_typefaces.back();
}

ReportTextBlock FitText(const QString& text, const ReportControl& control, qreal width, ReportFonts& fonts)
{
    const ReportTypeface& face = fonts.At(control.font);
    if (text.isEmpty())
        return {{}, &face};
    if (face.SurelyFits(text, width))
        return {{text}, &face};
    switch (control.overflow) {
    case ReportOverflow::Wrap:
        return Wrapped(text, control, width, face);
    case ReportOverflow::Shrink:
        return Shrunk(OneLine(text, face), control, width, fonts);
    case ReportOverflow::Shorten:
        break;
    }
    return {{face.metrics.elidedText(OneLine(text, face), Qt::ElideRight, width)}, &face};
}
