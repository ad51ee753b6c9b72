#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "ui/components/painted_view.h"
#include "ui/drawing/view_painter.h"
#include "ui/translate.h"

namespace vantor {

/// One cell for each logical processor, coloured by how busy it is.
///
/// Cells are numbered from 1 in the kernel's order, as people count: the readings carry no numbers
/// of their own, and offline processors have no cell.
struct CoreActivity {
    static QColor fill(double usage);          ///< a processor below 1 % counts as idle
    static QString number(std::size_t index);  ///< as people count: the first one is 1
    static QString help(std::size_t index, double usage);

    /// What a cell says where it is wide enough: "3  42%".
    static QString text(std::size_t index, double usage);
};

/// How the cells of `count` processors share a width: as few rows as cells of a readable width
/// allow, all rows but the last equally long.
struct CoreGridGeometry {
    int columns = 0;
    int rows = 0;
    double cellWidth = 0;
    double cellHeight = 0;

    static CoreGridGeometry make(std::size_t count, double width, double scale);

    double height() const;
    QRectF cell(std::size_t index) const;

    /// The cell at a place, or `count` for none.
    std::size_t cellAt(QPointF place, std::size_t count) const;
};

/// Draws the cells; its height follows from its width and the number of processors.
class CoreActivityView : public PaintedView {
  public:
    explicit CoreActivityView(QWidget* parent = nullptr);

    void show(std::span<const double> usage);

    /// Makes its own height out of that of the cells, so that what follows stands on a certain
    /// line.
    void setHeightRule(std::function<double(double cells)> rule) { heightRule_ = std::move(rule); }
    std::size_t count() const { return usage_.size(); }

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString accessibleLabel() const override {
        return
            //: how busy each logical processor is
            translate("CoreActivity", "Core Activity");
    }
    QString accessibleValueText() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    class CellShapes;

    CoreGridGeometry gridFor(double width) const;
    QRect placeOf(QRectF cell) const;
    void paintCell(ViewPainter& painter, CellShapes& shapes, const QRectF& cell, std::size_t index,
                   bool hasShare) const;
    void repaintCells(const std::vector<QRect>& cells);
    bool hasShares(const CoreGridGeometry& grid) const;
    bool looksTheSame(double before, double after, bool hasShares) const;

    std::function<double(double)> heightRule_;
    std::vector<double> usage_;
    std::vector<QRect> changedCells_;          // of one call, for its storage
    mutable std::optional<double> textWidth_;  ///< of the longest text, once needed
};

}  // namespace vantor
