#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

#include "platform/main_loop.h"
#include "sampling/main_task.h"

namespace vantor {

/// Keeps a window from showing half-laid-out content when it first appears, and reports when the
/// user resizes it. Has no size; a child of the window's view. Main thread.
///
/// Window systems do not report when a live resize begins or ends: it begins with the first resize
/// that was not the program's, and has ended when there was none for a while.
class LaunchStabilizerView : public QWidget {
  public:
    using OnLiveResize = std::function<void(bool isActive)>;

    LaunchStabilizerView(std::shared_ptr<MainLoop> mainLoop, OnLiveResize onLiveResize,
                         QWidget* parent = nullptr);
    ~LaunchStabilizerView() override;

    /// What the window's opacity is when it is revealed.
    double originalAlphaValue() const { return originalAlphaValue_; }
    bool isRevealing() const { return revealTask_ != nullptr; }
    QWidget* stabilizedWindow() const { return window_; }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void viewDidMoveToWindow();
    void restoreFormerWindow();
    void scheduleReveal();
    void reveal();
    void resizedByUser();
    void endLiveResize();

    std::shared_ptr<MainLoop> mainLoop_;
    OnLiveResize onLiveResize_;
    QPointer<QWidget> window_;
    double originalAlphaValue_ = 1;
    std::shared_ptr<MainTask> revealTask_;
    std::shared_ptr<MainTask> resizeEndTask_;
    bool isLiveResizing_ = false;
};

/// Puts a stabiliser into a view.
LaunchStabilizerView* MainWindowLaunchStabilizer(std::shared_ptr<MainLoop> mainLoop,
                                                 LaunchStabilizerView::OnLiveResize onLiveResize,
                                                 QWidget* view);

}  // namespace vantor
