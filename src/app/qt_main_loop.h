#pragma once

#include <QObject>

#include <memory>

#include "platform/main_loop.h"

namespace vantor {

/// The toolkit's event loop as the program's main loop. To be made and destroyed on the main
/// thread; a task posted after that, by a probe that hangs, is dropped.
class QtMainLoop : public MainLoop {
  public:
    QtMainLoop();
    ~QtMainLoop() override;

    void post(Task task) override;
    TimerID runAfter(std::chrono::nanoseconds delay, Task task) override;
    void cancel(TimerID timer) override;

  private:
    struct Inbox;
    class Receiver;

    std::shared_ptr<Inbox> inbox_;
    std::unique_ptr<Receiver> receiver_;
};

}  // namespace vantor
