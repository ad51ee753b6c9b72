#include <array>
#include <cstdint>
#include <string>

#include "platform/linux/graphics/drm_fdinfo.h"
#include "platform/linux/graphics/engine_use.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    // Two looks at one client, the first as long as the first byte says.
    const std::string_view text = fuzz::textOf(data, size);
    const std::size_t half = size > 0 ? data[0] * size / 256 : 0;
    EngineShares shares;
    ClientEngines client;
    std::array<ClientEngines, 2> growing;
    double now = 1;
    for (const std::string_view part : {text.substr(0, half), text.substr(half), text}) {
        const auto info = DRMFdInfo::parse(part);
        if (!info) continue;
        require(part.find('\n') != part.npos && !info->engines().empty());
        for (const DRMEngine& engine : info->engines())
            require(!engine.name.empty() && engine.capacity > 0);
        client.measure(*info, now, shares);
        // Two clients more, who use one engine as long as the bytes say.
        const std::string use =
            "drm-driver:\tx\ndrm-client-id:\t1\ndrm-engine-render:\t" +
            std::to_string(static_cast<std::uint64_t>(now) * part.size() * 1'000'000) + " ns\n";
        if (const auto made = DRMFdInfo::parse(use)) {
            for (ClientEngines& each : growing)
                each.measure(*made, now, shares);
        }
        now += 1;
        client.stayIdle(now, shares);
        const auto busiest = shares.busiest();
        require(!busiest || (*busiest >= 0 && *busiest <= 1));
    }
    shares.clear();
    require(!shares.busiest());
    return 0;
}
