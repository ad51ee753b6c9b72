#include "app/window/launch_stabilizer_view.h"

#include <QEvent>
#include <QLayout>

#include <chrono>

#include "app/window/dashboard_window.h"
#include "app/window/window_system.h"
#include "ui/components/make_child.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

// Longer than between two steps of a slow drag, too short to be noticed.
constexpr auto resizePause = 150ms;

void setOpacity(QWidget& window, double opacity) {
    // Asking a window that cannot be made transparent is answered with a warning.
    if (!isWayland()) window.setWindowOpacity(opacity);
}

}  // namespace

LaunchStabilizerView::LaunchStabilizerView(std::shared_ptr<MainLoop> mainLoop,
                                           OnLiveResize onLiveResize, QWidget* parent)
    : QWidget(parent), mainLoop_(std::move(mainLoop)), onLiveResize_(std::move(onLiveResize)) {
    setFixedSize(0, 0);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    viewDidMoveToWindow();
}

LaunchStabilizerView::~LaunchStabilizerView() {
    cancelTask(revealTask_);
    cancelTask(resizeEndTask_);
}

bool LaunchStabilizerView::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::Show)
        viewDidMoveToWindow();
    return QWidget::event(event);
}

void LaunchStabilizerView::viewDidMoveToWindow() {
    QWidget* const now = window() == this ? nullptr : window();
    if (now == window_) return;
    restoreFormerWindow();
    window_ = now;
    if (!now) return;
    now->installEventFilter(this);
    originalAlphaValue_ = now->windowOpacity() > 0 ? now->windowOpacity() : 1;
    setOpacity(*now, 0);
    now->setMinimumSize(DashboardWindow::minSize);
    scheduleReveal();
}

void LaunchStabilizerView::restoreFormerWindow() {
    cancelTask(revealTask_);
    endLiveResize();
    if (!window_) return;
    window_->removeEventFilter(this);
    setOpacity(*window_, originalAlphaValue_);
}

/// Two turns of the loop: the first layout passes run meanwhile.
void LaunchStabilizerView::scheduleReveal() {
    revealTask_ = std::make_shared<MainTask>(mainLoop_);
    revealTask_->post([this] { revealTask_->post([this] { reveal(); }); });
}

void LaunchStabilizerView::reveal() {
    revealTask_ = nullptr;
    if (!window_) return;
    if (QLayout* const layout = window_->layout()) layout->activate();
    if (window_->isVisible()) window_->repaint();
    setOpacity(*window_, originalAlphaValue_);
}

bool LaunchStabilizerView::eventFilter(QObject* object, QEvent* event) {
    const bool isUsers = event->type() == QEvent::Resize && event->spontaneous();
    if (object == window_ && isUsers && !isRevealing()) resizedByUser();
    return QWidget::eventFilter(object, event);
}

void LaunchStabilizerView::resizedByUser() {
    if (!isLiveResizing_) {
        isLiveResizing_ = true;
        onLiveResize_(true);
    }
    cancelTask(resizeEndTask_);
    resizeEndTask_ = std::make_shared<MainTask>(mainLoop_);
    resizeEndTask_->sleep(resizePause, [this] { endLiveResize(); });
}

void LaunchStabilizerView::endLiveResize() {
    cancelTask(resizeEndTask_);
    if (!isLiveResizing_) return;
    isLiveResizing_ = false;
    onLiveResize_(false);
}

LaunchStabilizerView* MainWindowLaunchStabilizer(std::shared_ptr<MainLoop> mainLoop,
                                                 LaunchStabilizerView::OnLiveResize onLiveResize,
                                                 QWidget* view) {
    return makeChild<LaunchStabilizerView>(view, std::move(mainLoop), std::move(onLiveResize));
}

}  // namespace vantor
