#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

/// The program's own symbols: vector drawings in one stroke style, tinted when drawn.
namespace vantor::Symbols {

/// Whether there is a symbol of that name.
bool exists(const QString& name);

/// Draws symbol `name` centred and as large as fits into `area`, in `color`, at the device's own
/// resolution. An unknown name draws nothing.
void draw(QPainter& painter, const QRectF& area, const QString& name, const QColor& color);

}  // namespace vantor::Symbols
