#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"

#include <QVBoxLayout>

#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

ModernMenuBarDashboardHost::ModernMenuBarDashboardHost(
    MenuBarDashboardView::Environment environment, const OpenWindow& openWindow, QWidget* parent)
    : QWidget(parent),
      view_(makeChild<MenuBarDashboardView>(this, std::move(environment), [openWindow] {
          if (openWindow) openWindow(QStringLiteral("dashboard"));
      })) {
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);
}

}  // namespace vantor
