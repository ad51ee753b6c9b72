#include "platform/linux/graphics/card_back_off.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/graphics/drm_listing.h"

namespace vantor {

namespace fs = std::filesystem;

namespace {

// Where no delay is set, drivers wait some seconds all the same.
constexpr double usualDelay = 5;

/// A folder "card0-HDMI-A-1" below "card0" whose connector is in use.
bool showsPictures(const fs::path& card) {
    std::error_code error;
    for (fs::directory_iterator at(card, error), end; !error && at != end; at.increment(error)) {
        if (!at->path().filename().native().starts_with(card.filename().native() + '-')) continue;
        if (readKernelText(at->path() / "enabled") == "enabled") return true;
    }
    return false;
}

}  // namespace

std::optional<double> parseAutosuspendDelay(std::string_view text) {
    std::int64_t milliseconds = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, milliseconds);
    if (error != std::errc{} || (rest != end && std::string_view(rest, end) != "\n")) {
        return std::nullopt;
    }
    if (milliseconds < 0) return std::nullopt;
    return static_cast<double>(milliseconds) / 1000;
}

std::optional<double> CardBackOff::findDelay(const fs::path& device) {
    if (readKernelText(device / "power/control") != "auto") return std::nullopt;
    if (readKernelText(device / "power/runtime_status") != "active") return std::nullopt;
    std::error_code error;
    for (fs::directory_iterator at(device / "drm", error), end; !error && at != end;
         at.increment(error)) {
        const bool isCard = parseCardNumber(at->path().filename().native()).has_value();
        if (isCard && showsPictures(at->path())) return std::nullopt;
    }
    const auto text = readKernelText(device / "power/autosuspend_delay_ms");
    const auto delay = text ? parseAutosuspendDelay(*text) : usualDelay;
    return delay && *delay <= maxDelay ? delay : std::nullopt;
}

bool CardBackOff::isResting(double now) {
    if (!restsUntil_) return false;
    if (delay_ && now < *restsUntil_) return true;
    restsUntil_.reset();
    askedUntil_ = now + retryInterval;
    idleAnswers_ = 0;
    return false;
}

void CardBackOff::note(double now, std::optional<double> utilization) {
    idleAnswers_ = utilization.value_or(0) > 0 ? 0 : idleAnswers_ + 1;
    if (!delay_ || idleAnswers_ < 2) return;
    if (askedUntil_ && now < *askedUntil_) return;
    restsUntil_ = now + *delay_ + margin;
}

void CardBackOff::reset() {
    restsUntil_.reset();
    askedUntil_.reset();
    idleAnswers_ = 0;
}

}  // namespace vantor
