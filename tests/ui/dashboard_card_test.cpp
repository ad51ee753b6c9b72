#include "ui/components/dashboard_card.h"

#include <gtest/gtest.h>

#include "ui/components/card_chrome.h"
#include "ui/rendering.h"

namespace vantor::dashboard_card_test {
namespace {

DashboardCard cardWith(std::optional<QString> subtitle) {
    return {QStringLiteral("CPU"), std::move(subtitle), QStringLiteral("cpu"), VantorTheme::cyan()};
}

/// Something to stand in a card.
class Block : public QWidget {
  public:
    explicit Block(QWidget* parent) : QWidget(parent) { setFixedHeight(40); }
};

QImage chrome(ColorScheme scheme, double scale = 1) {
    QImage image(static_cast<int>(200 * scale), static_cast<int>(100 * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    CardChrome::paint(painter, QRectF(0, 0, 200, 100), scheme,
                      VantorTheme::faded(VantorTheme::cyan(), 0.16));
    return image;
}

QColor background(ColorScheme scheme) {
    return scheme == ColorScheme::dark ? QColor::fromRgbF(0.075f, 0.085f, 0.115f, 0.96f)
                                       : QColor::fromRgbF(1, 1, 1, 0.9f);
}

TEST(CardChrome, GroundIsTheSchemesCardColour) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        EXPECT_TRUE(isNear(colorAt(chrome(scheme), 100, 50), background(scheme)));
    }
}

TEST(CardChrome, CornersAreRounded) {
    const QImage image = chrome(ColorScheme::dark);
    for (const QPointF corner : {QPointF(0.5, 0.5), QPointF(199.5, 0.5), QPointF(0.5, 99.5),
                                 QPointF(199.5, 99.5), QPointF(5.5, 5.5)}) {
        EXPECT_EQ(colorAt(image, corner.x(), corner.y()).alpha(), 0) << corner.x();
    }
    EXPECT_GT(colorAt(image, 22, 1.5).alpha(), 240);
}

TEST(CardChrome, BorderIsOnePointInsideTheEdge) {
    const QImage image = chrome(ColorScheme::light);
    const QColor inside = colorAt(image, 100, 1.5);
    EXPECT_TRUE(isNear(inside, background(ColorScheme::light)));
    for (const QPointF edge :
         {QPointF(100, 0.5), QPointF(100, 99.5), QPointF(0.5, 50), QPointF(199.5, 50)}) {
        const QColor border = colorAt(image, edge.x(), edge.y());
        EXPECT_FALSE(isNear(border, inside, 8)) << edge.x();
        EXPECT_GT(border.alpha(), 225);
    }
}

TEST(CardChrome, BorderIsSharpAtFractionalScales) {
    const QImage image = chrome(ColorScheme::light, 1.5);
    // Two device pixels of border, then the background.
    const QColor border = image.pixelColor(150, 0);
    EXPECT_EQ(image.pixelColor(150, 1), border);
    EXPECT_TRUE(isNear(image.pixelColor(150, 2), background(ColorScheme::light)));
}

TEST(DashboardCard, EqualityComparesEverythingShown) {
    EXPECT_EQ(cardWith(QStringLiteral("a")), cardWith(QStringLiteral("a")));
    EXPECT_FALSE(cardWith(QStringLiteral("a")) == cardWith(QStringLiteral("b")));
    EXPECT_FALSE(cardWith(QStringLiteral("a")) == cardWith(std::nullopt));
    DashboardCard other = cardWith(std::nullopt);
    other.accent = VantorTheme::pink();
    EXPECT_FALSE(other == cardWith(std::nullopt));
}

TEST(CardHeader, IconStandsOnAFaintTileOfTheAccent) {
    CardHeaderView view(cardWith(QStringLiteral("4 cores")));
    const QImage image = rendered(view, QSize(200, view.sizeHint().height()));
    const double middle = view.height() / 2.0;
    EXPECT_TRUE(isNear(colorAt(image, 2.5, middle), VantorTheme::faded(VantorTheme::cyan(), 0.14)));
    EXPECT_GT(pixelsLike(image, QRectF(0, 0, 28, view.height()), VantorTheme::cyan()), 20);
    EXPECT_EQ(paintedPixels(image, QRectF(29, 0, 8, view.height())), 0)
        << "the gap between icon and title";
}

TEST(CardHeader, SubtitleStandsUnderTheTitleWhenThereIsOne) {
    CardHeaderView two(cardWith(QStringLiteral("4 cores")));
    CardHeaderView one(cardWith(std::nullopt));
    EXPECT_GE(two.sizeHint().height(), one.sizeHint().height());
    EXPECT_EQ(one.sizeHint().height(), 28);
    const QImage image = rendered(two, QSize(200, two.sizeHint().height()));
    const double half = two.height() / 2.0;
    EXPECT_GT(paintedPixels(image, QRectF(38, 0, 160, half)), 0);
    EXPECT_GT(paintedPixels(image, QRectF(38, half + 4, 160, half)), 0);
}

TEST(CardHeader, TitleAloneStandsInTheMiddle) {
    CardHeaderView view(cardWith(std::nullopt));
    const QImage image = rendered(view, QSize(200, 28));
    EXPECT_GT(paintedPixels(image, QRectF(38, 8, 160, 12)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(38, 22, 160, 6)), 0);
}

TEST(CardHeader, SaysTitleAndSubtitle) {
    const CardHeaderView view(cardWith(QStringLiteral("4 cores")));
    EXPECT_EQ(utf8(view.accessibleLabel()), "CPU");
    EXPECT_EQ(utf8(view.accessibleValueText()), "4 cores");
    EXPECT_EQ(view.accessibleRole(), QAccessible::Heading);
}

TEST(DashboardCard, PadsItsContentBy18AndKeepsTheRowsApartBy16) {
    DashboardCardView view(cardWith(QStringLiteral("4 cores")));
    auto* block = std::make_unique<Block>(&view).release();
    view.body().addWidget(block);
    view.resize(300, view.sizeHint().height());
    view.layout()->activate();
    const QRect header = view.header().geometry();
    EXPECT_EQ(header.topLeft(), QPoint(18, 18));
    EXPECT_EQ(header.width(), 300 - 2 * 18);
    EXPECT_EQ(block->geometry().left(), 18);
    EXPECT_EQ(block->geometry().top() - (header.top() + header.height()), 16);
    EXPECT_EQ(view.height() - (block->geometry().top() + block->height()), 18);
}

TEST(DashboardCard, ShowsAnotherTitleInTheSameFrame) {
    DashboardCardView view(cardWith(std::nullopt));
    view.showCard(cardWith(QStringLiteral("8 cores")));
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "8 cores");
}

}  // namespace
}  // namespace vantor::dashboard_card_test
