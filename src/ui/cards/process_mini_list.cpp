#include "ui/cards/process_mini_list.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "ui/components/tool_tip_text.h"
#include "ui/formatters.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double rowSpacing = 8;
constexpr double symbolWidth = 14;
constexpr double symbolGap = 8;

QString waitingText() {
    return QStringLiteral("Waiting for process data…");
}
QFont nameFont() {
    return Typography::font(Typography::caption);
}
QFont valueFont() {
    return Typography::font(Typography::caption, QFont::Medium);
}

}  // namespace

QString ProcessMiniList::value(const ProcessStats& process, Metric metric) {
    if (metric == Metric::memory) return Formatters::bytes(process.residentMemoryBytes);
    return Formatters::fixed(process.cpuPercent, 1) + u'%';
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
    const auto shown = processes.first(std::min(processes.size(), rowLimit_));
    std::vector<Row> rows;
    rows.reserve(shown.size());
    for (const ProcessStats& process : shown) {
        rows.push_back({QString::fromStdString(process.name),
                        QString::fromStdString(process.command),
                        ProcessMiniList::value(process, metric_)});
    }
    if (rows == rows_) return;
    rows_ = std::move(rows);
    update();
    announceValue();
}

QString ProcessMiniListView::accessibleValueText() const {
    if (rows_.empty()) return waitingText();
    QStringList texts;
    for (const Row& row : rows_)
        texts << row.name + u' ' + row.value;
    return texts.join(QStringLiteral(", "));
}

double ProcessMiniListView::titleHeight() const {
    return QFontMetricsF(nameFont(), this).height();
}

double ProcessMiniListView::rowHeight() const {
    return std::max(QFontMetricsF(nameFont(), this).height(),
                    QFontMetricsF(valueFont(), this).height());
}

QRectF ProcessMiniListView::rowArea(std::size_t index) const {
    const double step = rowHeight() + rowSpacing;
    return {0, titleHeight() + rowSpacing + step * static_cast<double>(index),
            static_cast<double>(width()), rowHeight()};
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
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (!rowArea(i).contains(help->pos())) continue;
        QToolTip::showText(help->globalPos(), toolTipText(rows_[i].command), this,
                           rowArea(i).toAlignedRect());
        return true;
    }
    QToolTip::hideText();
    return true;
}

void ProcessMiniListView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ColorScheme scheme = colorScheme(*this);
    const QColor secondary = VantorTheme::secondaryLabel(scheme);
    painter.setFont(nameFont());
    vantorForeground(painter, secondary);
    const double across = width();
    Typography::drawLine(painter, {0, 0, across, titleHeight()}, Qt::AlignLeft, title_);
    if (rows_.empty()) {
        Typography::drawLine(painter, rowArea(0), Qt::AlignLeft | Qt::AlignVCenter, waitingText());
        return;
    }
    const double symbol = symbolWidth * Typography::lengthScale();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QRectF area = rowArea(i);
        Symbols::draw(painter, {area.left(), area.top(), symbol, area.height()}, symbol_,
                      secondary);
        painter.setFont(valueFont());
        vantorPrimaryForeground(painter, scheme);
        Typography::drawDigitText(painter, area, Qt::AlignRight | Qt::AlignVCenter, rows_[i].value);
        const double valueWidth =
            Typography::digitTextWidth(rows_[i].value, QFontMetricsF(painter.font(), this));
        painter.setFont(nameFont());
        const double left = symbol + symbolGap;
        Typography::drawLine(
            painter, {left, area.top(), across - left - symbolGap - valueWidth, area.height()},
            Qt::AlignLeft | Qt::AlignVCenter, rows_[i].name);
    }
}

}  // namespace vantor
