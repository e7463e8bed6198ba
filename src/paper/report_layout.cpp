#include "paper/report_layout.h"

#include "base/sign_of_life.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace {
constexpr qreal RuleWidth = 10;

const ReportSectionKind AllSections[] = {ReportSectionKind::ReportHeader, ReportSectionKind::PageHeader,
    ReportSectionKind::GroupHeader, ReportSectionKind::Detail, ReportSectionKind::GroupFooter,
    ReportSectionKind::PageFooter, ReportSectionKind::ReportFooter};

void PaintPicture(QPainter& painter, const ReportItem& item)
{
    const QSizeF size = QSizeF(item.control->picture.size()).scaled(item.place.size(), Qt::KeepAspectRatio);
    // The printing engines turn opaque pictures into JPEGs, which smear the edges of a drawing, unless told not to.
    painter.setRenderHints(QPainter::LosslessImageRendering | QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(item.place.topLeft(), size), item.control->picture);
}

// Thinner than a pixel a rule would fade or vanish; a pen without width is a pixel wide however small the page is
// shown.
void PaintRule(QPainter& painter, const QRectF& place)
{
    const bool isThin = RuleWidth * painter.deviceTransform().m22() < 1;
    painter.setPen(QPen(Qt::black, isThin ? 0 : RuleWidth, Qt::SolidLine, Qt::FlatCap));
    const qreal y = place.top() + RuleWidth / 2;
    painter.drawLine(QPointF(place.left(), y), QPointF(place.right(), y));
    painter.setPen(QPen(Qt::black));
}

void PaintItem(QPainter& painter, ReportTextPainter& texts, const ReportItem& item)
{
    if (item.control->kind == ReportControlKind::Image) {
        PaintPicture(painter, item);
    } else if (item.control->kind == ReportControlKind::Line) {
        PaintRule(painter, item.place);
    } else {
        for (const ReportLine& line : item.lines)
            texts.Draw(*item.typeface, line.baseline, line.text);
    }
}
} // namespace

/// Stacks bands on one page.
class ReportLayout::PageBuilder {
public:
    void Place(ReportBand band, qreal top)
    {
        for (ReportItem& item : band.items) {
            item.place.translate(0, top);
            for (ReportLine& line : item.lines)
                line.baseline.ry() += top;
            m_page.items.push_back(std::move(item));
        }
    }
    void Add(ReportBand band)
    {
        const qreal height = band.height;
        Place(std::move(band), m_bottom);
        m_bottom += height;
    }
    qreal Bottom() const { return m_bottom; }
    ReportPage Take() { return std::move(m_page); }

private:
    ReportPage m_page;
    qreal m_bottom = 0;
};

ReportLayout::ReportLayout(Report report, ReportPaper paper)
    : m_report(std::move(report))
    , m_paper(paper)
    , m_fonts(m_report.fontFamily)
{
    for (const ReportSectionKind kind : AllSections) {
        const bool ofChild = m_report.IsGrouped() && kind == ReportSectionKind::Detail;
        for (const ReportControl& control : m_report.Section(kind).controls) {
            const bool readsChild = ofChild && control.member == ReportMember::Own;
            const ReportTable& table = readsChild ? m_report.rows->children : m_report.rows->parents;
            m_ordinals[static_cast<size_t>(kind)].push_back(table.Field(control.field));
        }
    }
    Start();
}

void ReportLayout::SetPaper(ReportPaper paper, const ReportMargins& margins)
{
    const int before = SpaceWidth();
    m_paper = paper;
    m_report.margins = margins;
    if (m_report.widthFollowsPaper)
        m_report.width = std::max(m_report.width + SpaceWidth() - before, NarrowestSpace);
    Start();
}

int ReportLayout::SpaceWidth() const
{
    return std::max(m_paper.width - m_report.margins.left - m_report.margins.right, NarrowestSpace);
}

void ReportLayout::Start()
{
    const double width = std::min(m_report.width, SpaceWidth());
    m_scale = std::min(1.0, width / m_report.DesignWidth());
    m_spread = std::max(1.0, width / m_report.DesignWidth());
    m_starts = {Cursor()};
}

// In the design's own twips, which are smaller than the paper's when the page is shown smaller.
QSizeF ReportLayout::Space() const
{
    const ReportMargins& margins = m_report.margins;
    const int height = std::max(m_paper.height - margins.top - margins.bottom, NarrowestSpace);
    return QSizeF(m_report.DesignWidth() * m_spread, height / m_scale);
}

int ReportLayout::DetailCountEnd(int parent) const
{
    return m_report.IsGrouped() ? m_report.rows->LastChild(parent) : m_report.rows->parents.Count();
}

ReportLayout::Cursor ReportLayout::AtGroup(int parent) const
{
    if (!m_report.IsGrouped())
        return m_report.rows->parents.Count() > 0 ? Cursor{Step::Detail, 0, 0} : Cursor{Step::ReportFooter, 0, 0};
    if (parent < m_report.rows->parents.Count())
        return {Step::GroupHeader, parent, m_report.rows->FirstChild(parent)};
    return {Step::ReportFooter, parent, 0};
}

ReportLayout::Cursor ReportLayout::After(Cursor cursor) const
{
    switch (cursor.step) {
    case Step::ReportHeader:
        return AtGroup(0);
    case Step::GroupHeader:
        cursor.step = cursor.child < DetailCountEnd(cursor.parent) ? Step::Detail : Step::GroupFooter;
        return cursor;
    case Step::Detail:
        if (++cursor.child == DetailCountEnd(cursor.parent))
            cursor.step = m_report.IsGrouped() ? Step::GroupFooter : Step::ReportFooter;
        return cursor;
    case Step::GroupFooter:
        return AtGroup(cursor.parent + 1);
    default:
        return {Step::End, cursor.parent, cursor.child};
    }
}

ReportSectionKind ReportLayout::SectionAt(Step step)
{
    switch (step) {
    case Step::ReportHeader:
        return ReportSectionKind::ReportHeader;
    case Step::GroupHeader:
        return ReportSectionKind::GroupHeader;
    case Step::Detail:
        return ReportSectionKind::Detail;
    case Step::GroupFooter:
        return ReportSectionKind::GroupFooter;
    default:
        return ReportSectionKind::ReportFooter;
    }
}

bool ReportLayout::IsInsideGroup(const Cursor& cursor) const
{
    return m_report.IsGrouped() && cursor.step == Step::Detail;
}

ReportBand ReportLayout::Band(
    ReportSectionKind kind, const Cursor& cursor, const QString& pageNumber, BandPurpose purpose)
{
    const ReportSection& section = m_report.Section(kind);
    if (section.controls.empty())
        return {qreal(section.height), {}};
    const ReportRows& rows = *m_report.rows;
    const bool isDetail = kind == ReportSectionKind::Detail;
    const ReportTable* own = isDetail && m_report.IsGrouped() ? &rows.children : &rows.parents;
    const int row = isDetail ? cursor.child : cursor.parent;
    if (row >= own->Count())
        own = nullptr;
    const ReportBandContext context{
        m_report, m_fonts, m_spread, m_ordinals[static_cast<size_t>(kind)], own, row, cursor.parent, pageNumber};
    return LayOutBand(section, context, purpose);
}

ReportBand ReportLayout::RepeatedTitles(const Cursor& cursor, BandPurpose purpose)
{
    const ReportSection& header = m_report.Section(ReportSectionKind::GroupHeader);
    if (header.repeatedFrom < 0)
        return {};
    ReportBand band = Band(ReportSectionKind::GroupHeader, cursor, {}, purpose);
    std::erase_if(band.items, [&](const ReportItem& item) { return item.control->top < header.repeatedFrom; });
    band.height = header.height - header.repeatedFrom;
    if (!band.items.empty()) {
        const qreal shift = band.items.front().control->top - header.repeatedFrom - band.items.front().place.top();
        for (ReportItem& item : band.items) {
            item.place.translate(0, shift);
            for (ReportLine& line : item.lines)
                line.baseline.ry() += shift;
        }
    }
    return band;
}

QString ReportLayout::PageNumberText(int index)
{
    if (m_report.Section(ReportSectionKind::PageFooter).controls.empty() || PageCount() == 1)
        return {};
    return tr("Page %1 of %2").arg(index + 1).arg(PageCount());
}

qreal ReportLayout::BodyEnd() const
{
    return Space().height() - m_report.Section(ReportSectionKind::PageFooter).height;
}

// The totals of a group take its last line along to a new page.
qreal ReportLayout::HeightKeptBelow(const Cursor& cursor)
{
    const Cursor next = After(cursor);
    if (cursor.step != Step::Detail || next.step != Step::GroupFooter)
        return 0;
    return Band(ReportSectionKind::GroupFooter, next, {}, BandPurpose::Height).height;
}

ReportLayout::Cursor ReportLayout::AddTop(PageBuilder& page, Cursor cursor, BandPurpose purpose)
{
    if (cursor.step == Step::ReportHeader) {
        page.Add(Band(ReportSectionKind::ReportHeader, cursor, {}, purpose));
        cursor = After(cursor);
    }
    page.Add(Band(ReportSectionKind::PageHeader, cursor, {}, purpose));
    if (IsInsideGroup(cursor))
        page.Add(RepeatedTitles(cursor, purpose));
    return cursor;
}

// Every page takes at least one band, so that a band taller than the page ends too.
ReportLayout::Cursor ReportLayout::EndOfPage(const Cursor& start)
{
    SignOfLife();
    PageBuilder page;
    Cursor cursor = AddTop(page, start, BandPurpose::Height);
    for (bool empty = true; cursor.step != Step::End; cursor = After(cursor), empty = false) {
        ReportBand band = Band(SectionAt(cursor.step), cursor, {}, BandPurpose::Height);
        if (!empty && page.Bottom() + band.height + HeightKeptBelow(cursor) > BodyEnd())
            break;
        page.Add(std::move(band));
    }
    return cursor;
}

ReportPage ReportLayout::Compose(int index)
{
    SignOfLife();
    const auto page = static_cast<size_t>(index);
    PageBuilder builder;
    Cursor cursor = AddTop(builder, m_starts[page], BandPurpose::Items);
    for (; cursor != m_starts[page + 1]; cursor = After(cursor))
        builder.Add(Band(SectionAt(cursor.step), cursor, {}, BandPurpose::Items));
    // Behind the last band, where that is taller than the page.
    builder.Place(Band(ReportSectionKind::PageFooter, cursor, PageNumberText(index), BandPurpose::Items),
        std::max(BodyEnd(), builder.Bottom()));
    return builder.Take();
}

bool ReportLayout::HasPage(int index)
{
    while (static_cast<int>(m_starts.size()) <= index + 1 && !KnownPageCount())
        m_starts.push_back(EndOfPage(m_starts.back()));
    return index + 1 < static_cast<int>(m_starts.size());
}

ReportPage ReportLayout::Page(int index)
{
    HasPage(index);
    return Compose(index);
}

bool ReportLayout::CountOn(int most)
{
    HasPage(static_cast<int>(m_starts.size()) - 2 + most);
    return KnownPageCount().has_value();
}

std::optional<int> ReportLayout::KnownPageCount() const
{
    if (m_starts.back().step != Step::End)
        return {};
    return static_cast<int>(m_starts.size()) - 1;
}

int ReportLayout::PageCount()
{
    while (!CountOn(1000)) { }
    return *KnownPageCount();
}

void ReportLayout::Paint(QPainter& painter, const ReportPage& page) const
{
    painter.save();
    painter.translate(m_report.margins.left, m_report.margins.top);
    painter.scale(m_scale, m_scale);
    painter.setPen(QPen(Qt::black));
    {
        ReportTextPainter texts(painter);
        for (const ReportItem& item : page.items)
            PaintItem(painter, texts, item);
    }
    painter.restore();
}
