#include "ui/cards/volume_view.h"

#include <algorithm>
#include <cmath>

#include "ui/components/tool_tip_text.h"
#include "ui/components/usage_bar.h"
#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double fullFrom = 0.9;
constexpr double volumeSymbolSide = 15;
constexpr double volumeSymbolGap = 8;
constexpr double volumeLineSpacing = 6;
constexpr double volumeBarHeight = 7;

constexpr TextStyle volumeNameStyle{Typography::caption, QFont::Medium};
constexpr TextStyle volumeDetailStyle{Typography::caption2};
double heightOf(const TextStyle& style, const QWidget* widget) {
    return std::ceil(QFontMetricsF(Typography::font(style), widget).height());
}

}  // namespace

VolumeBlock VolumeBlock::of(const VolumeStats& volume) {
    const std::uint64_t free = std::min(volume.availableBytes, volume.totalBytes);
    const std::uint64_t used = volume.totalBytes - free;
    VolumeBlock block;
    block.symbol =
        volume.isInternal ? QStringLiteral("internaldrive") : QStringLiteral("externaldrive");
    block.name = shownText(volume.name);
    if (volume.totalBytes > 0) {
        block.usedFraction = static_cast<double>(used) / static_cast<double>(volume.totalBytes);
    }
    block.accent = block.usedFraction >= fullFrom ? VantorTheme::red() : VantorTheme::blue();
    block.usedText =
        //: %1 is an amount, of a disk
        translate("VolumeView", "%1 used").arg(Formatters::bytes(used));
    block.freeText =
        //: %1 is an amount, of a disk
        translate("VolumeView", "%1 free").arg(Formatters::bytes(free));
    block.help = shownText(volume.path);
    if (volume.isReadOnly)
        block.help =
            //: %1 is where a disk is found, such as /home
            translate("VolumeView", "%1 (read only)").arg(isolatedText(block.help));
    return block;
}

VolumeView::VolumeView(VolumeBlock block, QWidget* parent)
    : PaintedView(parent), block_(std::move(block)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void VolumeView::show(const VolumeStats& volume) {
    VolumeBlock block = VolumeBlock::of(volume);
    if (block == block_) return;
    if (block.name != block_.name) announceName();
    block_ = std::move(block);
    setToolTip(toolTipText(block_.help));
    update();
    announceValue();
}

QString VolumeView::accessibleValueText() const {
    return
        //: for screen readers: %1 is a share such as 45%, %2 "120 GB used", %3 "90 GB free"
        translate("VolumeView", "%1 full, %2, %3")
            .arg(Formatters::percent(block_.usedFraction, 0), block_.usedText, block_.freeText);
}

QSize VolumeView::sizeHint() const {
    return {Typography::scaled(240),
            static_cast<int>(heightOf(volumeNameStyle, this) + heightOf(volumeDetailStyle, this) +
                             2 * volumeLineSpacing + volumeBarHeight)};
}

QSize VolumeView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void VolumeView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const ColorScheme scheme = painter.scheme();
    const double across = width();
    const double nameHeight = heightOf(volumeNameStyle, this);
    const double symbol = volumeSymbolSide * Typography::lengthScale();
    Symbols::draw(painter, painter.leading({0, (nameHeight - symbol) / 2, symbol, symbol}),
                  block_.symbol, VantorTheme::secondaryLabel(scheme));
    const double left = symbol + volumeSymbolGap;
    painter.primary();
    painter.line(volumeNameStyle, {left, 0, across - left, nameHeight},
                 Qt::AlignLeft | Qt::AlignTop, block_.name);
    double top = nameHeight + volumeLineSpacing;
    paintUsageBar(painter, {0, top, across, volumeBarHeight},
                  {block_.usedFraction, block_.accent, volumeBarHeight});
    top += volumeBarHeight + volumeLineSpacing;
    painter.secondary();
    const QRectF line(0, top, across, heightOf(volumeDetailStyle, this));
    painter.figures(volumeDetailStyle, line, Qt::AlignLeft | Qt::AlignTop, block_.usedText);
    painter.figures(volumeDetailStyle, line, Qt::AlignRight | Qt::AlignTop, block_.freeText);
}

}  // namespace vantor
