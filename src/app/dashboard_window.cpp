#include "app/dashboard_window.h"

#include <QIcon>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/components/make_child.h"

namespace vantor {

DashboardWindow::DashboardWindow(DashboardView::Environment environment)
    : dashboard_(makeChild<DashboardView>(this, std::move(environment))) {
    setWindowTitle(QStringLiteral("Vantor"));
    setWindowIcon(QIcon(QStringLiteral(":/vantor.svg")));
    setMinimumSize(smallestSize);
    // On a screen that is smaller than the default, as much of it as a window manager's frame
    // leaves.
    const QSize room = screen()->availableSize();
    const bool fits = defaultSize.boundedTo(room) == defaultSize;
    resize((fits ? defaultSize : defaultSize.boundedTo(room - QSize(16, 48)))
               .expandedTo(smallestSize));
    // The view paints every pixel; clearing the window first would be work for nothing.
    setAttribute(Qt::WA_NoSystemBackground);
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(dashboard_);
    dashboard_->setFocus();
}

}  // namespace vantor
