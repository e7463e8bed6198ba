#include "chart/chart_scene.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QFontMetricsF>
#include <QLineF>
#include <QPolygonF>
#include <QTransform>

#include <cmath>

namespace {

using Values = std::vector<std::vector<std::optional<double>>>;
constexpr std::nullopt_t Gap = std::nullopt;

/// Rows of values, with the days of December as their labels.
ChartData Data(const Values& rows, const QString& dates = QStringLiteral("dd.MM.yyyy"))
{
    ChartData data;
    data.Resize(int(rows.size()), rows.empty() ? 0 : int(rows.front().size()));
    for (int row = 0; row < data.RowCount(); ++row) {
        data.SetRowLabel(row, QDate(2026, 12, 1).addDays(row).toString(dates));
        for (int column = 0; column < data.ColumnCount(); ++column)
            data.SetValue(row, column, rows[size_t(row)][size_t(column)]);
    }
    return data;
}

ChartScene Scene(const ChartData& data, ChartType type, QSizeF size = {900, 500}, bool rightToLeft = false)
{
    static const QFontMetricsF metrics{QFont(QStringLiteral("Liberation Sans"), 9)};
    ChartRequest request;
    request.type = type;
    request.size = size;
    request.rightToLeft = rightToLeft;
    request.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    request.ruler.lineHeight = metrics.height();
    request.ruler.width = [](const QString& text) { return metrics.horizontalAdvance(text); };
    request.ruler.elided = [](const QString& text, double width) {
        return metrics.elidedText(text, Qt::ElideRight, width);
    };
    return BuildScene(data, request);
}

bool Touch(const QPolygonF& a, const QPolygonF& b)
{
    return a.boundingRect().intersects(b.boundingRect()) && a.intersects(b);
}

/// A text's box as it is seen, turned.
QPolygonF Seen(const ChartText& text)
{
    QTransform turn;
    turn.translate(text.pivot.x(), text.pivot.y());
    turn.rotate(text.degrees);
    return turn.map(QPolygonF(text.box.translated(-text.pivot)));
}

int Count(const ChartScene& scene, FaceKind kind)
{
    return int(std::count_if(
        scene.shapes.faces.begin(), scene.shapes.faces.end(), [kind](const Face& face) { return face.kind == kind; }));
}

class EveryType : public testing::TestWithParam<ChartType> { };
INSTANTIATE_TEST_SUITE_P(ChartTypes, EveryType,
    testing::Values(VtChChartType3dBar, VtChChartType2dBar, VtChChartType3dLine, VtChChartType2dLine,
        VtChChartType3dArea, VtChChartType2dArea, VtChChartType3dStep, VtChChartType2dStep));

TEST_P(EveryType, LabelsNeverTouchAndStayInThePicture)
{
    const QString longDates = QStringLiteral("yyyy. MM. dd.");
    for (const bool rightToLeft : {false, true})
        for (const int rows : {1, 2, 12, 31})
            for (const double width : {200, 330, 481, 620, 900, 1600}) {
                SCOPED_TRACE(testing::Message() << rows << " rows, " << width << " wide");
                const ChartScene scene =
                    Scene(Data(Values(size_t(rows), {7.0}), longDates), GetParam(), {width, 320}, rightToLeft);
                int labels = 0;
                for (const ChartText& text : scene.texts) {
                    const QPolygonF box = Seen(text);
                    EXPECT_TRUE(QRectF(QPointF(), scene.size).contains(box.boundingRect())) << text.text.toStdString();
                    labels += text.role == TextRole::Category;
                    for (const ChartText& other : scene.texts)
                        EXPECT_TRUE(&other == &text || !Touch(box, Seen(other)))
                            << text.text.toStdString() << " and " << other.text.toStdString();
                }
                EXPECT_GE(labels, std::min(rows, 2));
            }
}

TEST_P(EveryType, HoldsAnyDataWithinThePicture)
{
    const Values none;
    for (const Values& values : {none, Values{{5.0, 3.0}}, Values{{4.0}, {4.0}, {4.0}}, Values{{0.0}, {0.0}},
             Values{{1e15}, {3e14}}, Values{{-1.7e308, 1.7e308}, {0.0, 1.0}}, Values{{1e-320}, {0.0}},
             Values{{Gap, -2.0}, {Gap, Gap}}, Values(1000, {3.0})})
        for (const QSizeF size : {QSizeF(400, 250), QSizeF(20, 15)}) {
            const ChartScene scene = Scene(Data(values), GetParam(), size);
            for (const Face& face : scene.shapes.faces)
                for (const QPointF& corner : face.outline) {
                    ASSERT_TRUE(std::isfinite(corner.x()) && std::isfinite(corner.y()));
                    EXPECT_TRUE(scene.room.front.united(scene.room.front.translated(scene.room.depth))
                                    .adjusted(-1, -1, 1, 1)
                                    .contains(corner));
                }
        }
}

TEST_P(EveryType, ShowsItsOwnShapesExactlyBetweenBaseAndValue)
{
    const ChartScene scene = Scene(Data({{4.0}, {0.0}, {-3.0}, {5.0}, {Gap}, {2.0}}), GetParam());
    const double base = scene.room.Y(0);
    EXPECT_EQ(Count(scene, FaceKind::Side) > 0, HasDepth(GetParam()));
    EXPECT_EQ(scene.room.depth != QPointF(), HasDepth(GetParam()));
    EXPECT_NEAR(scene.Place({1, 0})->y(), base + scene.shapes.lanes[0].y(), 0.5);
    EXPECT_NEAR(scene.Place({3, 0})->y(), scene.room.front.top() + scene.shapes.lanes[0].y(), 0.5);
    EXPECT_FALSE(scene.Place({4, 0}));
    bool slopes = false;
    for (const Face& face : scene.shapes.faces) {
        if (face.kind == FaceKind::Side) {
            EXPECT_EQ(face.outline[1] - face.outline[0], face.outline[2] - face.outline[3]);
            EXPECT_NE(face.outline[0].y(), face.outline[3].y());
            continue;
        }
        for (qsizetype i = 0; i + 1 < face.outline.size(); ++i) {
            const QPointF edge = face.outline[i + 1] - face.outline[i];
            slopes |= edge.x() != 0 && edge.y() != 0;
        }
        if (face.kind == FaceKind::Front) {
            for (const QPointF& corner : face.outline.last(2))
                EXPECT_NEAR(corner.y(), base + scene.shapes.lanes[0].y(), 0.5);
        }
    }
    const ChartFamily family = FamilyOf(GetParam());
    EXPECT_EQ(slopes, family == ChartFamily::Line || family == ChartFamily::Area);
    EXPECT_EQ(Count(scene, FaceKind::Front) == 0, family == ChartFamily::Line);
    EXPECT_TRUE(family != ChartFamily::Bar || Count(scene, FaceKind::Front) == 5);
    // A stroke for each stretch between gaps.
    EXPECT_EQ(Count(scene, FaceKind::Line) == 2,
        family == ChartFamily::Line || (family != ChartFamily::Bar && !HasDepth(GetParam())));
}

TEST_P(EveryType, TheMousePointsAtTheValueThatIsDrawnThere)
{
    for (const bool rightToLeft : {false, true}) {
        const ChartScene scene =
            Scene(Data({{9.0, 3.0}, {8.0, 0.0}, {7.0, 2.0}, {9.5, 3.0}}), GetParam(), {600, 400}, rightToLeft);
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 2; ++column) {
                SCOPED_TRACE(testing::Message() << row << ", " << column);
                EXPECT_EQ(scene.PointAt(*scene.Place({row, column}) + QPointF(0, 1)), ChartPoint({row, column}));
            }
        EXPECT_EQ(scene.Place({0, 0})->x() > scene.Place({1, 0})->x(), rightToLeft);
        EXPECT_FALSE(scene.PointAt({1, 1}));
    }
}

TEST(ChartShapes, AreHitInTheMiddleOfTheirFaces)
{
    const ChartScene scene = Scene(Data({{9.0, 3.0}, {6.0, 8.0}}), VtChChartType3dBar);
    for (const Face& face : scene.shapes.faces) {
        const QPointF middle = QPolygonF(face.outline).boundingRect().center();
        // The right side of the first bar may stand behind the second.
        EXPECT_TRUE(face.kind == FaceKind::Side || scene.PointAt(middle) == ChartPoint({face.firstRow, face.column}));
    }
}

/// The face that was painted last at a place.
const Face* Painted(const ChartScene& scene, QPointF place)
{
    const Face* top = nullptr;
    for (const Face& face : scene.shapes.faces)
        if (face.kind != FaceKind::Ridge && QPolygonF(face.outline).containsPoint(place, Qt::OddEvenFill))
            top = &face;
    return top;
}

/// Where the line of sight through a place first meets a solid: its front, and the place on the front of the room's
/// plane that slides back to there.
struct Meeting {
    const Face* front = nullptr;
    QPointF onFront;
    double depth = 2;
    bool isFront = false;
};

Meeting Nearest(const ChartScene& scene, QPointF place)
{
    constexpr int Steps = 150;
    Meeting nearest;
    for (const Face& front : scene.shapes.faces) {
        if (front.kind != FaceKind::Front)
            continue;
        const auto side = std::find_if(scene.shapes.faces.begin(), scene.shapes.faces.end(),
            [&](const Face& face) { return face.kind == FaceKind::Side && face.column == front.column; });
        const QPointF extent = side->outline[3] - side->outline[0];
        for (int i = 0; i <= Steps; ++i) {
            const QPointF back = extent * i / Steps;
            const double depth = (scene.shapes.lanes[size_t(front.column)] + back).x() / scene.room.depth.x();
            if (depth >= nearest.depth || !QPolygonF(front.outline).containsPoint(place - back, Qt::OddEvenFill))
                continue;
            nearest = {&front, place - back, depth, i == 0};
            break;
        }
    }
    return nearest;
}

/// Whether a place lies on the front edge of a side, as near as the steps of the search are.
bool IsOnFrontEdge(const Face& side, QPointF place)
{
    const QLineF edge(side.outline[0], side.outline[1]);
    return edge.length() == 0
        || std::abs(edge.dx() * (place.y() - edge.y1()) - edge.dy() * (place.x() - edge.x1())) / edge.length() < 1;
}

class SolidType : public testing::TestWithParam<ChartType> { };
INSTANTIATE_TEST_SUITE_P(
    ChartTypes, SolidType, testing::Values(VtChChartType3dBar, VtChChartType3dArea, VtChChartType3dStep));

TEST_P(SolidType, WhatIsNearerIsPaintedOverWhatIsFurther)
{
    Values rows;
    for (int row = 0; row < 24; ++row)
        rows.push_back({(row * 7) % 13 - 4.5, -0.3 - (row * 5) % 11});
    const ChartData data = Data(rows);
    ChartScene scene = Scene(data, GetParam(), {500, 400});
    // So deep that the sides of one solid reach across several rows and over each other.
    scene.room.depth = {110, -55};
    scene.shapes = BuildShapes(data, GetParam(), scene.room);
    int compared = 0;
    for (double y = 5; y < 400; y += 8.9)
        for (double x = 5; x < 620; x += 10.7) {
            const Face* painted = Painted(scene, {x, y});
            bool isEdge = false;
            for (const QPointF beside : {QPointF(1.5, 0), QPointF(-1.5, 0), QPointF(0, 1.5), QPointF(0, -1.5)})
                isEdge |= Painted(scene, QPointF(x, y) + beside) != painted;
            if (isEdge)
                continue;
            const Meeting nearest = Nearest(scene, {x, y});
            ASSERT_EQ(painted != nullptr, nearest.front != nullptr) << x << ", " << y;
            if (!painted)
                continue;
            ++compared;
            ASSERT_EQ(painted->column, nearest.front->column) << x << ", " << y;
            ASSERT_EQ(painted->firstRow, nearest.front->firstRow) << x << ", " << y;
            ASSERT_EQ(painted->kind == FaceKind::Front, nearest.isFront) << x << ", " << y;
            ASSERT_TRUE(nearest.isFront || IsOnFrontEdge(*painted, nearest.onFront)) << x << ", " << y;
        }
    EXPECT_GT(compared, 150);
}

} // namespace
