#include "ui/components/empty_state_view.h"

#include <QEvent>

#include <algorithm>
#include <cmath>

#include "ui/drawing/view_painter.h"
#include "ui/shown_text.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double emptyStatePadding = 10;
constexpr double emptyStateSpacing = 10;
constexpr double minHeight = 180;
constexpr double emptyStateSymbolSide = 34;  // what a symbol of font size 28 measures
// Lines longer than this are tiring to read.
constexpr double widestMessage = 420;
constexpr int messageFlags =
    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap | Qt::TextWrapAnywhere;

constexpr TextStyle emptyStateTitleStyle{Typography::headline, QFont::DemiBold};
constexpr TextStyle messageStyle{Typography::caption};

double messageWidth(double width) {
    return std::min(width - 2 * emptyStatePadding, widestMessage * Typography::lengthScale());
}

}  // namespace

EmptyStateView::EmptyStateView(EmptyState state, QWidget* parent)
    : PaintedView(parent), state_(std::move(state)) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void EmptyStateView::show(const EmptyState& state) {
    if (state == state_) return;
    state_ = state;
    messageAdvance_.reset();
    updateGeometry();
    update();
    announceValue();
}

double EmptyStateView::messageHeight(double width) const {
    const QRectF room(0, 0, messageWidth(width), 1e6);
    return QFontMetricsF(Typography::font(messageStyle), this)
        .boundingRect(room, messageFlags, shownText(state_.message))
        .height();
}

double EmptyStateView::heightAboveMessage() const {
    return emptyStateSymbolSide * Typography::lengthScale() + emptyStateSpacing +
           QFontMetricsF(Typography::font(emptyStateTitleStyle), this).height() + emptyStateSpacing;
}

double EmptyStateView::contentHeight(double width) const {
    return heightAboveMessage() + messageHeight(width);
}

/// Breaking a text into lines is most of what laying this out costs. Two lines that follow one
/// another hold more than one width of text, so there are never more than twice as many as that.
bool EmptyStateView::certainlyFits(double width, double height) const {
    const QFontMetricsF metrics(Typography::font(messageStyle), this);
    if (!messageAdvance_) messageAdvance_ = metrics.horizontalAdvance(shownText(state_.message));
    const double lines = 2 * std::ceil(*messageAdvance_ / std::max(1.0, messageWidth(width)));
    return heightAboveMessage() + lines * metrics.lineSpacing() <= height;
}

int EmptyStateView::heightForWidth(int width) const {
    const double least = minHeight * Typography::lengthScale();
    const double needed =
        certainlyFits(width, least) ? least : std::max(least, contentHeight(width));
    return static_cast<int>(std::ceil(needed + 2 * emptyStatePadding));
}

void EmptyStateView::changeEvent(QEvent* event) {
    PaintedView::changeEvent(event);
    if (event->type() == QEvent::ApplicationFontChange) messageAdvance_.reset();
}

QSize EmptyStateView::sizeHint() const {
    const int width = Typography::scaled(320);
    return {width, heightForWidth(width)};
}

QSize EmptyStateView::minimumSizeHint() const {
    return {Typography::scaled(120), heightForWidth(Typography::scaled(120))};
}

void EmptyStateView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double across = width();
    double top = (height() - contentHeight(across)) / 2;
    const double symbol = emptyStateSymbolSide * Typography::lengthScale();
    Symbols::draw(painter, {(across - symbol) / 2, top, symbol, symbol}, state_.systemImage,
                  VantorTheme::secondaryLabel(painter.scheme()));
    top += symbol + emptyStateSpacing;
    const double titleHeight = painter.lineHeight(emptyStateTitleStyle);
    painter.primary();
    painter.line(emptyStateTitleStyle,
                 {emptyStatePadding, top, across - 2 * emptyStatePadding, titleHeight},
                 Qt::AlignHCenter, state_.title);
    top += titleHeight + emptyStateSpacing;
    painter.setFont(Typography::font(messageStyle));
    painter.secondary();
    const double wide = messageWidth(across);
    painter.drawText(QRectF((across - wide) / 2, top, wide, messageHeight(across)), messageFlags,
                     shownText(state_.message));
}

}  // namespace vantor
