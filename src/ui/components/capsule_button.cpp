#include "ui/components/capsule_button.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

#include "ui/drawing/view_painter.h"
#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double capsuleButtonHorizontalPadding = 12;
constexpr double capsuleButtonVerticalPadding = 8;
constexpr double symbolSpacing = 6;
constexpr double capsuleButtonGroundOpacity = 0.07;
constexpr double capsuleButtonHoverOpacity = 0.12;
constexpr double capsuleButtonPressedOpacity = 0.18;
constexpr double capsuleButtonDisabledOpacity = 0.38;

constexpr TextStyle capsuleButtonLabelStyle{Typography::caption, QFont::DemiBold};

double capsuleSymbolSize() {
    return std::round(QFontMetricsF(Typography::font(capsuleButtonLabelStyle)).height());
}

}  // namespace

CapsuleButtonView::CapsuleButtonView(CapsuleButton button, QWidget* parent)
    : QAbstractButton(parent), systemImage_(std::move(button.systemImage)) {
    setText(button.title);
    widestTitle_ = button.title;
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [action = std::move(button.action)] {
        if (action) action();
    });
}

void CapsuleButtonView::show(const QString& title, const QString& systemImage) {
    if (title == text() && systemImage == systemImage_) return;
    setText(title);
    systemImage_ = systemImage;
    reserveWidthFor(title);
    update();
}

void CapsuleButtonView::reserveWidthFor(const QString& title) {
    if (widthFor(title) <= widthFor(widestTitle_)) return;
    widestTitle_ = title;
    updateGeometry();
}

double CapsuleButtonView::widthFor(const QString& title) const {
    return capsuleSymbolSize() + symbolSpacing +
           Typography::digitTextWidth(
               title, QFontMetricsF(Typography::font(capsuleButtonLabelStyle), this));
}

QSize CapsuleButtonView::sizeHint() const {
    const double height = QFontMetricsF(Typography::font(capsuleButtonLabelStyle), this).height();
    return {
        static_cast<int>(std::ceil(widthFor(widestTitle_) + 2 * capsuleButtonHorizontalPadding)),
        static_cast<int>(std::ceil(height + 2 * capsuleButtonVerticalPadding))};
}

void CapsuleButtonView::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void CapsuleButtonView::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void CapsuleButtonView::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    QAbstractButton::focusInEvent(event);
}

void CapsuleButtonView::keyPressEvent(QKeyEvent* event) {
    ring_.keyPressed();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void CapsuleButtonView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    if (!isEnabled()) painter.setOpacity(capsuleButtonDisabledOpacity);
    paintBackground(painter);
    paintLabel(painter);
}

void CapsuleButtonView::paintBackground(ViewPainter& painter) const {
    const QRectF area = Pixels::snapped(painter, rect());
    double opacity = capsuleButtonGroundOpacity;
    if (isEnabled() && isDown()) {
        opacity = capsuleButtonPressedOpacity;
    } else if (isEnabled() && underMouse()) {
        opacity = capsuleButtonHoverOpacity;
    }
    QPainterPath capsule;
    capsule.addRoundedRect(area, area.height() / 2, area.height() / 2);
    vantorBackground(
        painter, VantorTheme::faded(VantorTheme::primaryLabel(painter.scheme()), opacity), capsule);
    vantorOutline(painter, capsule, painter.scheme());
    if (hasFocus() && ring_.isShown()) {
        FocusRing::paint(painter, area, area.height() / 2, palette());
    }
}

void CapsuleButtonView::paintLabel(ViewPainter& painter) const {
    const QColor color = VantorTheme::primaryLabel(painter.scheme());
    const double symbol = std::round(painter.lineHeight(capsuleButtonLabelStyle));
    const double textWidth = painter.figuresWidth(capsuleButtonLabelStyle, text());
    const double left = (width() - symbol - symbolSpacing - textWidth) / 2;
    const bool trailing = isSymbolTrailing();
    const double symbolLeft = trailing ? left + textWidth + symbolSpacing : left;
    const double textLeft = trailing ? left : left + symbol + symbolSpacing;
    Symbols::draw(painter, painter.leading({symbolLeft, (height() - symbol) / 2, symbol, symbol}),
                  systemImage_, color);
    vantorForeground(painter, color);
    painter.figures(capsuleButtonLabelStyle,
                    {textLeft, 0, textWidth, static_cast<double>(height())},
                    Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace vantor
