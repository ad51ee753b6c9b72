#include "ui/product_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

namespace vantor {

namespace {

/// An icon made of the file's name would have the toolkit load its plugins for every kind of
/// picture there is, at each start.
class TileEngine : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QSvgRenderer(QStringLiteral(":/vantor.svg")).render(painter, rect);
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
