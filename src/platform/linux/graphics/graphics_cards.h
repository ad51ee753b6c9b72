#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/files/linux_calls.h"
#include "platform/linux/graphics/drm_clients.h"
#include "platform/linux/graphics/graphics_card.h"
#include "platform/linux/graphics/graphics_library.h"
#include "platform/linux/graphics/graphics_names.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// The graphics devices of the machine, shared by the two platform calls that report them. A device
/// that sleeps is never woken: nothing of it is asked but its power state. One thread at a time.
class GraphicsCards {
  public:
    /// How long the list of devices is valid while it is not asked for, in seconds.
    static constexpr double listingInterval = 15;

    GraphicsCards(const LinuxRoots& roots, const LinuxCalls& calls);
    ~GraphicsCards();
    GraphicsCards(const GraphicsCards&) = delete;
    GraphicsCards& operator=(const GraphicsCards&) = delete;

    /// Lists and identifies the devices. Returns false when that fails; there are none then.
    bool list();

    /// Reads what all of them do now. False when they cannot be listed.
    bool update();

    /// By the numbers of their nodes.
    std::span<const std::unique_ptr<GraphicsCard>> cards() const { return cards_; }

    /// The one that the firmware shows its pictures on, else the first.
    const GraphicsCard* defaultCard() const;

  private:
    double now() const;
    void adopt(std::vector<DRMDevice> devices);
    void askLibrary();

    LinuxRoots roots_;
    std::shared_ptr<ProcessClocks> clock_;
    std::shared_ptr<GraphicsLibrary> library_;
    GraphicsNames names_;
    DRMClients clients_;
    std::vector<std::unique_ptr<GraphicsCard>> cards_;
    std::vector<GraphicsCard*> asked_;  // at this pass
    std::vector<const DRMDevice*> clientDevices_;
    std::optional<double> listedAt_;
};

}  // namespace vantor
