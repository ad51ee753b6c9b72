#include "ui/dashboard/adaptive_grid.h"

#include <QStyle>
#include <QWidget>

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
    : QLayout(parent), columns_(columns) {
    setContentsMargins(0, 0, 0, 0);
}

AdaptiveGridLayout::~AdaptiveGridLayout() = default;

void AdaptiveGridLayout::addItem(QLayoutItem* item) {
    items_.push_back(std::unique_ptr<QLayoutItem>(item));  // the toolkit hands over ownership
    invalidate();
}

QLayoutItem* AdaptiveGridLayout::itemAt(int index) const {
    if (index < 0 || index >= count()) return nullptr;
    return items_[static_cast<std::size_t>(index)].get();
}

QLayoutItem* AdaptiveGridLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    invalidate();
    return item;
}

int AdaptiveGridLayout::heightForWidth(int width) const {
    return layOut(QRect(0, 0, width, 0), false);
}

QSize AdaptiveGridLayout::sizeHint() const {
    const int width = static_cast<int>(columns_.maximum);
    return {width, heightForWidth(width)};
}

QSize AdaptiveGridLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items_)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void AdaptiveGridLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    layOut(area, true);
}

int AdaptiveGridLayout::layOut(const QRect& area, bool place) const {
    const auto columns = static_cast<std::size_t>(columns_.count(area.width()));
    const int width = static_cast<int>(std::floor(columns_.width(area.width())));
    const int spacing = static_cast<int>(columns_.spacing);
    const int used = (width + spacing) * static_cast<int>(columns) - spacing;
    const int left = area.left() + std::max(0, (area.width() - used) / 2);
    const auto* widget = parentWidget();
    const Qt::LayoutDirection direction = widget ? widget->layoutDirection() : Qt::LeftToRight;
    int top = area.top();
    for (std::size_t first = 0; first < items_.size(); first += columns) {
        const std::size_t last = std::min(first + columns, items_.size());
        int height = 0;
        for (std::size_t i = first; i < last; ++i) {
            const auto& item = items_[i];
            height = std::max(height, item->hasHeightForWidth() ? item->heightForWidth(width)
                                                                : item->sizeHint().height());
        }
        for (std::size_t i = first; place && i < last; ++i) {
            const int column = static_cast<int>(i - first);
            const QRect cell(left + column * (width + spacing), top, width, height);
            items_[i]->setGeometry(QStyle::visualRect(direction, area, cell));
        }
        top += height + (last < items_.size() ? spacing : 0);
    }
    return top - area.top();
}

}  // namespace vantor
