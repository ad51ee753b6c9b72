#include "support/burner.h"

#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>
#include <thread>
#include <vector>

namespace vantor {

using namespace std::chrono_literals;

struct Burner::Books {
    std::array<std::atomic<std::int64_t>, maxThreads> nanoseconds{};
};

namespace {

[[noreturn]] void burn(std::atomic<std::int64_t>& nanoseconds) {
    for (;;) {
        for (volatile int i = 0; i < 2000;)
            i = i + 1;
        struct timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        nanoseconds = std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
    }
}

}  // namespace

void Burner::Unmap::operator()(Books* books) const {
    ::munmap(books, sizeof(Books));
}

Burner::Burner(int threads) : threads_(std::min(threads, maxThreads)) {
    void* const memory =
        ::mmap(nullptr, sizeof(Books), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) std::abort();
    books_.reset(new (memory) Books);
    child_.emplace([this] {
        std::vector<std::thread> others;
        for (int i = 1; i < threads_; ++i)
            others.emplace_back(
                [&time = books_->nanoseconds[static_cast<std::size_t>(i)]] { burn(time); });
        burn(books_->nanoseconds[0]);
    });
    const auto begin = books_->nanoseconds.begin();
    while (std::any_of(begin, begin + threads_, [](const auto& time) { return time == 0; }))
        std::this_thread::sleep_for(1ms);
}

double Burner::spent() const {
    std::int64_t all = 0;
    for (int i = 0; i < threads_; ++i)
        all += books_->nanoseconds[static_cast<std::size_t>(i)];
    return static_cast<double>(all) * 1e-9;
}

double Burner::charged() const {
    double nanoseconds = 0;
    const std::string tasks = "/proc/" + std::to_string(pid()) + "/task";
    for (const auto& task : std::filesystem::directory_iterator(tasks)) {
        double ran = 0;
        std::ifstream(task.path() / "schedstat") >> ran;
        nanoseconds += ran;
    }
    return nanoseconds * 1e-9;
}

}  // namespace vantor
