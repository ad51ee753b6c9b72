#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

/// `first_content COLOURS PROGRAM`: starts a program on the DISPLAY and prints how many
/// milliseconds later the middle of the screen has content: so many colours, of which the screen
/// had none before. The program is ended then. Exits with 1 when there was none within ten seconds.
namespace {

using Clock = std::chrono::steady_clock;
using Pixels = std::vector<std::uint32_t>;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// The different pixels of the middle ninth of the screen, in order.
Pixels coloursOf(xcb_connection_t* connection, const xcb_screen_t& screen) {
    const auto third = [](std::uint16_t length) { return static_cast<std::uint16_t>(length / 3); };
    const std::uint16_t width = third(screen.width_in_pixels);
    const std::uint16_t height = third(screen.height_in_pixels);
    const auto question = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root,
                                        static_cast<std::int16_t>(width),
                                        static_cast<std::int16_t>(height), width, height, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, Free> reply(
        xcb_get_image_reply(connection, question, nullptr));
    if (!reply) return {};
    Pixels pixels(static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) / 4);
    std::memcpy(pixels.data(), xcb_get_image_data(reply.get()), pixels.size() * 4);
    std::ranges::sort(pixels);
    const auto rest = std::ranges::unique(pixels);
    pixels.erase(rest.begin(), rest.end());
    return pixels;
}

/// Milliseconds until the content was there.
std::optional<double> wait(xcb_connection_t* connection, const xcb_screen_t& screen,
                           const Pixels& before, std::size_t colours, Clock::time_point start) {
    while (Clock::now() - start < std::chrono::seconds(10)) {
        const Clock::time_point asked = Clock::now();
        const Pixels now = coloursOf(connection, screen);
        const bool isOther = std::ranges::none_of(
            now, [&](auto one) { return std::ranges::binary_search(before, one); });
        if (isOther && now.size() >= colours)
            return std::chrono::duration<double, std::milli>(asked - start).count();
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "first_content COLOURS PROGRAM, with a DISPLAY\n");
        return 2;
    }
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get())) return 2;
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
    const Pixels before = coloursOf(connection.get(), screen);
    const Clock::time_point start = Clock::now();
    const pid_t program = ::fork();
    if (program == 0) {
        ::execv(argv[2], argv + 2);
        ::_exit(127);
    }
    const auto found = wait(connection.get(), screen, before, std::stoul(argv[1]), start);
    ::kill(program, SIGTERM);
    ::waitpid(program, nullptr, 0);
    if (!found) return 1;
    std::printf("%.1f\n", *found);
    return 0;
}
