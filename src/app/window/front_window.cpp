#include "app/window/front_window.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace vantor {

namespace {

bool isLasting(const QWidget* window) {
    return window && window->isVisible() && window->windowType() == Qt::Window;
}

}  // namespace

QWidget* frontWindow() {
    if (QWidget* const active = QApplication::activeWindow(); isLasting(active)) return active;
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(all, isLasting);
    return found == all.end() ? nullptr : *found;
}

}  // namespace vantor
