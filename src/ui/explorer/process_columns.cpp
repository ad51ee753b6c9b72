#include "ui/explorer/process_columns.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr double columnGap = 12;
constexpr double iconWidth = 18;
constexpr double iconGap = 8;
constexpr double pidWidth = 64;
constexpr double cpuWidth = 120;
constexpr double memoryWidth = 140;
constexpr double processColumnsBarGap = 8;
constexpr double narrowestName = 110;

}  // namespace

/// Where a large font leaves no space for names, there are no bars: the figures say the same.
ProcessColumns ProcessColumns::make(double width, double height, double scale) {
    const double figures = 2 * sideInset + iconGap + 3 * columnGap +
                           (iconWidth + pidWidth + cpuWidth + memoryWidth) * scale;
    const bool hasBars = width - figures >= narrowestName * scale;
    double right = width - sideInset;
    const auto take = [&](double length) {
        right -= length * scale;
        return QRectF(right, 0, length * scale, height);
    };
    ProcessColumns columns;
    columns.memoryBar = take(hasBars ? memoryBarWidth : 0);
    right -= hasBars ? processColumnsBarGap : 0;
    columns.memoryText = take(memoryWidth - memoryBarWidth - processColumnsBarGap);
    right -= columnGap;
    columns.cpuBar = take(hasBars ? cpuBarWidth : 0);
    right -= hasBars ? processColumnsBarGap : 0;
    columns.cpuText = take(cpuWidth - cpuBarWidth - processColumnsBarGap);
    right -= columnGap;
    columns.pid = take(pidWidth);
    right -= columnGap;
    columns.icon = QRectF(sideInset, 0, iconWidth * scale, height);
    const double left = columns.icon.right() + iconGap;
    columns.name = QRectF(left, 0, std::max(0.0, right - left), height);
    return columns;
}

}  // namespace vantor
