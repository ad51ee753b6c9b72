#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string_view>

#include "platform/published.h"
#include "settings/appearance.h"
#include "settings/application_appearance.h"
#include "settings/defaults_store.h"

namespace vantor {

/// The user's five preferences: loaded and repaired once, published on every change, written back
/// at once. Main thread.
///
/// Setters keep what they are given: a value outside the offered ones is stored as it is and
/// repaired at the next load; users of a value clamp it where that matters.
class AppSettings {
  public:
    /// The refresh intervals to choose from, ascending, in seconds; the first and the last are the
    /// bounds of every other one.
    static constexpr std::array refreshIntervals{0.5, 1.0, 2.0, 5.0, 10.0};
    static constexpr double defaultRefreshInterval = 0.5;
    /// Used where the setting's is not a number.
    static constexpr double fallbackRefreshInterval = 1.0;
    static constexpr std::int64_t minHistory = 30;  ///< samples
    static constexpr std::int64_t maxHistory = 300;

    /// Reads the five keys without writing anything, then applies the appearance once.
    AppSettings(std::shared_ptr<DefaultsStore> defaults,
                std::shared_ptr<ApplicationAppearance> application);

    /// Adopts what the store has read since, for a store that was read late. What was set in this
    /// run stays. Writes nothing.
    void takeUpStored();

    double refreshInterval() const { return refreshInterval_.value(); }
    std::int64_t historyLength() const { return historyLength_.value(); }
    bool showMenuBar() const { return showMenuBar_.value(); }
    bool includePointToPointInterfaces() const { return includePointToPointInterfaces_.value(); }
    Appearance appearance() const { return appearance_.value(); }

    void setRefreshInterval(double seconds);
    void setHistoryLength(std::int64_t samples);
    void setShowMenuBar(bool shown);
    void setIncludePointToPointInterfaces(bool included);
    void setAppearance(Appearance appearance);

    /// The streams of values; observers are called before the value changes.
    Published<double>& refreshIntervalStream() { return refreshInterval_; }
    Published<std::int64_t>& historyLengthStream() { return historyLength_; }
    Published<bool>& showMenuBarStream() { return showMenuBar_; }
    Published<bool>& includePointToPointInterfacesStream() {
        return includePointToPointInterfaces_;
    }
    Published<Appearance>& appearanceStream() { return appearance_; }

    /// The offered interval nearest to a stored one; the smaller of two equally near; 0.5 for one
    /// that is not finite.
    static double nearestRefreshInterval(double seconds);

    /// `samples` held within the bounds of a history.
    static std::int64_t clampHistoryLength(std::int64_t samples);

  private:
    template <class T>
    void takeUp(Published<T>& stream, std::string_view key, T stored);
    void write(std::string_view key, const DefaultsStore::Value& value);
    void applyAppearance();

    std::shared_ptr<DefaultsStore> defaults_;
    std::shared_ptr<ApplicationAppearance> application_;
    std::set<std::string_view> written_;  // keys, in this run
    Published<double> refreshInterval_;
    Published<std::int64_t> historyLength_;
    Published<bool> showMenuBar_;
    Published<bool> includePointToPointInterfaces_;
    Published<Appearance> appearance_;
};

}  // namespace vantor
