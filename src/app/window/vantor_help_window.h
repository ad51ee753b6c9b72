#pragma once

#include <functional>
#include <memory>

#include "app/window/content_window.h"
#include "platform/machine.h"

namespace vantor {

/// The help window: made on first use, kept when it is closed, and reused. Main thread.
class VantorHelpWindow {
  public:
    /// `prepare` is given the window once, when it has been made.
    VantorHelpWindow(std::shared_ptr<Machine> machine, std::function<void(QWidget&)> prepare)
        : machine_(std::move(machine)), prepare_(std::move(prepare)) {}

    void show();
    ContentWindow* window() { return window_.get(); }
    void release() { window_.reset(); }

  private:
    std::shared_ptr<Machine> machine_;
    std::function<void(QWidget&)> prepare_;
    std::unique_ptr<ContentWindow> window_;
};

}  // namespace vantor
