#include "ui/dashboard/adaptive_grid.h"

#include <algorithm>
#include <cmath>

namespace vantor {

int AdaptiveColumns::count(double available) const {
    return std::max(1, static_cast<int>(std::floor((available + spacing) / (minimum + spacing))));
}

int AdaptiveColumns::balancedCount(double available, int items) const {
    const int columns = count(available);
    if (columns < 3 || items <= columns) return columns;
    const int rows = (items + columns - 1) / columns;
    const int even = (items + rows - 1) / rows;
    const bool isFilled = even * (maximum + spacing) - spacing > available - 1;
    return items % columns == 1 || isFilled ? even : columns;
}

double AdaptiveColumns::width(double available, int columns) const {
    return std::clamp((available - spacing * (columns - 1)) / columns, 0.0, maximum);
}

double AdaptiveColumns::usedWidth(double available, int items) const {
    const int columns = balancedCount(available, items);
    return columns * (width(available, columns) + spacing) - spacing;
}

AdaptiveGridLayout::AdaptiveGridLayout(AdaptiveColumns columns, QWidget* parent)
    : WrappingLayout(parent), columns_(columns) {}

QSize AdaptiveGridLayout::sizeHint() const {
    const int width = static_cast<int>(columns_.maximum);
    return {width, heightForWidth(width)};
}

int AdaptiveGridLayout::layOut(const QRect& area, bool place) const {
    const int itemCount = static_cast<int>(items().size());
    const int columnCount = columns_.balancedCount(area.width(), itemCount);
    const auto columns = static_cast<std::size_t>(columnCount);
    const double exact = columns_.width(area.width(), columnCount);
    const int spacing = static_cast<int>(columns_.spacing);
    const double used = columns_.usedWidth(area.width(), itemCount);
    const double left = area.left() + std::max(0.0, (area.width() - used) / 2);
    // Both outer edges are those of the area; what does not divide makes a column a point wider.
    const auto edge = [&](int column) {
        return static_cast<int>(std::lround(left + column * (exact + spacing)));
    };
    const int width = static_cast<int>(std::floor(exact));
    int top = area.top();
    for (std::size_t first = 0; first < items().size(); first += columns) {
        const std::size_t last = std::min(first + columns, items().size());
        int height = 0;
        for (std::size_t i = first; i < last; ++i) {
            const auto& item = items()[i];
            height = std::max(height, item->hasHeightForWidth() ? item->heightForWidth(width)
                                                                : item->sizeHint().height());
        }
        for (std::size_t i = first; place && i < last; ++i) {
            const int column = static_cast<int>(i - first);
            const QRect cell(edge(column), top, edge(column + 1) - spacing - edge(column), height);
            placeItem(*items()[i], cell, area);
        }
        top += height + (last < items().size() ? spacing : 0);
    }
    return top - area.top();
}

}  // namespace vantor
