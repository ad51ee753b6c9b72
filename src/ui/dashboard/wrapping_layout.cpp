#include "ui/dashboard/wrapping_layout.h"

#include <QStyle>
#include <QWidget>

namespace vantor {

WrappingLayout::WrappingLayout(QWidget* parent) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
}

WrappingLayout::~WrappingLayout() = default;

void WrappingLayout::addItem(QLayoutItem* item) {
    items_.push_back(std::unique_ptr<QLayoutItem>(item));  // the toolkit hands over ownership
    invalidate();
}

QLayoutItem* WrappingLayout::itemAt(int index) const {
    if (index < 0 || index >= count()) return nullptr;
    return items_[static_cast<std::size_t>(index)].get();
}

QLayoutItem* WrappingLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    invalidate();
    return item;
}

int WrappingLayout::heightForWidth(int width) const {
    return layOut(QRect(0, 0, width, 0), false);
}

QSize WrappingLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items_)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void WrappingLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    layOut(area, true);
}

void WrappingLayout::placeItem(QLayoutItem& item, const QRect& cell, const QRect& area) const {
    const QWidget* widget = parentWidget();
    const auto direction = widget ? widget->layoutDirection() : Qt::LeftToRight;
    item.setGeometry(QStyle::visualRect(direction, area, cell));
}

}  // namespace vantor
