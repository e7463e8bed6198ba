#include "paper/report_design.h"

#include <QPageLayout>
#include <QPrinter>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {
constexpr int LineHeight = 230;
constexpr int RuleHeight = 15;

ReportControl Placed(ReportControlKind kind, const QString& name, int left, int top, int width, int height)
{
    ReportControl control;
    control.name = name;
    control.kind = kind;
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
    return control;
}
} // namespace

ReportControl& ReportControl::Wraps(int lines, int total)
{
    overflow = ReportOverflow::Wrap;
    paragraphLines = lines;
    totalLines = total;
    return *this;
}

ReportControl& ReportControl::Collapses()
{
    collapses = true;
    return *this;
}

ReportControl& ReportControl::Vanishes()
{
    vanishes = true;
    return *this;
}

ReportControl& ReportControl::RightAligned()
{
    alignment = Qt::AlignRight;
    overflow = ReportOverflow::Shrink;
    return *this;
}

ReportControl& ReportControl::Bold()
{
    font.bold = true;
    return *this;
}

ReportControl& ReportControl::Sized(double points)
{
    font.points = points;
    return *this;
}

ReportControl& ReportControl::Formatted(const QString& mask)
{
    format = mask;
    return *this;
}

ReportControl& ReportControl::OfParent()
{
    member = ReportMember::Parent;
    return *this;
}

ReportControl& ReportSection::Add(ReportControl control)
{
    controls.push_back(std::move(control));
    return controls.back();
}

ReportControl& ReportSection::AddLabel(const QString& controlName, const QString& caption, int left, int top, int width)
{
    ReportControl& label = Add(Placed(ReportControlKind::Label, controlName, left, top, width, LineHeight));
    label.caption = caption;
    return label;
}

ReportControl& ReportSection::AddField(const QString& controlName, const QString& field, int left, int top, int width)
{
    ReportControl& control = Add(Placed(ReportControlKind::Field, controlName, left, top, width, LineHeight));
    control.field = field;
    return control;
}

ReportControl& ReportSection::AddImage(const QString& controlName, int left, int top, int width, int imageHeight)
{
    return Add(Placed(ReportControlKind::Image, controlName, left, top, width, imageHeight));
}

ReportControl& ReportSection::AddLine(const QString& controlName, int left, int top, int width)
{
    return Add(Placed(ReportControlKind::Line, controlName, left, top, width, RuleHeight));
}

ReportControl& ReportSection::AddPageNumber(const QString& controlName, int left, int top, int width)
{
    return Add(Placed(ReportControlKind::PageNumber, controlName, left, top, width, LineHeight));
}

ReportPaper PaperOf(const QPrinter& printer)
{
    const QRectF sheet = printer.pageLayout().fullRect(QPageLayout::Millimeter);
    constexpr double TwipsAMillimetre = 1440 / 25.4;
    return {static_cast<int>(std::lround(sheet.width() * TwipsAMillimetre)),
        static_cast<int>(std::lround(sheet.height() * TwipsAMillimetre))};
}

Report::Report(const QString& reportTitle, int designWidth)
    : title(reportTitle)
    , width(designWidth)
    , m_designWidth(designWidth)
{
}

void Report::FillPaper(ReportPaper paper)
{
    width = std::max(paper.width - margins.left - margins.right, NarrowestSpace);
    widthFollowsPaper = true;
}

ReportControl& Report::Control(const QString& name)
{
    for (ReportSection& section : m_sections)
        for (ReportControl& control : section.controls)
            if (control.name == name)
                return control;
    throw std::logic_error("no report control " + name.toStdString());
}

QStringList Report::FieldsOf(bool ofParent) const
{
    QStringList fields;
    for (const ReportSection& section : m_sections) {
        const bool sectionOfChild = IsGrouped() && &section == &Section(ReportSectionKind::Detail);
        for (const ReportControl& control : section.controls) {
            const bool readsParent = !sectionOfChild || control.member == ReportMember::Parent;
            if (!control.field.isEmpty() && readsParent == ofParent && !fields.contains(control.field))
                fields.append(control.field);
        }
    }
    return fields;
}

QStringList Report::ParentFields() const
{
    return FieldsOf(true);
}

QStringList Report::ChildFields() const
{
    return FieldsOf(false);
}
