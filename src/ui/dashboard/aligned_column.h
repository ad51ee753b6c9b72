#pragma once

#include <QVBoxLayout>

#include "ui/dashboard/adaptive_grid.h"

namespace vantor {

/// A column no wider than the grid of so many items in it, and in the middle: everything in it has
/// the same edges.
class AlignedColumn : public QVBoxLayout {
  public:
    AlignedColumn(AdaptiveColumns columns, int items, QWidget* parent)
        : QVBoxLayout(parent), columns_(columns), items_(items) {}

    int heightForWidth(int width) const override {
        return QVBoxLayout::heightForWidth(narrowed(width));
    }
    int minimumHeightForWidth(int width) const override {
        return QVBoxLayout::minimumHeightForWidth(narrowed(width));
    }
    void setGeometry(const QRect& area) override {
        const int width = narrowed(area.width());
        QVBoxLayout::setGeometry(
            {area.left() + (area.width() - width) / 2, area.top(), width, area.height()});
    }

  private:
    int narrowed(int width) const {
        const QMargins margins = contentsMargins();
        const int beside = margins.left() + margins.right();
        const double used = columns_.usedWidth(width - beside, items_);
        return std::min(width, static_cast<int>(used) + beside);
    }

    AdaptiveColumns columns_;
    int items_;
};

}  // namespace vantor
