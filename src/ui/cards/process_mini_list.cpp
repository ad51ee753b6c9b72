#include "ui/cards/process_mini_list.h"

#include <QHelpEvent>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "ui/components/tool_tip_text.h"
#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double processMiniListRowSpacing = 8;
constexpr double symbolWidth = 14;
constexpr double processMiniListSymbolGap = 8;
// More than any neighbour makes room for.
constexpr std::size_t mostFillingRows = 14;
// A multiple of it is a whole number of device pixels at 125 % and 150 %, too.
constexpr double evenStep = 4;

QString waitingText() {
    return translate("ProcessMiniList", "Waiting for process data…");
}
constexpr TextStyle processMiniListNameStyle{Typography::caption};
constexpr TextStyle processMiniListValueStyle{Typography::caption, QFont::Medium};

}  // namespace

QString ProcessMiniList::value(const ProcessStats& process, Metric metric) {
    if (metric == Metric::memory) return Formatters::bytes(process.residentMemoryBytes);
    return Formatters::percentOf(Formatters::fixed(process.cpuPercent, 1));
}

QString processSymbol(const ProcessInfo& versions) {
    return versions.isOperatingSystemAtLeast(12, 0, 0) ? QStringLiteral("app.dashed")
                                                       : QStringLiteral("app");
}

ProcessMiniListView::ProcessMiniListView(const ProcessMiniList& list, std::size_t rowLimit,
                                         QString symbol, QWidget* parent)
    : PaintedView(parent),
      title_(list.title),
      metric_(list.metric),
      rowLimit_(rowLimit),
      symbol_(std::move(symbol)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    show(list.processes);
}

void ProcessMiniListView::show(std::span<const ProcessStats> processes) {
    const std::size_t most = fillsHeight_ ? std::max(mostFillingRows, rowLimit_) : rowLimit_;
    const auto shown = processes.first(std::min(processes.size(), most));
    std::vector<Row> rows;
    rows.reserve(shown.size());
    for (const ProcessStats& process : shown) {
        rows.push_back({shownText(process.name), shownText(process.command),
                        ProcessMiniList::value(process, metric_)});
    }
    if (rows == rows_) return;
    rows_ = std::move(rows);
    update();
    announceValue();
}

void ProcessMiniListView::setRowLimit(std::size_t rows) {
    if (rows == rowLimit_) return;
    rowLimit_ = rows;
    updateGeometry();
}

void ProcessMiniListView::fillHeight() {
    fillsHeight_ = true;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

std::size_t ProcessMiniListView::rowCount() const {
    if (!fillsHeight_) return rows_.size();
    const double room = (height() + processMiniListRowSpacing) / pitch() - 1;
    const auto fitting = static_cast<std::size_t>(std::max(0.0, std::floor(room)));
    return std::min(rows_.size(), std::max(fitting, rowLimit_));
}

QString ProcessMiniListView::accessibleValueText() const {
    if (rows_.empty()) return waitingText();
    QStringList texts;
    for (const Row& row : std::span(rows_).first(rowCount()))
        texts << isolatedText(row.name) + u' ' + row.value;
    return listed(texts);
}

double ProcessMiniListView::rowHeight() const {
    const double text =
        std::max(QFontMetricsF(Typography::font(processMiniListNameStyle), this).height(),
                 QFontMetricsF(Typography::font(processMiniListValueStyle), this).height());
    return std::ceil(text / evenStep) * evenStep;
}

double ProcessMiniListView::pitch() const {
    return rowHeight() + processMiniListRowSpacing;
}

QRectF ProcessMiniListView::rowArea(std::size_t index) const {
    return {0, pitch() * static_cast<double>(index + 1), static_cast<double>(width()), rowHeight()};
}

QSize ProcessMiniListView::sizeHint() const {
    return {Typography::scaled(240), static_cast<int>(std::ceil(rowArea(rowLimit_ - 1).bottom()))};
}

QSize ProcessMiniListView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

bool ProcessMiniListView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return PaintedView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (std::size_t i = 0; i < rowCount(); ++i) {
        if (!rowArea(i).contains(help->pos())) continue;
        QToolTip::showText(help->globalPos(), toolTipText(rows_[i].command), this,
                           rowArea(i).toAlignedRect());
        return true;
    }
    QToolTip::hideText();
    return true;
}

void ProcessMiniListView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const QColor secondary = VantorTheme::secondaryLabel(painter.scheme());
    vantorForeground(painter, secondary);
    const double across = width();
    QRectF area = rowArea(0);
    painter.line(processMiniListNameStyle,
                 {0, 0, across, painter.lineHeight(processMiniListNameStyle)}, Qt::AlignLeft,
                 title_);
    if (rows_.empty()) {
        painter.line(processMiniListNameStyle, area, Qt::AlignLeft | Qt::AlignVCenter,
                     waitingText());
        return;
    }
    const double symbol = symbolWidth * Typography::lengthScale();
    const double step = pitch();
    for (const Row& row : std::span(rows_).first(rowCount())) {
        // However high a name's combining marks are stacked, they do not reach the rows beside it.
        painter.setClipRect(
            area.adjusted(0, -processMiniListRowSpacing / 2, 0, processMiniListRowSpacing / 2));
        Symbols::draw(painter, painter.leading({0, area.top(), symbol, area.height()}), symbol_,
                      secondary);
        painter.primary();
        painter.figures(processMiniListValueStyle, area, Qt::AlignRight | Qt::AlignVCenter,
                        row.value);
        const double valueWidth = painter.figuresWidth(processMiniListValueStyle, row.value);
        const double left = symbol + processMiniListSymbolGap;
        painter.line(processMiniListNameStyle,
                     {left, area.top(), across - left - processMiniListSymbolGap - valueWidth,
                      area.height()},
                     Qt::AlignLeft | Qt::AlignVCenter, row.name);
        area.translate(0, step);
    }
}

}  // namespace vantor
