#include "ui/cards/core_activity.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double unscaledCellHeight = 26;
constexpr double narrowestCell = 24;
constexpr double cellSpacing = 4;
constexpr double cellCorner = 4;
// An ordinary screen cannot draw digits of less than 9 pixels legibly.
constexpr TextStyle numberStyle{7, QFont::Bold, 9};
constexpr double idleBelow = 0.01;
constexpr double cellTextPadding = 5;
constexpr std::size_t fewCells = 24;

}  // namespace

QColor CoreActivity::fill(double usage) {
    if (!(usage >= idleBelow)) return VantorTheme::faded(VantorTheme::cyan(), 0.18);
    return VantorTheme::faded(VantorTheme::green(), 0.55 + 0.45 * std::min(usage, 1.0));
}

QString CoreActivity::number(std::size_t index) {
    return Formatters::count(static_cast<std::int64_t>(index) + 1);
}

QString CoreActivity::help(std::size_t index, double usage) {
    return
        //: %1 is the number of a logical processor, %2 how busy it is
        translate("CoreActivity", "Core %1: %2").arg(number(index), Formatters::percent(usage, 1));
}

QString CoreActivity::text(std::size_t index, double usage) {
    return number(index) + QStringLiteral("  ") + Formatters::percent(usage, 0);
}

CoreGridGeometry CoreGridGeometry::make(std::size_t count, double width, double scale) {
    CoreGridGeometry grid;
    grid.cellHeight = unscaledCellHeight * scale;
    if (count == 0 || !(width > 0)) return grid;
    const double narrowest = narrowestCell * scale;
    const auto fitting = static_cast<std::size_t>(
        std::max(1.0, std::floor((width + cellSpacing) / (narrowest + cellSpacing))));
    const std::size_t rows = (count + fitting - 1) / fitting;
    const std::size_t columns = (count + rows - 1) / rows;
    grid.rows = static_cast<int>(rows);
    grid.columns = static_cast<int>(columns);
    grid.cellWidth =
        (width - cellSpacing * static_cast<double>(columns - 1)) / static_cast<double>(columns);
    return grid;
}

double CoreGridGeometry::height() const {
    return rows == 0 ? cellHeight : rows * cellHeight + (rows - 1) * cellSpacing;
}

QRectF CoreGridGeometry::cell(std::size_t index) const {
    if (columns == 0) return {};
    const int place = static_cast<int>(index);
    const int row = place / columns;
    const int column = place % columns;
    return {column * (cellWidth + cellSpacing), row * (cellHeight + cellSpacing), cellWidth,
            cellHeight};
}

std::size_t CoreGridGeometry::cellAt(QPointF place, std::size_t count) const {
    for (std::size_t i = 0; i < count; ++i) {
        if (cell(i).contains(place)) return i;
    }
    return count;
}

/// The outlines of cells, which have few different sizes, a pixel apart: making one takes longer
/// than filling it.
class CoreActivityView::CellShapes {
  public:
    QPainterPath in(const QRectF& area) {
        auto found = std::ranges::find(shapes_, area.size(), &Shape::size);
        if (found == shapes_.end()) {
            found = shapes_.insert(found, {area.size(), {}});
            found->path.addRoundedRect({{}, area.size()}, cellCorner, cellCorner);
        }
        return found->path.translated(area.topLeft());
    }

  private:
    struct Shape {
        QSizeF size;
        QPainterPath path;
    };
    std::vector<Shape> shapes_;
};

CoreActivityView::CoreActivityView(QWidget* parent) : PaintedView(parent) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CoreActivityView::show(std::span<const double> usage) {
    const bool sameCount = usage.size() == usage_.size();
    if (!sameCount) {
        usage_.assign(usage.begin(), usage.end());
        textWidth_.reset();
        updateGeometry();
        update();
        announceValue();
        return;
    }
    const auto grid = gridFor(width());
    const bool withShares = hasShares(grid);
    std::vector<QRect>& changed = changedCells_;
    changed.clear();
    for (std::size_t i = 0; i < usage.size(); ++i) {
        if (!looksTheSame(usage_[i], usage[i], withShares))
            changed.push_back(placeOf(grid.cell(i)));
    }
    usage_.assign(usage.begin(), usage.end());
    repaintCells(changed);
    announceValue();
}

void CoreActivityView::repaintCells(const std::vector<QRect>& cells) {
    if (cells.size() <= fewCells) {
        for (const QRect& cell : cells)
            update(cell);
        return;
    }
    // Each fill would be cut by as many pieces as there are.
    QRect all;
    for (const QRect& cell : cells)
        all |= cell;
    update(all);
}

/// All cells say their share, or none: the widest text decides, so that nothing jumps.
bool CoreActivityView::hasShares(const CoreGridGeometry& grid) const {
    if (usage_.empty()) return false;
    if (!textWidth_) {
        const QFontMetricsF metrics(Typography::font(numberStyle), this);
        textWidth_ = Typography::digitTextWidth(CoreActivity::text(usage_.size() - 1, 1), metrics);
    }
    return grid.cellWidth >= *textWidth_ + 2 * cellTextPadding;
}

bool CoreActivityView::looksTheSame(double before, double after, bool hasShares) const {
    if (CoreActivity::fill(before) != CoreActivity::fill(after)) return false;
    const auto shown = [](double usage) {
        return std::nearbyint(std::clamp(usage, 0.0, 1.0) * 100);
    };
    return !hasShares || shown(before) == shown(after);
}

void CoreActivityView::changeEvent(QEvent* event) {
    PaintedView::changeEvent(event);
    if (event->type() == QEvent::ApplicationFontChange) textWidth_.reset();
}

CoreGridGeometry CoreActivityView::gridFor(double width) const {
    return CoreGridGeometry::make(usage_.size(), width, Typography::lengthScale());
}

/// Where a cell lies in the direction of reading.
QRect CoreActivityView::placeOf(QRectF cell) const {
    if (isRightToLeft()) cell.moveRight(width() - cell.left());
    return cell.toAlignedRect();
}

QString CoreActivityView::accessibleValueText() const {
    QStringList texts;
    for (std::size_t i = 0; i < usage_.size(); ++i) {
        texts << CoreActivity::help(i, usage_[i]);
    }
    return listed(texts);
}

int CoreActivityView::heightForWidth(int width) const {
    const double cells = gridFor(width).height();
    return static_cast<int>(std::ceil(heightRule_ ? heightRule_(cells) : cells));
}

QSize CoreActivityView::sizeHint() const {
    const int width = Typography::scaled(400);
    return {width, heightForWidth(width)};
}

QSize CoreActivityView::minimumSizeHint() const {
    const int side = Typography::scaled(unscaledCellHeight);
    return {side, side};
}

bool CoreActivityView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return PaintedView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto grid = gridFor(width());
    const QPointF place(isRightToLeft() ? width() - help->pos().x() : help->pos().x(),
                        help->pos().y());
    const std::size_t index = grid.cellAt(place, usage_.size());
    if (index < usage_.size()) {
        QToolTip::showText(help->globalPos(), CoreActivity::help(index, usage_[index]), this,
                           placeOf(grid.cell(index)));
    } else {
        QToolTip::hideText();
    }
    return true;
}

void CoreActivityView::paintEvent(QPaintEvent* event) {
    ViewPainter painter(*this);
    const auto grid = gridFor(width());
    const bool withShares = hasShares(grid);
    CellShapes shapes;
    for (std::size_t i = 0; i < usage_.size(); ++i) {
        const QRectF cell = grid.cell(i);
        if (event->region().intersects(placeOf(cell)))
            paintCell(painter, shapes, cell, i, withShares);
    }
}

void CoreActivityView::paintCell(ViewPainter& painter, CellShapes& shapes, const QRectF& cell,
                                 std::size_t index, bool hasShare) const {
    const QColor fill = CoreActivity::fill(usage_[index]);
    const QRectF area = Pixels::snapped(painter, painter.leading(cell));
    vantorBackground(painter, fill, shapes.in(area));
    vantorForeground(painter, VantorTheme::labelOn(fill, painter.scheme()));
    painter.figures(
        numberStyle, Pixels::snapped(painter, cell), Qt::AlignHCenter | Qt::AlignVCenter,
        hasShare ? CoreActivity::text(index, usage_[index]) : CoreActivity::number(index));
}

}  // namespace vantor
