#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <type_traits>

#include "model/record_fields.h"

/// What tests know of any record without naming its fields: which there are, and every value in it.
namespace vantor::record_walk {

template <class T>
constexpr bool isRecord = !std::is_null_pointer_v<std::remove_const_t<decltype(fieldsOf<T>)>>;

/// Initialises a member of any type.
struct AnyMember {
    template <class T>
    operator T() const;  // NOLINT(google-explicit-constructor): never called
};

/// How many members a record has, counted by how many values its braces take, so that the count
/// knows nothing of the table of its fields.
template <class Record, class... Members>
constexpr std::size_t memberCount() {
    if constexpr (requires { Record{Members{}..., AnyMember{}}; }) {
        return memberCount<Record, Members..., AnyMember>();
    } else {
        return sizeof...(Members);
    }
}

/// The keys of the fields that may be absent, or of those that always have a value.
template <class Record>
std::set<std::string> keys(bool areOptional) {
    std::set<std::string> found;
    Record record{};
    forEachField(record, [&](const char* name, const auto& field) {
        if (isOptional<std::remove_cvref_t<decltype(field)>> == areOptional) found.insert(name);
        return true;
    });
    return found;
}

/// Calls visit("cpu.perCoreUsage[1]", value) for everything that is in `value`: itself, and what
/// records, lists and optional values hold.
template <class T, class Visit>
void forEachValue(T& value, const std::string& place, const Visit& visit) {
    visit(place, value);
    if constexpr (isOptional<T>) {
        if (value) forEachValue(*value, place, visit);
    } else if constexpr (isList<T>) {
        for (std::size_t i = 0; i < value.size(); ++i)
            forEachValue(value[i], place + '[' + std::to_string(i) + ']', visit);
    } else if constexpr (isRecord<T>) {
        forEachField(value, [&](const char* name, auto& field) {
            forEachValue(field, place.empty() ? name : place + '.' + name, visit);
            return true;
        });
    }
}

}  // namespace vantor::record_walk
