#include <algorithm>
#include <string>

#include "settings/autostart_entry.h"

#include "require.h"

/// The file is any program's of the user; the path of this program goes into it as a line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace Entry = vantor::AutostartEntry;
    using vantor::fuzz::require;
    const auto text = vantor::fuzz::textOf(data, size);
    const bool opens = Entry::opens(text);
    if (opens) require(text.find("Exec") != text.npos);

    const auto written = Entry::textFor(text);
    if (!written) return 0;
    // Whatever the path is, it is in its line and changes no other.
    require(Entry::opens(*written));
    require(std::ranges::count(*written, '\n') == 8);
    require(!Entry::opens(*written + "Hidden=true\n"));
    return 0;
}
