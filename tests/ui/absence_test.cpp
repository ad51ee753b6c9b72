#include <gtest/gtest.h>

#include <QRegularExpression>

#include <array>

#include "ui/cards/card_texts.h"
#include "ui/cards/graphics_device_view.h"
#include "ui/components/labeled_sparkline.h"
#include "ui/components/metric_row.h"
#include "ui/components/ring_gauge.h"
#include "ui/components/speed_tile.h"
#include "ui/contrast.h"
#include "ui/dashboard_world.h"
#include "ui/menu_bar/menu_metric.h"

/// What is absent is quieter than what is there.
namespace vantor::absence_test {
namespace {

constexpr std::array schemes{ColorScheme::dark, ColorScheme::light, ColorScheme::highContrastDark,
                             ColorScheme::highContrastLight};
constexpr double readable = 4.5;

/// As it is seen on a card, large enough for strokes to have their full colour.
QImage onCard(QWidget& view, QSize size, ColorScheme scheme) {
    const QImage drawn = rendered(view, size, scheme, 4);
    QImage seen(drawn.size(), QImage::Format_RGB32);
    QColor card = VantorTheme::card(scheme);
    card.setAlpha(255);
    seen.fill(card);
    seen.setDevicePixelRatio(drawn.devicePixelRatio());
    QPainter(&seen).drawImage(QPointF(), drawn);
    return seen;
}

template <class View, class Value>
double contrastOf(const Value& value, QSize size, const QRect& part, ColorScheme scheme) {
    View view(value);
    view.show(value);
    const QImage seen = onCard(view, size, scheme);
    const qreal scale = seen.devicePixelRatio();
    return contrastIn(
        seen.copy(QRectF(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale).toRect()));
}

/// The contrast of the texts of an absent value and of one that is there, in the same letters.
void expectQuieter(double absent, double present) {
    EXPECT_GE(absent, readable);
    EXPECT_GT(present, absent + 0.5);
}

class Absence : public testing::TestWithParam<ColorScheme> {};

INSTANTIATE_TEST_SUITE_P(Schemes, Absence, testing::ValuesIn(schemes));

TEST_P(Absence, IsQuieterInARow) {
    const auto drawn = [](bool isAbsent) {
        const MetricRow row{QStringLiteral("Nominal"), QStringLiteral("Not published"),
                            std::nullopt, isAbsent};
        return contrastOf<MetricRowView>(row, {240, 20}, {140, 0, 100, 20}, GetParam());
    };
    expectQuieter(drawn(true), drawn(false));
}

TEST_P(Absence, IsQuieterOnATile) {
    const auto drawn = [](bool isAbsent) {
        const SpeedTile tile{QStringLiteral("Download"), QStringLiteral("Unknown"),
                             QStringLiteral("arrow.down"), VantorTheme::green(), isAbsent};
        return contrastOf<SpeedTileView>(tile, {200, 52}, {44, 26, 140, 18}, GetParam());
    };
    expectQuieter(drawn(true), drawn(false));
}

TEST_P(Absence, IsQuieterInARing) {
    const auto drawn = [](double value) {
        const RingGauge gauge{value, QStringLiteral("—"), {}, VantorTheme::cyan(), 12};
        return contrastOf<RingGaugeView>(gauge, {126, 126}, {30, 30, 66, 66}, GetParam());
    };
    expectQuieter(drawn(RingGauge::noValue), drawn(0));
}

TEST_P(Absence, IsQuieterOverAChart) {
    const auto drawn = [](const std::vector<double>& values) {
        LabeledSparklineView view({QStringLiteral("Upload"), {}, {}, VantorTheme::orange()});
        view.show(QStringLiteral("Unknown"), values);
        return contrastIn(onCard(view, {200, 74}, GetParam()).copy(400, 0, 400, 50));
    };
    expectQuieter(drawn({}), drawn({1}));
}

TEST_P(Absence, IsQuieterOfADevice) {
    const auto drawn = [](bool isKnown) {
        const GraphicsDeviceBlock block{.name = QStringLiteral("Graphics"),
                                        .kind = {},
                                        .utilization = QStringLiteral("Not published"),
                                        .isLoadKnown = isKnown,
                                        .workingSet = {},
                                        .note = {}};
        GraphicsDeviceView view;
        view.show(block);
        return contrastIn(onCard(view, {240, 33}, GetParam()).copy(560, 0, 400, 60));
    };
    expectQuieter(drawn(false), drawn(true));
}

TEST_P(Absence, IsQuieterInThePanel) {
    const auto drawn = [](double fraction) {
        const MenuMetric metric{QStringLiteral("CPU"), QStringLiteral("—"), fraction,
                                VantorTheme::cyan()};
        return contrastOf<MenuMetricView>(metric, {140, 62}, {12, 24, 60, 24}, GetParam());
    };
    expectQuieter(drawn(std::nan("")), drawn(0));
}

/// Every row of every card says its own absence.
void expectRowsOf(DashboardView& view, int absentAtLeast) {
    int absent = 0;
    for (QWidget* child : view.findChildren<QWidget*>()) {
        const auto* const row = dynamic_cast<MetricRowView*>(child);
        if (!row) continue;
        static const QRegularExpression words(
            QStringLiteral("^(—|Not published|Not assigned|Unknown)$"));
        const bool saysNothing = words.match(row->row().value).hasMatch();
        EXPECT_EQ(row->row().isAbsent, saysNothing) << utf8(row->row().label);
        absent += saysNothing ? 1 : 0;
    }
    EXPECT_GE(absent, absentAtLeast);
}

TEST(AbsenceOfCards, IsToldByEveryRowBeforeTheFirstReading) {
    DashboardWorld world;
    expectRowsOf(world.make(), 21);
}

TEST(AbsenceOfCards, IsToldByTheRowsOfWhatTheMachineDoesNotPublish) {
    DashboardWorld world;
    world.open();
    world.goLive();
    expectRowsOf(*world.view, 0);
    world.machine->processInfo().thermal = 9;
    world.advance(std::chrono::seconds(6));
    expectRowsOf(*world.view, 1);
}

}  // namespace
}  // namespace vantor::absence_test
