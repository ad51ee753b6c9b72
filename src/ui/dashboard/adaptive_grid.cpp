#include "ui/dashboard/adaptive_grid.h"

#include <algorithm>
#include <cmath>

namespace vantor {

int AdaptiveColumns::count(double available) const {
    return std::max(1, static_cast<int>(std::floor((available + spacing) / (minimum + spacing))));
}

double AdaptiveColumns::width(double available) const {
    const int columns = count(available);
    return std::clamp((available - spacing * (columns - 1)) / columns, 0.0, maximum);
}

AdaptiveGridLayout::AdaptiveGridLayout(AdaptiveColumns columns, QWidget* parent)
    : WrappingLayout(parent), columns_(columns) {}

QSize AdaptiveGridLayout::sizeHint() const {
    const int width = static_cast<int>(columns_.maximum);
    return {width, heightForWidth(width)};
}

int AdaptiveGridLayout::layOut(const QRect& area, bool place) const {
    const auto columns = static_cast<std::size_t>(columns_.count(area.width()));
    const int width = static_cast<int>(std::floor(columns_.width(area.width())));
    const int spacing = static_cast<int>(columns_.spacing);
    const int used = (width + spacing) * static_cast<int>(columns) - spacing;
    const int left = area.left() + std::max(0, (area.width() - used) / 2);
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
            const QRect cell(left + column * (width + spacing), top, width, height);
            placeItem(*items()[i], cell, area);
        }
        top += height + (last < items().size() ? spacing : 0);
    }
    return top - area.top();
}

}  // namespace vantor
