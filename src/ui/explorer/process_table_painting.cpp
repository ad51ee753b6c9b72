#include <QPaintEvent>
#include <QPainterPath>

#include <algorithm>

#include "ui/components/usage_bar.h"
#include "ui/drawing/view_painter.h"
#include "ui/explorer/process_columns.h"
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

}  // namespace

void ProcessTableView::paintEvent(QPaintEvent* event) {
    ViewPainter painter(*this);
    if (event->rect().top() < rowArea(0).top()) paintHeader(painter);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QRect area = rowArea(i).toAlignedRect();
        if (!event->region().intersects(area)) continue;
        painter.save();
        paintRow(painter, i);
        painter.restore();
    }
}

void ProcessTableView::paintHeader(ViewPainter& painter) const {
    const auto columns = ProcessColumns::make(width(), rowHeight(), Typography::lengthScale());
    painter.secondary();
    constexpr auto trailing = Qt::AlignRight | Qt::AlignVCenter;
    const auto title = [&](std::size_t column, const QRectF& area, Qt::Alignment alignment) {
        painter.line(figureStyle, area, alignment, ProcessHeader::titles.at(column).toString());
    };
    title(0, columns.icon.united(columns.name), Qt::AlignLeft | Qt::AlignVCenter);
    title(1, columns.pid, trailing);
    title(2, columns.cpuText, trailing);
    title(3, columns.memoryText, trailing);
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

void ProcessTableView::paintRow(ViewPainter& painter, std::size_t index) const {
    const Row& row = rows_[index];
    const QRectF area = rowArea(index);
    const ColorScheme scheme = painter.scheme();
    if (currentPID_ && row.pid == *currentPID_) paintCurrent(painter, area);
    // However high a name's combining marks are stacked, they do not reach the rows beside it.
    painter.setClipRect(area.adjusted(0, -rowSpacing / 2, 0, rowSpacing / 2));
    const auto columns =
        ProcessColumns::make(area.width(), area.height(), Typography::lengthScale());
    const auto at = [&](const QRectF& column) { return column.translated(area.topLeft()); };
    const double symbol = std::min(columns.icon.width(), area.height());
    QRectF icon = at(columns.icon);
    icon.setWidth(symbol);
    Symbols::draw(painter, painter.leading(icon), symbol_, VantorTheme::secondaryLabel(scheme));
    constexpr auto trailing = Qt::AlignRight | Qt::AlignVCenter;
    painter.primary();
    painter.line(nameStyle, at(columns.name), Qt::AlignLeft | Qt::AlignVCenter, row.name);
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
