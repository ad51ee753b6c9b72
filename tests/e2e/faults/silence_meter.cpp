#include "e2e/faults/silence_meter.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>

namespace vantor {

namespace {

constexpr auto interval = std::chrono::milliseconds(10);
/// How long an answer is waited for once the asking is over.
constexpr double lastPatience = 2;

double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Seconds for which the main thread has wanted a processor and had none, so far.
double waitedForProcessor(long long process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/schedstat");
    double ran = 0;
    double waited = 0;
    return file >> ran >> waited ? waited / 1e9 : 0;
}

struct FreeEvent {
    void operator()(void* event) const { std::free(event); }
};

}  // namespace

SilenceMeter::SilenceMeter(const std::string& display, std::vector<Subject> subjects) {
    int number = 0;
    connection_.reset(xcb_connect(display.c_str(), &number));
    if (xcb_connection_has_error(connection_.get()) != 0) {
        connection_.reset();
        return;
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    protocols_ = atom("WM_PROTOCOLS");
    ping_ = atom("_NET_WM_PING");
    // Answers go to the root window, as structure's events there; of those for the window manager
    // alone nobody else may have any.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &events);
    for (const Subject& subject : subjects)
        watched_.push_back({subject, {}, 0, 0, 0});
    thread_ = std::thread([this] { run(); });
}

SilenceMeter::~SilenceMeter() {
    isOver_ = true;
    if (thread_.joinable()) thread_.join();
}

xcb_atom_t SilenceMeter::atom(const char* name) {
    const auto request =
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeEvent> reply(
        xcb_intern_atom_reply(connection_.get(), request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void SilenceMeter::ask(std::uint32_t number) {
    for (Watched& each : watched_) {
        xcb_client_message_event_t question = {};
        question.response_type = XCB_CLIENT_MESSAGE;
        question.format = 32;
        question.window = each.subject.window;
        question.type = protocols_;
        question.data.data32[0] = ping_;
        question.data.data32[1] = number;
        question.data.data32[2] = each.subject.window;
        each.open[number] = {now(), waitedForProcessor(each.subject.process)};
        xcb_send_event(connection_.get(), 0, each.subject.window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&question));
    }
    xcb_flush(connection_.get());
}

void SilenceMeter::take(const xcb_client_message_event_t& answer) {
    if (answer.type != protocols_ || answer.data.data32[0] != ping_) return;
    const double at = now();
    for (Watched& each : watched_) {
        if (each.subject.window != answer.data.data32[2]) continue;
        const auto question = each.open.find(answer.data.data32[1]);
        if (question == each.open.end()) return;
        const double waited =
            std::max(0.0, waitedForProcessor(each.subject.process) - question->second.waited);
        const double silence = at - question->second.asked - waited;
        if (silence > each.longest) {
            each.longest = silence;
            each.waitInLongest = waited;
        }
        ++each.answers;
        each.open.erase(question);
    }
}

void SilenceMeter::handleEvents() {
    while (true) {
        const std::unique_ptr<xcb_generic_event_t, FreeEvent> event(
            xcb_poll_for_event(connection_.get()));
        if (!event) return;
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE)
            take(*reinterpret_cast<const xcb_client_message_event_t*>(event.get()));
    }
}

void SilenceMeter::run() {
    std::uint32_t number = 0;
    double next = now();
    while (!isOver_ && xcb_connection_has_error(connection_.get()) == 0) {
        {
            const std::lock_guard lock(mutex_);
            handleEvents();
            if (now() >= next) {
                ask(++number);
                next = now() + std::chrono::duration<double>(interval).count();
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    const double end = now() + lastPatience;
    const auto isOpen = [](const Watched& each) { return !each.open.empty(); };
    while (std::ranges::any_of(watched_, isOpen) && now() < end &&
           xcb_connection_has_error(connection_.get()) == 0) {
        handleEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

std::vector<double> SilenceMeter::longestSilences() {
    isOver_ = true;
    if (thread_.joinable()) thread_.join();
    std::vector<double> longest;
    for (const Watched& each : watched_) {
        double silence = each.longest;
        for (const auto& [number, question] : each.open)
            silence = std::max(silence, now() - question.asked);
        longest.push_back(silence * 1000);
    }
    return longest;
}

std::vector<double> SilenceMeter::waits() const {
    const std::lock_guard lock(mutex_);
    std::vector<double> waits;
    for (const Watched& each : watched_)
        waits.push_back(each.waitInLongest * 1000);
    return waits;
}

std::vector<int> SilenceMeter::answers() const {
    const std::lock_guard lock(mutex_);
    std::vector<int> counts;
    for (const Watched& each : watched_)
        counts.push_back(each.answers);
    return counts;
}

}  // namespace vantor
