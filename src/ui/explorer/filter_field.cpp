#include "ui/explorer/filter_field.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double corner = 8;
constexpr double filterFieldSymbolSide = 14;
constexpr double symbolLeft = 9;
constexpr double filterFieldTextGap = 6;
constexpr double filterFieldVerticalPadding = 8;
constexpr double filterFieldBackgroundOpacity = 0.06;
constexpr double filterFieldBorderOpacity = 0.16;
constexpr double focusWidth = 2;

double filterSymbolSize() {
    return filterFieldSymbolSide * Typography::lengthScale();
}

}  // namespace

FilterField::FilterField(const QString& placeholder, QWidget* parent) : QLineEdit(parent) {
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    setFrame(false);
    setClearButtonEnabled(true);
    // The background is painted here; the field itself must not paint over it.
    QPalette transparent = palette();
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
    adoptDirection();
    adoptFont();
}

/// The text begins behind the symbol, on whichever side that is.
void FilterField::adoptDirection() {
    const int leading = static_cast<int>(symbolLeft + filterSymbolSize() + filterFieldTextGap) - 2;
    constexpr int trailing = 4;
    setTextMargins(isRightToLeft() ? trailing : leading, 0, isRightToLeft() ? leading : trailing,
                   0);
}

void FilterField::adoptFont() {
    setFont(Typography::font(Typography::caption));
}

/// On X11 the toolkit takes Ctrl+E for the end of the line, before any command of the menu: here it
/// stays the export's, as it is everywhere else in the window.
bool FilterField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier && key->key() == Qt::Key_E) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void FilterField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) adoptDirection();
    if (event->type() == QEvent::ApplicationFontChange) {
        adoptFont();
        adoptDirection();  // the symbol grows with the text
    }
}

QSize FilterField::sizeHint() const {
    const double text = QFontMetricsF(font(), this).height();
    return {Typography::scaled(widest),
            static_cast<int>(std::ceil(text + 2 * filterFieldVerticalPadding))};
}

QSize FilterField::minimumSizeHint() const {
    return {Typography::scaled(120), sizeHint().height()};
}

void FilterField::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    const QColor label = VantorTheme::primaryLabel(scheme);
    const QRectF area = Pixels::snapped(painter, rect());
    QPainterPath background;
    background.addRoundedRect(area, corner, corner);
    vantorBackground(painter, VantorTheme::faded(label, filterFieldBackgroundOpacity), background);
    const bool isFocused = hasFocus();
    const double width = isFocused ? focusWidth : Pixels::snappedLineWidth(painter, 1);
    const double inset = width / 2;
    painter.setPen(QPen(isFocused ? palette().color(QPalette::Highlight)
                                  : VantorTheme::line(scheme, filterFieldBorderOpacity),
                        width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), corner - inset,
                            corner - inset);
    const double side = filterSymbolSize();
    const double left = isRightToLeft() ? this->width() - symbolLeft - side : symbolLeft;
    Symbols::draw(painter, {left, (height() - side) / 2, side, side},
                  QStringLiteral("magnifyingglass"), VantorTheme::secondaryLabel(scheme));
    painter.end();
    QLineEdit::paintEvent(event);
}

}  // namespace vantor
