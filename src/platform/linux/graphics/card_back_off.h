#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace vantor {

/// Lets a card fall asleep. To most drivers a question is a use of the card, so one that is asked
/// each second is never left alone for as long as the kernel waits before it puts it to sleep. A
/// card that does nothing is therefore left alone for that long, once in a while. Pure but for
/// findDelay.
class CardBackOff {
  public:
    /// Beyond what the kernel waits, so that it gets to it; in seconds.
    static constexpr double margin = 1.5;
    /// How long a card is asked again after a rest in which it stayed awake: something else keeps
    /// it so.
    static constexpr double retryInterval = 60;
    /// Cards with a longer wait are not left alone: their figures would be absent for too long.
    static constexpr double maxDelay = 20;

    /// How long the kernel waits, in seconds; absent for a card that never sleeps, and so never
    /// rests.
    void setDelay(std::optional<double> delay) { delay_ = delay; }

    /// The card is awake at `now`, in seconds: whether it is to be left alone.
    bool isResting(double now);

    /// The card was asked at `now`, and was this busy. Two answers in a row that it does nothing,
    /// or none, begin a rest.
    void note(double now, std::optional<double> utilization);

    /// The card fell asleep: all begins anew.
    void reset();

    /// Of a card that is awake. One that shows pictures does not sleep.
    static std::optional<double> findDelay(const std::filesystem::path& device);

  private:
    std::optional<double> delay_;
    std::optional<double> restsUntil_;
    std::optional<double> askedUntil_;
    int idleAnswers_ = 0;
};

/// A power/autosuspend_delay_ms text in seconds; absent when negative, which means never, and when
/// malformed. Pure.
std::optional<double> parseAutosuspendDelay(std::string_view text);

}  // namespace vantor
