#include "ui/product_icon.h"

#include <QIconEngine>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <memory>

#include "ui/drawing/vector_drawing.h"
#include "ui/theme.h"

namespace vantor {

namespace {

/// An icon made from the file's name would make the toolkit load its plugins for every picture
/// format, at each start.
class TileEngine : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const auto drawing = VectorDrawing::ofResource(QStringLiteral(":/vantor.svg"));
        if (!drawing) return;
        QRectF square(0, 0, std::min(rect.width(), rect.height()), 0);
        square.setHeight(square.width());
        square.moveCenter(QRectF(rect).center());
        QLinearGradient tile;
        tile.setCoordinateMode(QGradient::ObjectMode);
        tile.setFinalStop(1, 1);
        tile.setColorAt(0, VantorTheme::cyan());
        tile.setColorAt(1, VantorTheme::purple());
        drawing->paint(*painter, square, tile, Qt::white);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {QSize(16, 16), QSize(24, 24), QSize(32, 32), QSize(48, 48), QSize(64, 64)};
    }

    QIconEngine* clone() const override { return std::make_unique<TileEngine>().release(); }
};

}  // namespace

QIcon productIcon() {
    return QIcon(std::make_unique<TileEngine>().release());  // takes ownership
}

}  // namespace vantor
