#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

#include <string>
#include <vector>

#include "ui/components/painted_view.h"
#include "ui/components/paragraph.h"
#include "ui/components/toggle_row.h"
#include "ui/rendering.h"

namespace vantor {

/// Puts another font on the program for as long as it lives.
class LargerFont {
  public:
    explicit LargerFont(double factor) : before_(QApplication::font()) {
        QFont font = before_;
        font.setPointSizeF(font.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    LargerFont(const LargerFont&) = delete;
    LargerFont& operator=(const LargerFont&) = delete;
    ~LargerFont() { QApplication::setFont(before_); }

  private:
    QFont before_;
};

namespace detail {

inline QString textOf(const QWidget& widget) {
    if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* label = dynamic_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* painted = dynamic_cast<const PaintedView*>(&widget)) {
        return painted->accessibleLabel() + u' ' + painted->accessibleValueText();
    }
    return {};
}

inline bool isTooSmall(const QWidget& widget) {
    const bool breaks = dynamic_cast<const ParagraphView*>(&widget) != nullptr ||
                        dynamic_cast<const ToggleRowView*>(&widget) != nullptr;
    if (breaks) return widget.height() < widget.heightForWidth(widget.width());
    const QSize needed = widget.sizeHint();
    return widget.width() < needed.width() || widget.height() < needed.height();
}

inline bool reachesOut(const QWidget& widget, const QWidget& whole) {
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        const QRect place(widget.mapTo(above, QPoint()), widget.size());
        // What scrolls may be higher than what it is seen through, and no wider.
        const bool isSeenThrough = above->objectName() == QStringLiteral("qt_scrollarea_viewport");
        const QRect room =
            isSeenThrough ? QRect(0, place.top(), above->width(), place.height()) : above->rect();
        if (!room.contains(place)) return true;
        if (isSeenThrough || above == &whole) return false;
    }
    return false;
}

}  // namespace detail

/// The texts in `whole` that have less room than they need, or that reach out of what they lie in.
inline std::vector<std::string> cutTexts(const QWidget& whole) {
    std::vector<std::string> cut;
    for (const QWidget* widget : whole.findChildren<QWidget*>()) {
        const QString text = detail::textOf(*widget);
        if (text.isEmpty() || !widget->isVisible()) continue;
        if (detail::isTooSmall(*widget) || detail::reachesOut(*widget, whole)) {
            cut.push_back(utf8(text));
        }
    }
    return cut;
}

}  // namespace vantor
