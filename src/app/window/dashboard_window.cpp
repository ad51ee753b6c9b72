#include "app/window/dashboard_window.h"

#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

#include "app/window/launch_stabilizer_view.h"
#include "ui/components/make_child.h"
#include "ui/product_icon.h"

namespace vantor {

DashboardWindow::DashboardWindow(DashboardView::Environment environment, AppCommands& commands,
                                 std::function<void(bool isActive)> onLiveResize) {
    const auto mainLoop = environment.mainLoop;
    dashboard_ = makeChild<DashboardView>(this, std::move(environment));
    MainWindowLaunchStabilizer(mainLoop, std::move(onLiveResize), this);
    if (commands.sharedMenuBar()) {
        commands.addTo(this);
    } else {
        dashboard_->setMenuBar(commands.makeMenuBar(dashboard_));
    }
    setWindowTitle(QStringLiteral("Vantor"));
    setWindowIcon(productIcon());
    setMinimumSize(minSize);
    // On a screen that is smaller than the default, as much of it as a window manager's frame
    // leaves.
    const QSize room = screen()->availableSize();
    const bool fits = defaultSize.boundedTo(room) == defaultSize;
    resize((fits ? defaultSize : defaultSize.boundedTo(room - QSize(16, 48))).expandedTo(minSize));
    // The view paints every pixel; clearing the window first would be wasted.
    setAttribute(Qt::WA_NoSystemBackground);
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(dashboard_);
    dashboard_->setFocus();
}

}  // namespace vantor
