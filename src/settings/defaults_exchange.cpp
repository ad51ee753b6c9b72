#include "settings/defaults_exchange.h"

#include <string>
#include <utility>

namespace vantor {

namespace {

struct FoundDefaults {
    std::optional<IniText> text;  // none: the file is damaged
    std::string bytes;
    std::optional<DescribedError> error;
};

FoundDefaults lookAtDefaults(SharedFile& file) {
    auto reading = file.read(IniText::largest + 1);
    if (reading.error) return {std::nullopt, {}, std::move(reading.error)};
    if (!reading.bytes) return {IniText(), {}, std::nullopt};
    auto text = IniText::parse(*reading.bytes);
    return {std::move(text), std::move(*reading.bytes), std::nullopt};
}

/// To be called with the file's lock held.
FoundDefaults lookAndPutDamageAside(SharedFile& file) {
    FoundDefaults found = lookAtDefaults(file);
    if (found.error || found.text) return found;
    if (auto error = file.putAside()) return {std::nullopt, {}, std::move(error)};
    return {IniText(), {}, std::nullopt};
}

}  // namespace

DefaultsOutcome readDefaults(SharedFile& file) {
    // Files are replaced as a whole: reading needs no lock.
    FoundDefaults found = lookAtDefaults(file);
    if (!found.text && !found.error)
        file.withoutOthers([&] { found = lookAndPutDamageAside(file); });
    if (found.error) return {std::nullopt, std::move(found.error)};
    return {found.text->values(), std::nullopt};
}

DefaultsOutcome mergeDefaults(SharedFile& file, const DefaultsValues& changes) {
    DefaultsOutcome outcome;
    file.withoutOthers([&] {
        FoundDefaults found = lookAndPutDamageAside(file);
        outcome.error = std::move(found.error);
        if (outcome.error) return;
        for (const auto& [key, value] : changes)
            found.text->setValue(key, value);
        const std::string bytes = found.text->text();
        if (bytes.size() > IniText::largest) {
            outcome.error = DescribedError{"The file would be too large."};
        } else if (bytes != found.bytes) {
            outcome.error = file.write(bytes);
        }
        if (!outcome.error) outcome.values = found.text->values();
    });
    return outcome;
}

}  // namespace vantor
