#include "platform/linux/link_source.h"

namespace vantor {

namespace {

class LiveLinkSource : public LinkSource {
  public:
    bool links(std::vector<Link>&) override { return false; }
    bool addresses(std::vector<Address>&) override { return false; }
};

}  // namespace

std::shared_ptr<LinkSource> makeLiveLinkSource() {
    return std::make_shared<LiveLinkSource>();
}

}  // namespace vantor
