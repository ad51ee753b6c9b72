#include "settings/app_settings.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace vantor {

namespace {

constexpr std::string_view refreshIntervalKey = "refreshInterval";
constexpr std::string_view historyLengthKey = "historyLength";
constexpr std::string_view showMenuBarKey = "showMenuBar";
constexpr std::string_view pointToPointKey = "includePointToPointInterfaces";
constexpr std::string_view appearanceKey = "appearance";

constexpr std::int64_t defaultHistoryLength = 90;
constexpr bool showsMenuBarByDefault = true;
constexpr bool includesPointToPointByDefault = false;

using Value = DefaultsStore::Value;

double loadRefreshInterval(const DefaultsStore& store) {
    const auto value = store.value(refreshIntervalKey);
    double stored = AppSettings::defaultRefreshInterval;
    if (const auto* number = value ? std::get_if<double>(&*value) : nullptr) stored = *number;
    if (const auto* whole = value ? std::get_if<std::int64_t>(&*value) : nullptr)
        stored = static_cast<double>(*whole);
    return AppSettings::nearestRefreshInterval(stored);
}

std::int64_t storedHistoryLength(const DefaultsStore& store) {
    constexpr std::int64_t otherwise = defaultHistoryLength;
    const auto value = store.value(historyLengthKey);
    if (!value) return otherwise;
    if (const auto* whole = std::get_if<std::int64_t>(&*value)) return *whole;
    // A store may hand a whole number back as a floating one.
    if (const auto* number = std::get_if<double>(&*value)) {
        constexpr double exact = 9007199254740992.0;  // past 2^53 a double is no count
        if (std::abs(*number) <= exact && std::trunc(*number) == *number) {
            return static_cast<std::int64_t>(*number);
        }
    }
    return otherwise;
}

std::int64_t loadHistoryLength(const DefaultsStore& store) {
    return AppSettings::clampHistoryLength(storedHistoryLength(store));
}

bool loadBool(const DefaultsStore& store, std::string_view key, bool otherwise) {
    const auto value = store.value(key);
    if (!value) return otherwise;
    if (const auto* flag = std::get_if<bool>(&*value)) return *flag;
    // People who edit such files by hand write 0 and 1.
    if (const auto* whole = std::get_if<std::int64_t>(&*value); whole && (*whole | 1) == 1) {
        return *whole == 1;
    }
    return otherwise;
}

Appearance loadAppearance(const DefaultsStore& store) {
    const auto value = store.value(appearanceKey);
    const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
    return text ? appearanceFromText(*text) : Appearance::dark;
}

}  // namespace

AppSettings::AppSettings(std::shared_ptr<DefaultsStore> defaults,
                         std::shared_ptr<ApplicationAppearance> application)
    : defaults_(std::move(defaults)),
      application_(std::move(application)),
      refreshInterval_(loadRefreshInterval(*defaults_)),
      historyLength_(loadHistoryLength(*defaults_)),
      showMenuBar_(loadBool(*defaults_, showMenuBarKey, showsMenuBarByDefault)),
      includePointToPointInterfaces_(
          loadBool(*defaults_, pointToPointKey, includesPointToPointByDefault)),
      appearance_(loadAppearance(*defaults_)) {
    applyAppearance();
}

void AppSettings::takeUpStored() {
    const DefaultsStore& store = *defaults_;
    takeUp(refreshInterval_, refreshIntervalKey, loadRefreshInterval(store));
    takeUp(historyLength_, historyLengthKey, loadHistoryLength(store));
    takeUp(showMenuBar_, showMenuBarKey, loadBool(store, showMenuBarKey, showsMenuBarByDefault));
    takeUp(includePointToPointInterfaces_, pointToPointKey,
           loadBool(store, pointToPointKey, includesPointToPointByDefault));
    const Appearance before = appearance();
    takeUp(appearance_, appearanceKey, loadAppearance(store));
    if (appearance() != before) applyAppearance();
}

template <class T>
void AppSettings::takeUp(Published<T>& stream, std::string_view key, T stored) {
    if (!written_.contains(key) && stored != stream.value()) stream.set(stored);
}

void AppSettings::write(std::string_view key, const Value& value) {
    written_.insert(key);
    defaults_->setValue(key, value);
}

void AppSettings::setRefreshInterval(double seconds) {
    refreshInterval_.set(seconds);
    write(refreshIntervalKey, Value{refreshInterval()});
}

void AppSettings::setHistoryLength(std::int64_t samples) {
    historyLength_.set(samples);
    write(historyLengthKey, Value{historyLength()});
}

void AppSettings::setShowMenuBar(bool shown) {
    showMenuBar_.set(shown);
    write(showMenuBarKey, Value{showMenuBar()});
}

void AppSettings::setIncludePointToPointInterfaces(bool included) {
    includePointToPointInterfaces_.set(included);
    write(pointToPointKey, Value{includePointToPointInterfaces()});
}

void AppSettings::setAppearance(Appearance appearance) {
    appearance_.set(appearance);
    write(appearanceKey, Value{std::string(appearanceText(this->appearance()))});
    applyAppearance();
}

double AppSettings::nearestRefreshInterval(double seconds) {
    if (!std::isfinite(seconds)) return defaultRefreshInterval;
    double best = refreshIntervals.front();
    for (const double offered : refreshIntervals) {
        if (std::abs(offered - seconds) < std::abs(best - seconds)) best = offered;
    }
    return best;
}

std::int64_t AppSettings::clampHistoryLength(std::int64_t samples) {
    return std::clamp(samples, minHistory, maxHistory);
}

void AppSettings::applyAppearance() {
    switch (appearance()) {
        case Appearance::system:
            application_->followSystem();
            break;
        case Appearance::dark:
            application_->forceDark();
            break;
        case Appearance::light:
            application_->forceLight();
            break;
    }
}

}  // namespace vantor
