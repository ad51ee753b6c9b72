#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// Returns whether the letters a to z, the digits and the usual punctuation are, in the language,
/// in the order common to all languages. No Danish: its "aa" stands behind z.
bool hasPlainOrder(std::string_view language);

/// Returns what ICU's key of the name with numbers by their value comes to, in the order common
/// to all languages; nothing for a name of other characters than those of hasPlainOrder. Its
/// keys are for one another only, never beside ICU's. Names of interfaces and of most volumes
/// have one, and loading the tables of ICU costs more memory than anything else that it does.
std::optional<std::string> plainKeyOf(std::string_view name);

}  // namespace vantor
