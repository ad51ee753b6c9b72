#include "ui/dashboard/flow_layout.h"

#include <algorithm>

namespace vantor {

FlowLayout::FlowLayout(int spacing, QWidget* parent) : WrappingLayout(parent) {
    setSpacing(spacing);
}

QSize FlowLayout::sizeHint() const {
    QSize size(0, 0);
    for (const auto& item : items()) {
        const QSize hint = item->sizeHint();
        if (size.width() > 0) size.rwidth() += spacing();
        size = QSize(size.width() + hint.width(), std::max(size.height(), hint.height()));
    }
    return size;
}

int FlowLayout::layOut(const QRect& area, bool place) const {
    int top = area.top();
    for (std::size_t first = 0; first < items().size();) {
        std::size_t last = first;
        int right = area.left();
        int height = 0;
        while (last < items().size()) {
            const QSize hint = items()[last]->sizeHint();
            if (last > first && right + hint.width() > area.left() + area.width()) break;
            right += hint.width() + spacing();
            height = std::max(height, hint.height());
            ++last;
        }
        int left = area.left();
        for (std::size_t i = first; place && i < last; ++i) {
            const QSize hint = items()[i]->sizeHint();
            const QRect cell(QPoint(left, top + (height - hint.height()) / 2), hint);
            placeItem(*items()[i], cell, area);
            left += hint.width() + spacing();
        }
        top += height + (last < items().size() ? spacing() : 0);
        first = last;
    }
    return top - area.top();
}

}  // namespace vantor
