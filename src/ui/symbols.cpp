#include "ui/symbols.h"

#include <QPixmap>
#include <QPixmapCache>
#include <QResource>

#include <algorithm>
#include <cmath>

#include "ui/drawing/vector_drawing.h"

namespace vantor::Symbols {

namespace {

QString pathOf(const QString& name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

QPixmap render(const QString& name, int devicePixels, const QColor& color) {
    const auto drawing = VectorDrawing::ofResource(pathOf(name));
    if (!drawing) return {};
    QPixmap pixmap(devicePixels, devicePixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing->paint(painter, QRectF(pixmap.rect()), Qt::black, Qt::black);
    // Coloured as a whole, since parts of a translucent drawing would show through each other.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

}  // namespace

bool exists(const QString& name) {
    return QResource(pathOf(name)).isValid();
}

void draw(QPainter& painter, const QRectF& area, const QString& name, const QColor& color) {
    const QTransform toDevice = painter.deviceTransform();
    const double scale = std::abs(toDevice.m11());
    const int size = static_cast<int>(std::lround(std::min(area.width(), area.height()) * scale));
    if (size < 1 || !(scale > 0)) return;
    const QString key = QStringLiteral("vantor-symbol:%1:%2:%3")
                            .arg(name)
                            .arg(size)
                            .arg(color.rgba(), 8, 16, QLatin1Char('0'));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = render(name, size, color);
        QPixmapCache::insert(key, pixmap);
    }
    if (pixmap.isNull()) return;
    // Placed on whole device pixels: the drawing is already at their size.
    const QPointF middle = toDevice.map(area.center());
    const QPointF corner(std::round(middle.x() - size / 2.0), std::round(middle.y() - size / 2.0));
    const QPointF topLeft = toDevice.inverted().map(corner);
    painter.drawPixmap(QRectF(topLeft, QSizeF(size / scale, size / scale)), pixmap,
                       QRectF(pixmap.rect()));
}

}  // namespace vantor::Symbols
