#pragma once

#include <QRect>
#include <QScrollArea>

namespace vantor {

/// Scrolls what `widget` lies in, if anything, until `area` of it can be seen: the upper
/// part, where it is taller than the room that there is.
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
