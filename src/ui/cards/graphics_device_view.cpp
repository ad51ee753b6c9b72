#include "ui/cards/graphics_device_view.h"

#include <QStringList>

#include <cmath>

#include "ui/cards/card_texts.h"
#include "ui/components/tool_tip_text.h"
#include "ui/core_words.h"
#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double lineSpacing = 3;
constexpr double graphicsDeviceTextGap = 8;

constexpr TextStyle graphicsDeviceNameStyle{Typography::caption, QFont::Medium};
constexpr TextStyle graphicsDeviceDetailStyle{Typography::caption2};
double lineHeight(const QWidget* widget) {
    return std::ceil(
        std::max(QFontMetricsF(Typography::font(graphicsDeviceNameStyle), widget).height(),
                 QFontMetricsF(Typography::font(graphicsDeviceDetailStyle), widget).height()));
}
QString workingSetLabel() {
    return
        //: how much graphics memory the driver recommends to use
        translate("GraphicsDeviceView", "Recommended Working Set");
}

}  // namespace

GraphicsDeviceBlock GraphicsDeviceBlock::of(const GPUStats& gpu, const PlatformWords& words) {
    GraphicsDeviceBlock block;
    block.name = shownText(gpu.name);
    block.kind = gpu.isUnifiedMemory
                     ? /*: graphics that share the memory of the processor */ translate(
                           "GraphicsDeviceView", "Unified memory architecture")
                     : /*: a graphics device with memory of its own */ translate(
                           "GraphicsDeviceView", "Discrete graphics");
    block.utilization =
        gpu.utilization ? Formatters::percent(*gpu.utilization, 1) : CardTexts::notPublished();
    block.isLoadKnown = gpu.utilization.has_value();
    if (gpu.recommendedWorkingSetBytes) {
        block.workingSet = Formatters::bytes(*gpu.recommendedWorkingSetBytes);
    }
    const bool isMarked = !words.graphicsLoadNoteMark.empty() &&
                          gpu.name.find(words.graphicsLoadNoteMark) != std::string::npos;
    if (isMarked && gpu.utilization) {
        block.note = wordedForPeople(words.graphicsLoadNote);
    }
    return block;
}

GraphicsDeviceView::GraphicsDeviceView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GraphicsDeviceView::show(const GraphicsDeviceBlock& block) {
    if (block == block_) return;
    const int lines = lineCount();
    if (block.name != block_.name) announceName();
    block_ = block;
    if (lineCount() != lines) updateGeometry();
    setToolTip(toolTipText(block_.name));
    update();
    announceValue();
}

QString GraphicsDeviceView::accessibleValueText() const {
    QStringList texts{block_.kind, block_.utilization};
    if (!block_.note.isEmpty()) texts << block_.note;
    if (block_.workingSet) texts << workingSetLabel() + u' ' + *block_.workingSet;
    return listed(texts);
}

QSize GraphicsDeviceView::sizeHint() const {
    const double lines = lineCount();
    return {Typography::scaled(240),
            static_cast<int>(lines * lineHeight(this) + (lines - 1) * lineSpacing)};
}

QSize GraphicsDeviceView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void GraphicsDeviceView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double step = lineHeight(this) + lineSpacing;
    QRectF line(0, 0, width(), lineHeight(this));
    const auto drawPair = [&](const TextStyle& style, const QString& label, const QString& value,
                              bool isKnown = true) {
        if (isKnown) {
            painter.primary();
        } else {
            painter.secondary();
        }
        painter.figures(style, line, Qt::AlignRight | Qt::AlignVCenter, value);
        const double used = painter.figuresWidth(style, value);
        if (style == graphicsDeviceDetailStyle) {
            painter.secondary();
        } else {
            painter.primary();
        }
        painter.line(style, line.adjusted(0, 0, -used - graphicsDeviceTextGap, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, label);
        line.translate(0, step);
    };
    drawPair(graphicsDeviceNameStyle, block_.name, block_.utilization, block_.isLoadKnown);
    drawPair(graphicsDeviceDetailStyle, block_.kind, {});
    if (!block_.note.isEmpty()) drawPair(graphicsDeviceDetailStyle, block_.note, {});
    if (block_.workingSet)
        drawPair(graphicsDeviceDetailStyle, workingSetLabel(), *block_.workingSet);
}

}  // namespace vantor
