#pragma once

#include <QColor>
#include <QString>

#include "ui/components/painted_view.h"

namespace vantor {

/// A speed under its name, with a symbol, on a tile.
struct SpeedTile {
    QString title;
    QString value;
    QString icon;  ///< a symbol's name
    QColor color;

    bool operator==(const SpeedTile&) const = default;
};

/// Draws a tile across its whole width.
class SpeedTileView : public PaintedView {
  public:
    explicit SpeedTileView(SpeedTile tile, QWidget* parent = nullptr);

    void show(const SpeedTile& tile);
    const SpeedTile& tile() const { return tile_; }

    QString accessibleLabel() const override { return tile_.title; }
    QString accessibleValueText() const override { return tile_.value; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    SpeedTile tile_;
};

}  // namespace vantor
