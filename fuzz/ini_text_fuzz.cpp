#include <algorithm>
#include <cmath>
#include <string>

#include "settings/ini_text.h"

#include "require.h"

namespace {

using namespace vantor;
using fuzz::require;

/// A number that is none equals nothing, itself included.
bool isSame(const DefaultsStore::Value& a, const DefaultsStore::Value& b) {
    const double* const x = std::get_if<double>(&a);
    const double* const y = std::get_if<double>(&b);
    return (x && y && std::isnan(*x) && std::isnan(*y)) || a == b;
}

/// Sets a value, as a program does that stores it, and reads the file again.
void setAndRead(const IniText& ini, const std::string& key, const DefaultsStore::Value& value,
                const DefaultsStore::Value& expected) {
    IniText changed = ini;
    changed.setValue(key, value);
    const auto again = IniText::parse(changed.text());
    if (changed.text().size() > IniText::largest) return;
    require(again.has_value());
    const auto values = again->values();
    const auto found = values.find(key);
    require(found != values.end() && isSame(found->second, expected));
    // And nothing else has changed.
    auto before = ini.values();
    before.erase(key);
    auto after = values;
    after.erase(key);
    require(std::equal(before.begin(), before.end(), after.begin(), after.end(),
                       [](const auto& a, const auto& b) {
                           return a.first == b.first && isSame(a.second, b.second);
                       }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto text = fuzz::textOf(data, size);
    const auto ini = IniText::parse(text);
    if (!ini) return 0;
    // What is not changed stays as it was written, but for marks at its beginning.
    require(text.ends_with(ini->text()) && !ini->text().starts_with("\xef\xbb\xbf"));
    ini->values();
    setAndRead(*ini, "showMenuBar", true, true);
    setAndRead(*ini, "historyLength", std::int64_t{-120}, std::int64_t{-120});
    setAndRead(*ini, "refreshInterval", 0.1, 0.1);
    setAndRead(*ini, "some/other key", 1.5e-300, 1.5e-300);
    return 0;
}
