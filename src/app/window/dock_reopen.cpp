#include "app/window/dock_reopen.h"

#include <QApplication>
#include <QMetaObject>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

bool showsAnything() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowType() != Qt::ToolTip;
    });
}

}  // namespace

DockReopen::DockReopen(std::function<void()> onReopen) : onReopen_(std::move(onReopen)) {
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &context_,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive || std::exchange(willLook_, true))
                             return;
                         QMetaObject::invokeMethod(
                             &context_, [this] { lookAround(); }, Qt::QueuedConnection);
                     });
}

void DockReopen::lookAround() {
    willLook_ = false;
    if (!showsAnything()) onReopen_();
}

}  // namespace vantor
