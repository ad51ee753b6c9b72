#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace vantor {

/// How long a program's main thread is silent: every ten milliseconds its window is asked whether
/// it lives (_NET_WM_PING), which the toolkit answers from the main thread's event loop, and the
/// time until the answer is taken.
///
/// Measured is what a user would wait, so the X server's and this machine's own delays are in it.
/// Where the process is known, the time for which its main thread wanted a processor and had none
/// is taken off: others' work is no silence of the program. What is left of the noise shows in a
/// second window, of a program that does nothing, which is asked in the same breath.
class SilenceMeter {
  public:
    /// A window, and the process whose main thread answers for it.
    struct Subject {
        xcb_window_t window = XCB_NONE;
        long long process = 0;
    };

    /// Asks from now on, on a thread of its own. `display` as in the environment's DISPLAY.
    SilenceMeter(const std::string& display, std::vector<Subject> subjects);
    SilenceMeter(const SilenceMeter&) = delete;
    SilenceMeter& operator=(const SilenceMeter&) = delete;
    ~SilenceMeter();

    bool isConnected() const { return connection_ != nullptr; }

    /// Ends the asking. Milliseconds of the longest silence of each subject; a question that has
    /// not been answered counts with its age.
    std::vector<double> longestSilences();

    /// Milliseconds that were taken off each of these, because others had the processor.
    std::vector<double> waits() const;

    /// How many questions each has answered.
    std::vector<int> answers() const;

  private:
    struct Question {
        double asked = 0;   ///< seconds
        double waited = 0;  ///< for a processor, by then
    };
    struct Watched {
        Subject subject;
        std::map<std::uint32_t, Question> open;
        double longest = 0;        ///< seconds
        double waitInLongest = 0;  ///< seconds
        int answers = 0;
    };
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void run();
    void ask(std::uint32_t number);
    void take(const xcb_client_message_event_t& answer);
    void handleEvents();
    xcb_atom_t atom(const char* name);

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = XCB_NONE;
    xcb_atom_t protocols_ = XCB_NONE;
    xcb_atom_t ping_ = XCB_NONE;
    mutable std::mutex mutex_;
    std::vector<Watched> watched_;
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

}  // namespace vantor
