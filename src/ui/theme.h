#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

class QFormLayout;
class QPalette;
class QWidget;

namespace vantor {

enum class ColorScheme { dark, light, highContrastDark, highContrastLight };

bool isDark(ColorScheme scheme);
bool hasHighContrast(ColorScheme scheme);

/// The colour scheme that a widget is shown in, as its palette tells. High contrast is a palette of
/// black and white alone, placeholders included.
ColorScheme colorScheme(const QPalette& palette);
ColorScheme colorScheme(const QWidget& widget);

/// The accents and the background; constants, sRGB.
namespace VantorTheme {

QColor cyan();    ///< processor
QColor blue();    ///< storage, secondary values
QColor purple();  ///< graphics
QColor pink();    ///< memory
QColor green();   ///< network, "Live", low values
QColor orange();  ///< upload, "Paused", system, raised values
QColor red();     ///< critical values

/// The window's background over `area`, from the top leading to the bottom trailing corner.
QLinearGradient background(ColorScheme scheme, const QRectF& area);

QColor primaryLabel(ColorScheme scheme);
QColor secondaryLabel(ColorScheme scheme);

/// What cards are filled with; the background shows through a little.
QColor card(ColorScheme scheme);

/// The label's colour, as faint as told, for what bounds or divides; with high contrast, clearly
/// seen.
QColor line(ColorScheme scheme, double opacity);

/// The same for what a figure or a switch has not filled; with high contrast seen, but not taken
/// for what is filled.
QColor track(ColorScheme scheme, double opacity);

/// `color` as it looks over an opaque background.
QColor over(const QColor& color, const QColor& background);

/// `color` at `opacity` of its own.
QColor faded(QColor color, double opacity);

/// Black or white, whichever can be read better on `fill` over the cards of that scheme.
QColor labelOn(const QColor& fill, ColorScheme scheme);

}  // namespace VantorTheme

/// Fills `shape` with `color` behind what is painted next.
void vantorBackground(QPainter& painter, const QColor& color, const QPainterPath& shape);

/// With high contrast, the edge of a control that is otherwise told by what it is filled with.
void vantorOutline(QPainter& painter, const QPainterPath& shape, ColorScheme scheme);

/// Sets what text and lines are painted with.
void vantorForeground(QPainter& painter, const QColor& color);
void vantorPrimaryForeground(QPainter& painter, ColorScheme scheme);
void vantorSecondaryForeground(QPainter& painter, ColorScheme scheme);

/// Gives a form the look of grouped rows.
void vantorGroupedFormStyle(QFormLayout& form);

}  // namespace vantor
