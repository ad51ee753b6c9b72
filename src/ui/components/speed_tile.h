#pragma once

#include <QColor>
#include <QString>

#include <utility>

#include "ui/components/painted_view.h"

namespace vantor {

/// A speed under its name, with a symbol, on a tile.
struct SpeedTile {
    QString title;
    QString value;
    QString icon;  ///< a symbol's name
    QColor color;
    bool isAbsent = false;  ///< the value says that there is none, and is quieter

    bool operator==(const SpeedTile&) const = default;
};

/// Draws a tile across its whole width; without a background of its own it needs no padding either.
class SpeedTileView : public PaintedView {
  public:
    enum class Background { tile, none };

    explicit SpeedTileView(SpeedTile tile, QWidget* parent = nullptr)
        : SpeedTileView(std::move(tile), Background::tile, parent) {}
    SpeedTileView(SpeedTile tile, Background background, QWidget* parent = nullptr);

    void show(const SpeedTile& tile);
    const SpeedTile& tile() const { return tile_; }

    QString accessibleLabel() const override { return tile_.title; }
    QString accessibleValueText() const override { return tile_.value; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double padding() const;

    SpeedTile tile_;
    Background background_;
};

}  // namespace vantor
