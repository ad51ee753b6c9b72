#include "platform/macos/system/mac_name_order.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

constexpr unsigned long cfCompareExactly =
    cfCompareNonliteral | cfCompareLocalized | cfCompareNumerically;
constexpr unsigned long cfCompareLoosely =
    cfCompareExactly | cfCompareCaseInsensitive | cfCompareWidthInsensitive;

/// Compares texts that were made once for each name.
class NameComparison {
  public:
    NameComparison(const CoreFoundationTable& cf, const PropertyConversion& conversion,
                   std::span<const std::string> names)
        : cf_(cf), names_(names), locale_(conversion.own(cf.localeCopyCurrent())) {
        for (const std::string& name : names)
            texts_.push_back(conversion.makeText(name));
    }

    /// Case decides where nothing else does. A name that the system takes for no text is compared
    /// by its bytes with others of the kind, and comes behind the rest.
    CFIndex operator()(std::size_t a, std::size_t b) const {
        const CFTypeRef x = texts_[a].get();
        const CFTypeRef y = texts_[b].get();
        if (!x && !y) return names_[a].compare(names_[b]);
        if (!x || !y) return x ? -1 : 1;
        const CFIndex order = compare(x, y, cfCompareLoosely);
        return order != 0 ? order : compare(x, y, cfCompareExactly);
    }

  private:
    CFIndex compare(CFTypeRef a, CFTypeRef b, unsigned long options) const {
        return cf_.stringCompare(a, b, {0, cf_.stringGetLength(a)}, options, locale_.get());
    }

    const CoreFoundationTable& cf_;
    std::span<const std::string> names_;
    RetainedReference locale_;
    std::vector<RetainedReference> texts_;
};

/// `compare` tells of two places which comes first; below 0 for the one on the left.
template <class Compare>
std::vector<std::uint32_t> ranksBy(std::size_t count, const Compare& compare) {
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(),
                     [&](std::size_t a, std::size_t b) { return compare(a, b) < 0; });
    std::vector<std::uint32_t> ranks(count);
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0 && compare(places[i - 1], places[i]) != 0) ++rank;
        ranks[places[i]] = rank;
    }
    return ranks;
}

}  // namespace

MacNameOrder::MacNameOrder(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)), conversion_(frameworks_->coreFoundation) {}

std::vector<std::uint32_t> MacNameOrder::ranks(std::span<const std::string> names) {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    if (!conversion_.canMakeTexts() || !cf.stringCompare || !cf.stringGetLength ||
        !cf.localeCopyCurrent) {
        return ranksBy(names.size(), [names](std::size_t a, std::size_t b) {
            return names[a].compare(names[b]);
        });
    }
    const AutoreleasePool pool(frameworks_->objectiveC);
    return ranksBy(names.size(), NameComparison(cf, conversion_, names));
}

}  // namespace vantor
