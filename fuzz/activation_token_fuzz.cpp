#include <algorithm>

#include "app/session/instance_claim.h"

#include "require.h"

/// A token comes as bytes or as letters; it goes into the environment.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto text = fuzz::textOf(data, size);
    const bool isToken = size <= 512 && std::all_of(text.begin(), text.end(), [](char c) {
                             return static_cast<signed char>(c) >= 0x20 && c != 0x7f;
                         });
    for (const QString& token : {QString::fromLatin1(text), QString::fromUtf8(text)}) {
        require(checkedToken(token) == (isToken ? token : QString()));
    }
    const auto wide = QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()),
                                         static_cast<qsizetype>(size / sizeof(char16_t)));
    const QString checked = checkedToken(wide);
    require(checked.isEmpty() || (checked == wide && checked.size() <= 512));
    require(checked.toLatin1() == checked.toUtf8());
    return 0;
}
