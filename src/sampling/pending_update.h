#pragma once

#include <optional>
#include <tuple>
#include <utility>

#include "model/power_read_result.h"
#include "sampling/providers.h"

namespace vantor {

/// Results that have arrived and are not committed; of each provider the newest.
class PendingUpdate {
  public:
    /// Absent when nothing of it has arrived.
    template <class Provider>
    std::optional<typename Provider::Section>& of() {
        return std::get<Place<Provider>>(places_).section;
    }

    bool isEmpty() const {
        return std::apply([](const auto&... place) { return (!place.section && ...); }, places_);
    }

    /// Takes a provider's result as the newest of that section. Returns false for one that changes
    /// nothing: an absent record, an empty process list, a failure of power.
    template <class Provider, class Result>
    bool put(Result result) {
        auto section = sectionOf(std::move(result));
        if (!section) return false;
        of<Provider>() = std::move(section);
        return true;
    }

  private:
    template <class Provider>
    struct Place {
        std::optional<typename Provider::Section> section;
    };
    template <class... Providers>
    static std::tuple<Place<Providers>...> placesOf(std::tuple<Providers...>);

    template <class Record>
    static std::optional<Record> sectionOf(Record record) {
        return record;
    }
    template <class Record>
    static std::optional<Record> sectionOf(std::optional<Record> record) {
        return record;
    }
    static std::optional<ProcessSample> sectionOf(ProcessSample sample) {
        // An empty list is a failed listing: this very process exists.
        if (sample.all.empty()) return std::nullopt;
        return sample;
    }
    /// "No battery" is a result too.
    static std::optional<std::optional<PowerStats>> sectionOf(const PowerReadResult& result) {
        if (!result.isUpdate()) return std::nullopt;
        return std::optional(result.stats());
    }

    decltype(placesOf(AllProviders{})) places_;
};

}  // namespace vantor
