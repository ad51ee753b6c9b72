#include "app/dashboard_window.h"

#include <QIcon>
#include <QVBoxLayout>

#include "ui/components/make_child.h"

namespace vantor {

DashboardWindow::DashboardWindow(DashboardView::Environment environment)
    : dashboard_(makeChild<DashboardView>(this, std::move(environment))) {
    setWindowTitle(QStringLiteral("Vantor"));
    setWindowIcon(QIcon(QStringLiteral(":/vantor.svg")));
    setMinimumSize(smallestSize);
    resize(defaultSize);
    // The view paints every pixel; clearing the window first would be work for nothing.
    setAttribute(Qt::WA_NoSystemBackground);
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(dashboard_);
}

}  // namespace vantor
