#include "paper/report_band.h"

#include "base/dates.h"
#include "base/numbers.h"

#include <algorithm>

namespace {
/// A control on its way onto the page.
struct Piece {
    const ReportControl* control;
    ReportTextBlock block;
    qreal left, width;
    qreal top, height; ///< as they come out
};

bool IsText(const ReportControl& control)
{
    return control.kind != ReportControlKind::Image && control.kind != ReportControlKind::Line;
}

// A text that keeps to one line may still be set in a font that is taller than its control.
bool ChangesHeight(const ReportControl& control, ReportFonts& fonts)
{
    return control.overflow == ReportOverflow::Wrap || control.collapses
        || fonts.At(control.font).LineHeight() > control.height;
}

QString FieldText(const ReportControl& control, int ordinal, const ReportBandContext& context)
{
    if (control.member == ReportMember::Parent)
        return ReportValueText(context.report.rows->parents.At(context.parentRow, ordinal), control.format);
    return context.own ? ReportValueText(context.own->At(context.ownRow, ordinal), control.format) : QString();
}

QString TextOf(const ReportControl& control, int ordinal, const ReportBandContext& context)
{
    switch (control.kind) {
    case ReportControlKind::Label:
        return control.caption;
    case ReportControlKind::Field:
        return FieldText(control, ordinal, context);
    case ReportControlKind::PageNumber:
        return context.pageNumber;
    default:
        return {};
    }
}

Piece MakePiece(const ReportControl& control, int ordinal, const ReportBandContext& context, BandPurpose purpose)
{
    Piece piece{&control, {}, control.left * context.spread, control.width * context.spread, qreal(control.top),
        qreal(control.height)};
    if (!control.visible && control.vanishes)
        piece.height = 0;
    if (!control.visible || !IsText(control))
        return piece;
    if (purpose == BandPurpose::Height && !ChangesHeight(control, context.fonts))
        return piece;
    piece.block = FitText(TextOf(control, ordinal, context), control, piece.width, context.fonts);
    const qreal needed = static_cast<qreal>(piece.block.lines.size()) * piece.block.typeface->LineHeight();
    if (piece.block.lines.isEmpty() && control.collapses)
        piece.height = 0;
    else
        piece.height = std::max(piece.height, needed);
    return piece;
}

bool StandsOver(const Piece& above, const Piece& below)
{
    return above.control->top + above.control->height <= below.control->top && above.left < below.left + below.width
        && below.left < above.left + above.width;
}

// Each control keeps its distance from the lowest of those over it, so that what did not overlap in the design does not
// overlap now.
void MoveByHeights(std::vector<Piece>& pieces)
{
    std::vector<Piece*> downwards;
    downwards.reserve(pieces.size());
    for (Piece& piece : pieces)
        downwards.push_back(&piece);
    std::ranges::stable_sort(downwards, {}, [](const Piece* piece) { return piece->control->top; });
    for (Piece* piece : downwards) {
        qreal bottom = 0;
        qreal designed = 0;
        for (const Piece* above : downwards) {
            if (!StandsOver(*above, *piece))
                continue;
            bottom = std::max(bottom, above->top + above->height);
            designed = std::max<qreal>(designed, above->control->top + above->control->height);
        }
        piece->top = piece->control->top + bottom - designed;
    }
}

qreal HeightOf(const std::vector<Piece>& pieces, const ReportSection& section)
{
    qreal designed = 0;
    qreal bottom = 0;
    for (const Piece& piece : pieces) {
        designed = std::max<qreal>(designed, piece.control->top + piece.control->height);
        bottom = std::max(bottom, piece.top + piece.height);
    }
    return bottom + section.height - designed;
}

qreal LineLeft(const Piece& piece, const QString& line)
{
    if (piece.control->alignment & Qt::AlignLeft)
        return piece.left;
    const qreal space = piece.width - piece.block.typeface->Advance(line);
    return piece.left + (piece.control->alignment & Qt::AlignRight ? space : space / 2);
}

ReportItem ItemOf(const Piece& piece, const ReportSection& section)
{
    ReportItem item{
        &section, piece.control, QRectF(piece.left, piece.top, piece.width, piece.height), piece.block.typeface, {}};
    qreal y = piece.top;
    for (const QString& line : piece.block.lines) {
        item.lines.append({line, QPointF(LineLeft(piece, line), y + piece.block.typeface->metrics.ascent())});
        y += piece.block.typeface->LineHeight();
    }
    return item;
}

bool HasContent(const Piece& piece)
{
    if (!piece.control->visible)
        return false;
    if (piece.control->kind == ReportControlKind::Image)
        return !piece.control->picture.isNull();
    return piece.control->kind == ReportControlKind::Line || !piece.block.lines.isEmpty();
}
} // namespace

QString ReportValueText(const ReportValue& value, const QString& mask)
{
    // An amount looks the same whether it was stored or calculated, in currencies without cents too.
    if (const auto* number = std::get_if<double>(&value); number && mask == QLatin1String("Currency"))
        return FormatCurrency(*number);
    if (const auto* number = std::get_if<double>(&value))
        return mask.isEmpty() ? CStr(*number) : FormatNumber(*number, mask);
    if (const auto* amount = std::get_if<Currency>(&value))
        return mask.isEmpty() || mask == QLatin1String("Currency") ? FormatCurrency(*amount)
                                                                   : FormatNumber(amount->ToDouble(), mask);
    if (const auto* date = std::get_if<QDateTime>(&value))
        return mask.isEmpty() ? ShortDate(*date) : FormatDate(*date, mask);
    if (const auto* text = std::get_if<QString>(&value))
        return mask.isEmpty() ? *text : FormatNumber(*text, mask);
    return {};
}

ReportBand LayOutBand(const ReportSection& section, const ReportBandContext& context, BandPurpose purpose)
{
    std::vector<Piece> pieces;
    pieces.reserve(section.controls.size());
    bool changed = false;
    for (size_t i = 0; i < section.controls.size(); ++i) {
        pieces.push_back(MakePiece(section.controls[i], context.ordinals[i], context, purpose));
        changed |= pieces.back().height != section.controls[i].height;
    }
    ReportBand band;
    band.height = section.height;
    if (changed) {
        MoveByHeights(pieces);
        band.height = HeightOf(pieces, section);
    }
    if (purpose == BandPurpose::Items)
        for (const Piece& piece : pieces)
            if (HasContent(piece))
                band.items.push_back(ItemOf(piece, section));
    return band;
}
