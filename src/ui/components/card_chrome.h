#pragma once

#include <QPainter>

#include "ui/theme.h"

/// The background of cards and of the header.
namespace vantor::CardChrome {

inline constexpr double cornerRadius = 22;

/// Fills `area` as a rounded rectangle in the scheme's card colour and strokes it one point wide
/// inside its edge.
void paint(QPainter& painter, const QRectF& area, ColorScheme scheme, const QColor& border,
           double corner = cornerRadius);

/// Fills `area` as the faint tile that sets figures apart within a card.
void paintTile(QPainter& painter, const QRectF& area, ColorScheme scheme, double opacity = 0.045);

}  // namespace vantor::CardChrome
