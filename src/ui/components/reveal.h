#pragma once

#include <QRect>
#include <QScrollArea>

namespace vantor {

/// Scrolls the scroll view around `widget`, if any, until `area` of it is visible: the upper part,
/// where it is taller than the viewport.
inline void reveal(QWidget& widget, const QRect& area) {
    constexpr int margin = 24;
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        auto* scrolled = qobject_cast<QScrollArea*>(above);
        if (!scrolled) continue;
        for (const QPoint corner : {area.bottomLeft(), area.topLeft()}) {
            const QPoint place = widget.mapTo(scrolled->widget(), corner);
            scrolled->ensureVisible(place.x(), place.y(), 0, margin);
        }
        return;
    }
}

}  // namespace vantor
