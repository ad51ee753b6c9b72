#include "ui/components/dashboard_card.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

#include "ui/components/make_child.h"
#include "ui/components/symbol_tile.h"
#include "ui/drawing/view_painter.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr TextStyle dashboardCardTitleStyle{14, QFont::DemiBold};
constexpr TextStyle dashboardCardSubtitleStyle{Typography::caption};
constexpr double iconFrame = 28;
// A symbol of font size 14 measures 17.
constexpr SymbolTile::Shape dashboardCardIconShape{.side = iconFrame, .corner = 9, .symbol = 17};
constexpr double headerSpacing = 10;
constexpr double dashboardCardTitleSpacing = 1;
constexpr int cardPadding = 18;
constexpr int dashboardCardCardSpacing = 16;

}  // namespace

CardHeaderView::CardHeaderView(DashboardCard card, QWidget* parent)
    : PaintedView(parent), card_(std::move(card)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CardHeaderView::show(const DashboardCard& card) {
    if (card == card_) return;
    const bool hadSubtitle = card_.subtitle.has_value();
    card_ = card;
    if (hadSubtitle != card_.subtitle.has_value()) updateGeometry();
    update();
    announceValue();
}

double CardHeaderView::textHeight() const {
    const QFontMetricsF title(Typography::font(dashboardCardTitleStyle), this);
    const QFontMetricsF subtitle(Typography::font(dashboardCardSubtitleStyle), this);
    return title.height() + (card_.subtitle ? dashboardCardTitleSpacing + subtitle.height() : 0);
}

QSize CardHeaderView::sizeHint() const {
    const int icon = Typography::scaled(iconFrame);
    return {icon * 4, std::max(icon, static_cast<int>(std::ceil(textHeight())))};
}

QSize CardHeaderView::minimumSizeHint() const {
    return sizeHint();
}

void CardHeaderView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double side = Typography::scaled(iconFrame);
    SymbolTile::paint(painter, painter.leading({0, (height() - side) / 2, side, side}),
                      dashboardCardIconShape, card_.icon, card_.accent);

    const double left = side + headerSpacing;
    const double titleHeight = painter.lineHeight(dashboardCardTitleStyle);
    const double subtitleHeight = painter.lineHeight(dashboardCardSubtitleStyle);
    const double total =
        titleHeight + (card_.subtitle ? dashboardCardTitleSpacing + subtitleHeight : 0);
    double top = (height() - total) / 2;
    const double across = width() - left;
    painter.primary();
    painter.line(dashboardCardTitleStyle, {left, top, across, titleHeight}, Qt::AlignLeft,
                 card_.title);
    if (!card_.subtitle) return;
    top += titleHeight + dashboardCardTitleSpacing;
    painter.secondary();
    painter.line(dashboardCardSubtitleStyle, {left, top, across, subtitleHeight}, Qt::AlignLeft,
                 *card_.subtitle);
}

DashboardCardView::DashboardCardView(const DashboardCard& card, QWidget* parent)
    : CardFrame(parent),
      header_(makeChild<CardHeaderView>(this, card)),
      body_(makeLayout<QVBoxLayout>(this)) {
    body_->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
    body_->setSpacing(dashboardCardCardSpacing);
    body_->addWidget(header_);
    setAccessibleName(card.title);
}

QString DashboardCardView::summary() const {
    QStringList texts;
    for (const QWidget* child : findChildren<QWidget*>()) {
        const auto* view = dynamic_cast<const PaintedView*>(child);
        if (!view || !view->isVisibleTo(this)) continue;
        const QString text = (view->accessibleLabel() + u' ' + view->accessibleValueText());
        texts << text.simplified();
    }
    return listed(texts);
}

QColor DashboardCardView::borderColor() const {
    const ColorScheme scheme = colorScheme(*this);
    return hasHighContrast(scheme) ? VantorTheme::line(scheme, 1)
                                   : VantorTheme::faded(header_->card().accent, 0.16);
}

}  // namespace vantor
