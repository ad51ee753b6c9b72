#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "sleeping_children.h"

/// `sleeping_crowd COUNT`: so many processes, each with a memory of its own, that sleep until its
/// input ends. Says "ready" when all are there, "too few" where the system allows no more.
int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    const vantor::bench::SleepingChildren children(count);
    const bool isWhole = children.count() == static_cast<std::size_t>(count);
    std::puts(isWhole ? "ready" : "too few");
    std::fflush(stdout);
    std::array<char, 64> rest{};
    while (::read(STDIN_FILENO, rest.data(), rest.size()) > 0) {
    }
}
