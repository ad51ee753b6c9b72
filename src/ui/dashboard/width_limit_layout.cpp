#include "ui/dashboard/width_limit_layout.h"

#include <algorithm>

namespace vantor {

WidthLimitLayout::WidthLimitLayout(int limit, QWidget* parent)
    : WrappingLayout(parent), limit_(limit) {}

QSize WidthLimitLayout::sizeHint() const {
    return {limit_, heightForWidth(limit_)};
}

int WidthLimitLayout::layOut(const QRect& area, bool place) const {
    const int width = std::min(area.width(), limit_);
    const int left = area.left() + (area.width() - width) / 2;
    int top = area.top();
    for (const auto& item : items()) {
        const int height =
            item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
        if (place) item->setGeometry({left, top, width, height});
        top += height;
    }
    return top - area.top();
}

}  // namespace vantor
