#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/main_loop.h"
#include "platform/published.h"
#include "platform/serial_queue.h"
#include "platform/shared_file.h"

namespace vantor {

/// Whether the program is opened when its user logs in.
struct LoginState {
    bool isOn = false;
    std::string problem;  ///< why it is not known, or was not changed, as one sentence; or empty

    bool operator==(const LoginState&) const = default;
};

/// Opens the program when its user logs in, by an entry in the user's folder for them. The entry is
/// what desktops go by and other programs change; so it is the only memory there is, and is read
/// again each time that somebody looks.
///
/// It is written here, and not by the desktop's portal (org.freedesktop.portal.Background): that
/// one cannot be asked what is set, and finds the name of a program that is in no sandbox by
/// guessing. In a sandbox the folder is another one than the desktop's, and this is not to be used.
///
/// Files are read and written on a queue that exists only while there is work. Main thread.
class LoginItem : public std::enable_shared_from_this<LoginItem> {
  public:
    static constexpr std::chrono::seconds slowness{2};  ///< after which a disk does not answer

    struct Environment {
        std::shared_ptr<SharedFile> entry;
        /// The command or path that opens this program; empty where there is none. Called on the
        /// queue: it may look at the disk.
        std::function<std::string()> program;
        std::shared_ptr<MainLoop> mainLoop;
        std::shared_ptr<SerialQueueFactory> queues;
    };

    static std::shared_ptr<LoginItem> make(Environment environment);
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    ~LoginItem();

    /// What is known; off until something is. Published after each look and each change.
    Published<LoginState>& state() { return state_; }

    void look();
    void set(bool isOn);

  private:
    explicit LoginItem(Environment environment) : environment_(std::move(environment)) {}
    void begin(std::optional<bool> change);
    void takeUp(const LoginState& found);
    void watchSlowness();
    void stopWatching();

    Environment environment_;
    Published<LoginState> state_{LoginState{}};
    std::unique_ptr<SerialQueue> queue_;  // while there is work: at most one task
    bool looksAgain_ = false;
    std::optional<bool> change_;  // that waits for the task's end
    MainLoop::TimerID slownessTimer_ = 0;
};

}  // namespace vantor
