#include "ui/dashboard/flow_layout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace vantor {

FlowLayout::FlowLayout(int spacing, QWidget* parent) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
    items_.push_back(std::unique_ptr<QLayoutItem>(item));  // the toolkit hands over ownership
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    if (index < 0 || index >= count()) return nullptr;
    return items_[static_cast<std::size_t>(index)].get();
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    invalidate();
    return item;
}

int FlowLayout::heightForWidth(int width) const {
    return layOut(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::sizeHint() const {
    QSize size(0, 0);
    for (const auto& item : items_) {
        const QSize hint = item->sizeHint();
        if (size.width() > 0) size.rwidth() += spacing();
        size = QSize(size.width() + hint.width(), std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items_)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    layOut(area, true);
}

int FlowLayout::layOut(const QRect& area, bool place) const {
    const auto* widget = parentWidget();
    const Qt::LayoutDirection direction = widget ? widget->layoutDirection() : Qt::LeftToRight;
    int top = area.top();
    for (std::size_t first = 0; first < items_.size();) {
        std::size_t last = first;
        int right = area.left();
        int height = 0;
        while (last < items_.size()) {
            const QSize hint = items_[last]->sizeHint();
            if (last > first && right + hint.width() > area.left() + area.width()) break;
            right += hint.width() + spacing();
            height = std::max(height, hint.height());
            ++last;
        }
        int left = area.left();
        for (std::size_t i = first; place && i < last; ++i) {
            const QSize hint = items_[i]->sizeHint();
            const QRect cell(QPoint(left, top + (height - hint.height()) / 2), hint);
            items_[i]->setGeometry(QStyle::visualRect(direction, area, cell));
            left += hint.width() + spacing();
        }
        top += height + (last < items_.size() ? spacing() : 0);
        first = last;
    }
    return top - area.top();
}

}  // namespace vantor
