#include "ui/components/dashboard_card.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

#include "ui/components/card_chrome.h"
#include "ui/components/make_child.h"
#include "ui/components/symbol_tile.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double titleSize = 14;
constexpr double iconFrame = 28;
// A symbol of font size 14 measures 17.
constexpr SymbolTile::Shape iconShape{.side = iconFrame, .corner = 9, .symbol = 17};
constexpr double headerSpacing = 10;
constexpr double titleSpacing = 1;
constexpr int cardPadding = 18;
constexpr int cardSpacing = 16;

}  // namespace

CardHeaderView::CardHeaderView(DashboardCard card, QWidget* parent)
    : PaintedView(parent), card_(std::move(card)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CardHeaderView::show(const DashboardCard& card) {
    if (card == card_) return;
    card_ = card;
    update();
    announceValue();
}

double CardHeaderView::textHeight() const {
    const QFontMetricsF title(Typography::font(titleSize, QFont::DemiBold), this);
    const QFontMetricsF subtitle(Typography::font(Typography::caption), this);
    return title.height() + (card_.subtitle ? titleSpacing + subtitle.height() : 0);
}

QSize CardHeaderView::sizeHint() const {
    const int icon = Typography::scaled(iconFrame);
    return {icon * 4, std::max(icon, static_cast<int>(std::ceil(textHeight())))};
}

QSize CardHeaderView::minimumSizeHint() const {
    return sizeHint();
}

void CardHeaderView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    const double side = Typography::scaled(iconFrame);
    SymbolTile::paint(painter, {0, (height() - side) / 2, side, side}, iconShape, card_.icon,
                      card_.accent);

    const double left = side + headerSpacing;
    const double total = textHeight();
    double top = (height() - total) / 2;
    painter.setFont(Typography::font(titleSize, QFont::DemiBold));
    vantorPrimaryForeground(painter, scheme);
    const double titleHeight = QFontMetricsF(painter.font(), this).height();
    Typography::drawLine(painter, {left, top, width() - left, titleHeight}, Qt::AlignLeft,
                         card_.title);
    if (!card_.subtitle) return;
    top += titleHeight + titleSpacing;
    painter.setFont(Typography::font(Typography::caption));
    vantorSecondaryForeground(painter, scheme);
    Typography::drawLine(painter, {left, top, width() - left, height() - top}, Qt::AlignTop,
                         *card_.subtitle);
}

DashboardCardView::DashboardCardView(const DashboardCard& card, QWidget* parent)
    : QWidget(parent),
      header_(makeChild<CardHeaderView>(this, card)),
      body_(makeLayout<QVBoxLayout>(this)) {
    body_->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
    body_->setSpacing(cardSpacing);
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
    return texts.join(QStringLiteral(", "));
}

void DashboardCardView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    CardChrome::paint(painter, rect(), colorScheme(*this),
                      VantorTheme::faded(header_->card().accent, 0.16));
}

}  // namespace vantor
