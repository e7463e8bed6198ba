#pragma once

#include "paper/report_band.h"

#include <QCoreApplication>
#include <QSizeF>

#include <array>
#include <optional>
#include <vector>

class QPainter;

/// One sheet: the items on it, from the corner of the space between the margins.
struct ReportPage {
    std::vector<ReportItem> items;
};

/// Breaks a report into pages, each when it is asked for. A page is laid out in twips with device-independent fonts, so
/// that preview, printer and PDF show the same.
class ReportLayout {
    Q_DECLARE_TR_FUNCTIONS(ReportLayout)
public:
    ReportLayout(Report report, ReportPaper paper);
    ReportLayout(const ReportLayout&) = delete;
    ReportLayout& operator=(const ReportLayout&) = delete;

    const Report& Design() const { return m_report; }
    ReportPaper Paper() const { return m_paper; }
    /// Starts over on other paper, or with other margins.
    void SetPaper(ReportPaper paper, const ReportMargins& margins);

    /// Pages count from 0; the first always exists. Lays out as far as needed.
    bool HasPage(int index);
    ReportPage Page(int index);

    /// Breaks `most` pages more; true when the count is known then.
    bool CountOn(int most);
    /// Nothing while pages remain to be broken.
    std::optional<int> KnownPageCount() const;
    int PageCount();

    /// Paints a page with the painter's unit being a twip and its origin the corner of the sheet.
    void Paint(QPainter& painter, const ReportPage& page) const;

private:
    enum class Step { ReportHeader, GroupHeader, Detail, GroupFooter, ReportFooter, End };
    /// What comes next.
    struct Cursor {
        Step step = Step::ReportHeader;
        int parent = 0;
        int child = 0; ///< in a report without groups the row

        bool operator==(const Cursor&) const = default;
    };
    class PageBuilder;

    void Start();
    int SpaceWidth() const;
    QSizeF Space() const;
    int DetailCountEnd(int parent) const;
    Cursor AtGroup(int parent) const;
    Cursor After(Cursor cursor) const;
    static ReportSectionKind SectionAt(Step step);
    bool IsInsideGroup(const Cursor& cursor) const;
    ReportBand Band(ReportSectionKind kind, const Cursor& cursor, const QString& pageNumber, BandPurpose purpose);
    ReportBand RepeatedTitles(const Cursor& cursor, BandPurpose purpose);
    QString PageNumberText(int index);
    qreal BodyEnd() const;
    qreal HeightKeptBelow(const Cursor& cursor);
    /// What stands at the top of a page that starts at `cursor`; returns what comes next.
    Cursor AddTop(PageBuilder& page, Cursor cursor, BandPurpose purpose);
    /// The one place where pages are broken: every output shows a page from its start to the next page's.
    Cursor EndOfPage(const Cursor& start);
    ReportPage Compose(int index);

    Report m_report;
    ReportPaper m_paper;
    ReportFonts m_fonts;
    std::array<std::vector<int>, 7> m_ordinals;
    double m_scale = 1; ///< below 1 when the paper is too narrow for the design
    double m_spread = 1;
    std::vector<Cursor> m_starts; ///< of the pages broken so far and of the next
};
