#include "platform/linux/graphics/graphics_cards.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

GraphicsCards::GraphicsCards(const LinuxRoots& roots, const LinuxCalls& calls)
    : roots_(roots),
      clock_(calls.processClocks),
      library_(calls.graphicsLibrary),
      names_(roots),
      clients_(roots) {}

GraphicsCards::~GraphicsCards() {
    if (library_) library_->close();
}

double GraphicsCards::now() const {
    return clock_ ? clock_->now() : 0;
}

void GraphicsCards::adopt(std::vector<DRMDevice> devices) {
    std::vector<std::unique_ptr<GraphicsCard>> next;
    for (DRMDevice& device : devices) {
        const auto known = std::find_if(cards_.begin(), cards_.end(), [&](const auto& card) {
            return card && card->place().folder == device.folder;
        });
        if (known == cards_.end()) {
            next.push_back(std::make_unique<GraphicsCard>(std::move(device)));
        } else {
            next.push_back(std::move(*known));
            next.back()->move(std::move(device));
        }
    }
    cards_ = std::move(next);
}

bool GraphicsCards::list() {
    listedAt_ = now();
    auto devices = listDRMDevices(roots_);
    if (!devices) {
        cards_.clear();
        listedAt_.reset();
        return false;
    }
    adopt(*std::move(devices));
    bool isAnyAsleep = false;
    for (const auto& card : cards_) {
        card->openAnew();
        isAnyAsleep = !card->checkAwake() || isAnyAsleep;
    }
    const std::string pciDevices =
        isAnyAsleep ? readKernelFile(roots_.proc / "bus/pci/devices").value_or("") : "";
    for (const auto& card : cards_)
        card->identify(names_, pciDevices);
    std::erase_if(cards_, [](const auto& card) { return !card->isGraphics(); });
    return true;
}

bool GraphicsCards::update() {
    const double time = now();
    const bool isListed = listedAt_ && time >= *listedAt_ && time - *listedAt_ < listingInterval;
    if (!isListed && !list()) return false;
    asked_.clear();
    clientDevices_.clear();
    for (const auto& card : cards_) {
        if (!card->checkAwake() || card->isResting(time)) continue;
        asked_.push_back(card.get());
        if (card->needsClients()) clientDevices_.push_back(&card->place());
    }
    clients_.update(time, clientDevices_);
    for (GraphicsCard* const card : asked_)
        card->read(clients_.utilization(card->place().registryID()));
    askLibrary();
    for (GraphicsCard* const card : asked_)
        if (card->isAwake()) card->noteAsked(time);
    return true;
}

void GraphicsCards::askLibrary() {
    if (!library_) return;
    bool isOpen = false;
    for (GraphicsCard* const card : asked_) {
        if (!card->needsLibrary() || !card->isAwake()) continue;
        if (!isOpen && !library_->open()) break;
        isOpen = true;
        card->take(library_->ask(*card->place().address));
    }
    // An open library may hold on to a device that could go to sleep otherwise.
    const bool mayStayOpen = std::all_of(cards_.begin(), cards_.end(), [](const auto& card) {
        return !card->needsLibrary() || (card->isAwake() && !card->managesPower());
    });
    if (!isOpen || !mayStayOpen) library_->close();
}

const GraphicsCard* GraphicsCards::defaultCard() const {
    const auto found = std::find_if(cards_.begin(), cards_.end(),
                                    [](const auto& card) { return card->isBootDisplay(); });
    if (found != cards_.end()) return found->get();
    return cards_.empty() ? nullptr : cards_.front().get();
}

}  // namespace vantor
