#pragma once

#include "paper/report_design.h"
#include "paper/report_fonts.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

/// A line of text on the page.
struct ReportLine {
    QString text;
    QPointF baseline;
};

/// A control as it stands on a page.
struct ReportItem {
    const ReportSection* section;
    const ReportControl* control;
    QRectF place;
    const ReportTypeface* typeface; ///< of a text
    QList<ReportLine> lines;
};

/// A section laid out for one row.
struct ReportBand {
    qreal height = 0;
    std::vector<ReportItem> items;
};

/// What a section is laid out with.
struct ReportBandContext {
    const Report& report;
    ReportFonts& fonts;
    qreal spread; ///< by which lefts and widths grow over the design's
    const std::vector<int>& ordinals; ///< of the fields of the section's controls
    const ReportTable* own; ///< null where there is no row
    int ownRow;
    int parentRow;
    QString pageNumber;
};

enum class BandPurpose { Height, Items };

/// The text of a value by a mask: "" for Null; without a mask numbers are plain, amounts currency, dates short.
QString ReportValueText(const ReportValue& value, const QString& mask);

/// Lays a section out from (0, 0): wraps texts, pushes down what stands below those that grew and pulls up what stands
/// below those that collapsed. For its height alone the items stay empty.
ReportBand LayOutBand(const ReportSection& section, const ReportBandContext& context, BandPurpose purpose);
