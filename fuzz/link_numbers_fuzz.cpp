#include <algorithm>
#include <cstring>
#include <map>
#include <set>

#include "platform/linux/link_numbers.h"

#include "require.h"

/// The input is the kernel's numbers of the links, four bytes each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::vector<LinkSource::Link> links(size / 4);
    for (std::size_t i = 0; i < links.size(); ++i)
        std::memcpy(&links[i].index, data + 4 * i, 4);
    LinkNumbers numbers;
    numbers.assign(links);  // a number that comes twice must do no harm
    for (std::size_t i = 0; i < links.size(); ++i) {
        const auto place = numbers.placeOfIndex(links[i].index);
        require(place && links[*place].index == links[i].index);
    }

    std::set<std::uint32_t> seen;
    std::erase_if(links, [&](const auto& link) {
        return link.index == 0 || !seen.insert(link.index).second;
    });
    numbers.assign(links);
    std::set<std::uint32_t> given;
    std::map<std::uint32_t, std::uint32_t> byIndex;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const std::uint32_t index = links[i].index;
        const std::uint32_t number = numbers.number(i);
        require(number != 0 && given.insert(number).second);
        if (index <= 65535) require(number == index);
        require(numbers.placeOfNumber(number) == i && numbers.placeOfIndex(index) == i);
        byIndex[index] = number;
    }
    require(!numbers.placeOfNumber(0) && !numbers.placeOfNumber(65536));

    std::ranges::reverse(links);  // the order of the dump does not matter
    numbers.assign(links);
    for (std::size_t i = 0; i < links.size(); ++i)
        require(numbers.number(i) == byIndex[links[i].index]);
    return 0;
}
