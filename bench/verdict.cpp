#include "verdict.h"

#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

namespace vantor::bench {

Form::Form(int argc, char** argv) {
    const std::span arguments(argv, static_cast<std::size_t>(std::max(argc, 0)));
    isShort_ = std::ranges::any_of(
        arguments, [](const char* argument) { return std::string_view(argument) == "--short"; });
}

void tellResult(const char* name, double ratio, double limit, bool passes) {
    std::printf("RESULT\t%s\t%.2f\t%.2f\t%s\n", name, ratio, limit, passes ? "ok" : "TOO MUCH");
}

}  // namespace vantor::bench
