#include <QPaintEvent>
#include <QPainterPath>

#include <algorithm>

#include "ui/components/usage_bar.h"
#include "ui/drawing/view_painter.h"
#include "ui/explorer/process_table_view.h"
#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

/// How the table of processes is drawn.
namespace vantor {

namespace {

constexpr double processTableBarHeight = 5;
constexpr double currentOpacity = 0.08;
constexpr double currentCorner = 6;
constexpr double sortArrowSide = 9;
constexpr double sortArrowGap = 3;
constexpr double commandGap = 10;
// Less of a path tells nothing.
constexpr double narrowestCommand = 80;

}  // namespace

void ProcessTableView::paintEvent(QPaintEvent* event) {
    ViewPainter painter(*this);
    if (event->rect().top() < rowArea(0).top()) paintHeader(painter);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QRect area = rowArea(i).toAlignedRect();
        if (!event->region().intersects(area)) continue;
        painter.save();
        const int figures = static_cast<int>(figuresArea(i).width());
        const QRect name =
            area.adjusted(isRightToLeft() ? figures : 0, 0, isRightToLeft() ? 0 : -figures, 0);
        paintRow(painter, i, event->region().intersects(name.adjusted(1, 0, -1, 0)));
        painter.restore();
    }
}

void ProcessTableView::paintHeader(ViewPainter& painter) const {
    const ProcessColumns columns = this->columns();
    painter.secondary();
    const auto title = [&](std::size_t column, const QRectF& area, Qt::Alignment alignment) {
        painter.line(figureStyle, area, alignment, ProcessHeader::title(column));
    };
    title(0, columns.icon.united(columns.name), Qt::AlignLeft | Qt::AlignVCenter);
    title(1, columns.pid, Qt::AlignRight | Qt::AlignVCenter);
    paintTitle(painter, SortMode::cpu, columns.cpuText);
    paintTitle(painter, SortMode::memory, columns.memoryText);
}

/// An arrow before the one that the rows are sorted by.
void ProcessTableView::paintTitle(ViewPainter& painter, SortMode mode, const QRectF& area) const {
    const bool isSorted = mode == sort_;
    const QString text = ProcessHeader::title(mode == SortMode::cpu ? 2 : 3);
    if (isSorted) {
        painter.primary();
    } else {
        painter.secondary();
    }
    painter.line(figureStyle, area, Qt::AlignRight | Qt::AlignVCenter, text);
    if (!isSorted) return;
    const double side = sortArrowSide * Typography::lengthScale();
    const double right = area.right() - painter.lineWidth(figureStyle, text) - sortArrowGap;
    Symbols::draw(painter,
                  painter.leading({right - side, area.center().y() - side / 2, side, side}),
                  QStringLiteral("arrow.down"), VantorTheme::primaryLabel(painter.scheme()));
}

void ProcessTableView::paintCurrent(ViewPainter& painter, const QRectF& area) const {
    const ColorScheme scheme = painter.scheme();
    const QRectF background =
        Pixels::snapped(painter, area.adjusted(0, -rowSpacing / 2, 0, rowSpacing / 2));
    QPainterPath shape;
    shape.addRoundedRect(background, currentCorner, currentCorner);
    vantorBackground(painter, VantorTheme::faded(VantorTheme::primaryLabel(scheme), currentOpacity),
                     shape);
    if (hasFocus() && ring_.isShown())
        FocusRing::paint(painter, background, currentCorner, palette());
}

/// The command follows the name where there is room; paths differ at both ends.
void ProcessTableView::paintName(ViewPainter& painter, const Row& row, const QRectF& area) const {
    painter.primary();
    painter.line(nameStyle, area, Qt::AlignLeft | Qt::AlignVCenter, row.name);
    if (row.command == row.name) return;
    const double taken = painter.lineWidth(nameStyle, row.name) + commandGap;
    if (area.width() - taken < narrowestCommand * Typography::lengthScale()) return;
    painter.secondary();
    painter.line(nameStyle, area.adjusted(taken, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                 row.command, Qt::ElideMiddle);
}

void ProcessTableView::paintRow(ViewPainter& painter, std::size_t index, bool hasName) const {
    const Row& row = rows_[index];
    const QRectF area = rowArea(index);
    const ColorScheme scheme = painter.scheme();
    if (currentPID_ && row.pid == *currentPID_) paintCurrent(painter, area);
    // However high a name's combining marks are stacked, they do not reach the rows beside it.
    painter.setClipRect(area.adjusted(0, -rowSpacing / 2, 0, rowSpacing / 2));
    const ProcessColumns columns = this->columns();
    const auto at = [&](const QRectF& column) { return column.translated(area.topLeft()); };
    if (hasName) {
        QRectF icon = at(columns.icon);
        icon.setWidth(std::min(columns.icon.width(), area.height()));
        Symbols::draw(painter, painter.leading(icon), symbol_, VantorTheme::secondaryLabel(scheme));
        paintName(painter, row, at(columns.name));
    }
    constexpr auto trailing = Qt::AlignRight | Qt::AlignVCenter;
    painter.primary();
    painter.figures(figureStyle, at(columns.cpuText), trailing, row.cpuText);
    painter.figures(figureStyle, at(columns.memoryText), trailing, row.memoryText);
    painter.secondary();
    painter.figures(figureStyle, at(columns.pid), trailing, QString::number(row.pid));
    if (columns.cpuBar.width() <= 0) return;
    paintUsageBar(painter, at(columns.cpuBar),
                  {row.cpuShare, VantorTheme::cyan(), processTableBarHeight});
    paintUsageBar(painter, at(columns.memoryBar),
                  {row.memoryShare, VantorTheme::pink(), processTableBarHeight});
}

}  // namespace vantor
