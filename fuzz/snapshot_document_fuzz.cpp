#include <nlohmann/json.hpp>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include "model/record_coding.h"
#include "model/snapshot_document.h"
#include "model/utf8.h"

#include "require.h"

/// The first bytes are a number, the rest are the names of everything.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::string_view bytes = fuzz::textOf(data, size);
    std::uint64_t bits = 0;
    const std::size_t used = std::min(bytes.size(), sizeof bits);
    std::memcpy(&bits, bytes.data(), used);
    bytes.remove_prefix(used);
    const std::string text(bytes);
    const auto number = std::bit_cast<double>(bits);

    SystemSnapshot snapshot = SystemSnapshot::empty();
    snapshot.processes = {{static_cast<std::int32_t>(bits), text, text + '/' + text, number, bits}};
    snapshot.volumes = {{text, text, bits, bits, true, false, true}};
    snapshot.cpu.perCoreUsage = {number, -number};
    snapshot.network.primaryInterfaceName = text;
    snapshot.system.hostName = text;
    const auto result = encodedSnapshot(snapshot);
    require(std::holds_alternative<std::string>(result) == std::isfinite(number));
    if (!std::isfinite(number)) {
        require(isUTF8(std::get<DescribedError>(result).description));
        return 0;
    }

    const auto document = nlohmann::json::parse(std::get<std::string>(result), nullptr, false);
    require(!document.is_discarded());
    const std::string mended = repairedUTF8(text);
    const auto& process = document["processes"][0];
    require(process["name"] == mended);
    require(process["command"] == repairedUTF8(text + '/' + text));
    require(process["residentMemoryBytes"].get<std::uint64_t>() == bits);
    require(std::bit_cast<std::uint64_t>(process["cpuPercent"].get<double>()) == bits);
    require(process["cpuPercent"].is_number_float());
    require(document["volumes"][0]["path"] == mended);
    require(document["system"]["hostName"] == mended);
    // A snapshot whose texts were well-formed is read back as it was.
    if (mended == text) {
        require(decode<SystemSnapshot>(document) == snapshot);
        require(encode(snapshot) == document);
    }

    // A number that does not fit its field is no number of a process.
    nlohmann::json changed = document;
    const auto signedBits = static_cast<std::int64_t>(bits);
    const auto isDecoded = [&](const nlohmann::json& pid) {
        changed["processes"][0]["pid"] = pid;
        return decode<SystemSnapshot>(changed).has_value();
    };
    require(isDecoded(bits) == std::in_range<std::int32_t>(bits));
    require(isDecoded(signedBits) == std::in_range<std::int32_t>(signedBits));
    require(!isDecoded(number) && !isDecoded(text));
    return 0;
}
