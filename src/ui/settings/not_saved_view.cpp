#include "ui/settings/not_saved_view.h"

#include <algorithm>
#include <cmath>

#include "ui/core_words.h"
#include "ui/drawing/view_painter.h"
#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double notSavedWidest = 680;  // as the form above it
constexpr double notSavedMargin = 20;
constexpr double notSavedPadding = 11;
constexpr double notSavedSymbolSide = 17;
constexpr double notSavedGap = 9;
constexpr double notSavedLineOpacity = 0.1;
constexpr int notSavedFlags = Qt::AlignTop | Qt::TextWordWrap | Qt::TextWrapAnywhere;
constexpr TextStyle notSavedStyle{Typography::body};

double notSavedSymbol() {
    return notSavedSymbolSide * Typography::lengthScale();
}

double notSavedMost(double width) {
    const double form = std::min(width, notSavedWidest * Typography::lengthScale());
    return std::max(1.0, form - 2 * notSavedMargin - notSavedSymbol() - notSavedGap);
}

QSizeF notSavedTextSize(const QWidget& view, const QString& text, double width) {
    return QFontMetricsF(Typography::font(notSavedStyle), &view)
        .boundingRect(QRectF(0, 0, notSavedMost(width), 1e6), notSavedFlags, text)
        .size();
}

}  // namespace

NotSavedView::NotSavedView(QWidget* parent) : PaintedView(parent) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setVisible(false);
}

void NotSavedView::show(const QString& reason) {
    QString text;
    if (!reason.isEmpty())
        text = wordedAsRest(
            //: settings that could not be stored; %1 is a sentence that says why
            translate("SettingsView", "Not saved: %1"), reason.toStdString());
    if (text == text_) return;
    text_ = text;
    setVisible(!text_.isEmpty());
    updateGeometry();
    update();
    if (text_.isEmpty() || !QAccessible::isActive()) return;
    announceName();
    QAccessibleEvent news(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

int NotSavedView::heightForWidth(int width) const {
    const double content =
        std::max(notSavedTextSize(*this, text_, width).height(), notSavedSymbol());
    return static_cast<int>(std::ceil(content + 2 * notSavedPadding));
}

QSize NotSavedView::sizeHint() const {
    const int width = Typography::scaled(320);
    return {width, heightForWidth(width)};
}

QSize NotSavedView::minimumSizeHint() const {
    return {0, heightForWidth(std::max(width(), Typography::scaled(200)))};
}

void NotSavedView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double thin = Pixels::snappedLineWidth(painter, 1);
    painter.fillRect(QRectF(0, 0, width(), thin),
                     VantorTheme::line(painter.scheme(), notSavedLineOpacity));
    const QSizeF text = notSavedTextSize(*this, text_, width());
    const double symbol = notSavedSymbol();
    // In the middle, as the form is, and as one.
    const double content = symbol + notSavedGap + text.width();
    const double left = (width() - content) / 2;
    const double top = (height() - text.height()) / 2;
    const QRectF icon(left, (height() - symbol) / 2, symbol, symbol);
    Symbols::draw(painter, painter.leading(icon), QStringLiteral("exclamationmark.triangle"),
                  VantorTheme::orange());
    painter.setFont(Typography::font(notSavedStyle));
    painter.primary();
    const QRectF place(left + symbol + notSavedGap, top, text.width() + 1, text.height());
    painter.drawText(painter.leading(place), notSavedFlags | Qt::AlignLeading, text_);
}

}  // namespace vantor
