#pragma once

#include "paper/report_rows.h"

#include <QImage>
#include <QString>

#include <array>
#include <memory>
#include <vector>

class QPrinter;

/// The design of a banded report: sections with named controls, in twips (1/1440 inch). A caller takes a design,
/// changes captions, visibility, fonts, formats, margins or width, gives it rows, and shows it.

enum class ReportControlKind { Label, Field, Image, Line, PageNumber };

/// Which row a field reads: that of the section, or in a detail section the parent's.
enum class ReportMember { Own, Parent };

/// What becomes of a text that its control cannot hold: it is cut with an ellipsis, it wraps and pushes down what
/// stands below, or it is printed smaller. Amounts are never cut.
enum class ReportOverflow { Shorten, Wrap, Shrink };

struct ReportFont {
    double points = 9;
    bool bold = false;
};

struct ReportControl {
    QString name;
    ReportControlKind kind = ReportControlKind::Label;
    int left = 0, top = 0, width = 0, height = 0;

    QString caption; ///< of a label; lines end in LF or CR LF
    QString field; ///< of a field
    ReportMember member = ReportMember::Own;
    QString format; ///< of a field: a number or date mask
    QImage picture; ///< of an image: fitted into the control in its own shape

    ReportFont font;
    Qt::Alignment alignment = Qt::AlignLeft;
    ReportOverflow overflow = ReportOverflow::Shorten;
    int paragraphLines = 1; ///< lines that a paragraph may wrap into
    int totalLines = 1; ///< lines that the whole text may take
    bool collapses = false; ///< gives its height up when its text is empty
    bool visible = true; ///< an invisible control keeps its space,
    bool vanishes = false; ///< unless it vanishes

    /// Wraps each paragraph of its text into `lines` lines at most, and shows `total` lines in all.
    ReportControl& Wraps(int lines, int total);
    ReportControl& Collapses();
    /// Gives its height up when it is invisible.
    ReportControl& Vanishes();
    ReportControl& RightAligned();
    ReportControl& Bold();
    ReportControl& Sized(double points);
    ReportControl& Formatted(const QString& mask);
    ReportControl& OfParent();
};

struct ReportSection {
    QString name;
    int height = 0;
    std::vector<ReportControl> controls;
    /// Of a group header: what stands from here down is printed again at the top of a page on which the group's details
    /// go on; -1 for nothing.
    int repeatedFrom = -1;

    ReportControl& AddLabel(const QString& controlName, const QString& caption, int left, int top, int width);
    ReportControl& AddField(const QString& controlName, const QString& field, int left, int top, int width);
    ReportControl& AddImage(const QString& controlName, int left, int top, int width, int imageHeight);
    ReportControl& AddLine(const QString& controlName, int left, int top, int width);
    /// "Page 2 of 5"; empty in a document of one page.
    ReportControl& AddPageNumber(const QString& controlName, int left, int top, int width);
    ReportControl& Add(ReportControl control);
};

enum class ReportSectionKind { ReportHeader, PageHeader, GroupHeader, Detail, GroupFooter, PageFooter, ReportFooter };

struct ReportMargins {
    int left = 1440, top = 1440, right = 1440, bottom = 1440;
};

/// What text has at least, in either direction and in twips: paper may be a label, and margins may leave nothing of it.
inline constexpr int NarrowestSpace = 1440;

/// A sheet, in twips.
struct ReportPaper {
    int width = 11906;
    int height = 16838;

    bool operator==(const ReportPaper&) const = default;
};
ReportPaper PaperOf(const QPrinter& printer);

class Report {
public:
    /// `designWidth` is that between the margins.
    Report(const QString& reportTitle, int designWidth);

    QString title; ///< of the preview window, the print job and the PDF
    QString fontFamily = QStringLiteral("Arial");
    ReportMargins margins;
    /// Columns spread over a width above the design's; a page too narrow for the design shows all of it smaller.
    int width;
    /// Whether `width` grows and shrinks with the paper when that is changed under the preview.
    bool widthFollowsPaper = false;
    std::shared_ptr<const ReportRows> rows = std::make_shared<ReportRows>();

    /// Takes the width that the margins leave of `paper`, from now on; at least NarrowestSpace.
    void FillPaper(ReportPaper paper);
    int DesignWidth() const { return m_designWidth; }
    ReportSection& Section(ReportSectionKind kind) { return m_sections[static_cast<size_t>(kind)]; }
    const ReportSection& Section(ReportSectionKind kind) const { return m_sections[static_cast<size_t>(kind)]; }

    /// The control of this name in any section. An unknown name is a programming error and throws std::logic_error.
    ReportControl& Control(const QString& name);

    /// True when the report has parent and child rows: its details are the child rows.
    bool IsGrouped() const { return !Section(ReportSectionKind::GroupHeader).name.isEmpty(); }
    /// The fields that its controls read from the parent rows (or the only ones), and from the child rows.
    QStringList ParentFields() const;
    QStringList ChildFields() const;

private:
    QStringList FieldsOf(bool ofParent) const;

    int m_designWidth;
    std::array<ReportSection, 7> m_sections;
};
