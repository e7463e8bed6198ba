#include "chart/chart_scene.h"
#include "support/test.h"

#include <cmath>
#include <QFontMetricsF>
#include <QLineF>
#include <QPolygonF>
#include <QTransform>

namespace {

using Values = std::vector<std::vector<std::optional<double>>>;
constexpr std::nullopt_t Gap = std::nullopt;

/// Rows of values, with the days of December as their labels.
ChartData Data(const Values& rows, const QString& dates = QString("dd.MM.yyyy"))
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
    static const QFontMetricsF metrics{QFont(QString("Liberation Sans"), 9)};
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

/// The picture in letters, as it is painted: the first series "A" on its fronts and "a" on its sides, the second "B"
/// and "b", a line as the number of its series, and the texts that are not turned.
QString Drawn(const ChartScene& scene)
{
    constexpr int Width = 6, Height = 13;
    QStringList rows(int(scene.size.height()) / Height, QString(int(scene.size.width()) / Width, ' '));
    const auto put = [&rows](QPointF place, QChar letter) {
        const int row = int(place.y()) / Height, column = int(place.x()) / Width;
        if (row >= 0 && row < rows.size() && column >= 0 && column < rows[row].size())
            rows[row][column] = letter;
    };
    for (const Face& face : scene.shapes.faces) {
        const bool isLine = face.kind == FaceKind::Line;
        for (qsizetype i = 0; isLine && i + 1 < face.outline.size(); ++i)
            for (int step = 0; step <= 100; ++step)
                put(QLineF(face.outline[i], face.outline[i + 1]).pointAt(step / 100.0), QChar('1' + face.column));
        const QChar letter((face.kind == FaceKind::Front ? 'A' : 'a') + face.column);
        for (double y = Height / 2.0; y < scene.size.height() && !isLine && face.kind != FaceKind::Ridge; y += Height)
            for (double x = Width / 2.0; x < scene.size.width(); x += Width)
                if (QPolygonF(face.outline).containsPoint({x, y}, Qt::OddEvenFill))
                    put({x, y}, letter);
    }
    for (const ChartText& text : scene.texts)
        for (qsizetype i = 0; i < text.text.size() && text.degrees == 0; ++i)
            put({text.box.left() + double(i) * Width, text.box.center().y()}, text.text[i]);
    for (QString& row : rows)
        row = ('|' + row).trimmed();
    return rows.join('\n') + '\n';
}

class EveryType : public testing::TestWithParam<ChartType> { };
INSTANTIATE_TEST_SUITE_P(ChartTypes, EveryType,
    testing::Values(VtChChartType3dBar, VtChChartType2dBar, VtChChartType3dLine, VtChChartType2dLine,
        VtChChartType3dArea, VtChChartType2dArea, VtChChartType3dStep, VtChChartType2dStep));

TEST_P(EveryType, LabelsNeverTouchAndStayInThePicture)
{
    const QString longDates = QString("yyyy. MM. dd.");
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

TEST(ChartPictures, AreDrawnFromTheBackToTheFront)
{
    QString pictures;
    for (int type = VtChChartType3dBar; type <= VtChChartType2dStep; ++type) {
        const ChartData data = Data({{4.0, 3.0}, {0.0, -2.0}, {-3.0, 5.0}, {5.0, 1.0}, {Gap, 2.0}, {2.0, 6.0}}, "dd");
        ChartScene scene = Scene(data, ChartType(type), {480, 260});
        pictures += QString("== type %1\n").arg(type) + Drawn(scene);
        if (!HasDepth(scene.type))
            continue;
        // So deep that the sides of one solid reach across several rows and over each other.
        scene.room.depth = {110, -55};
        scene.shapes = BuildShapes(data, scene.type, scene.room);
        pictures += QString("== type %1, deep\n").arg(type) + Drawn(scene);
    }
    ExpectGolden(pictures, "charts.txt");
}

} // namespace
