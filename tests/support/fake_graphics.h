#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/graphics/graphics_cards.h"
#include "platform/linux/graphics/linux_accelerators.h"
#include "platform/linux/graphics/linux_graphics_devices.h"
#include "platform/simulated/fake_clock.h"
#include "support/fake_kernel_tree.h"

namespace vantor {

/// Graphics cards in a made-up /sys, and both of the calls that tell of them.
class FakeGraphics {
  public:
    using Files = std::map<std::string, std::string>;

    /// What the calls tell of one card.
    struct Told {
        std::uint64_t id = 0;
        std::string model;
        std::map<std::string, double> statistics;
    };

    explicit FakeGraphics(std::shared_ptr<GraphicsLibrary> library = nullptr);

    /// A card on a PCI bus with a node of that number, laid out as the kernel does: the device's
    /// folder below devices/, links to it, a line end behind each file's text. `vendorAndDevice` is
    /// such as "1002:73bf".
    void card(unsigned number, const std::string& address, const std::string& vendorAndDevice,
              const std::string& driver, const Files& files = {});
    /// A file of the device's own folder; those above it are made.
    void file(const std::string& address, const std::string& name, const std::string& text) const;
    void remove(const std::string& address, const std::string& name) const;
    void power(const std::string& address, const std::string& status) const;
    std::string folder(const std::string& address) const;
    /// Another node of the same device: "renderD128", "card1".
    void node(const std::string& name, const std::string& address) const;
    /// The list of /proc/bus/pci/devices, a line each: "0100 100273bf".
    void pciDevices(const std::vector<std::string>& lines) const;

    /// A process with an open graphics device, and what its fdinfo says.
    void client(int pid, int fd, const std::string& node, const std::string& fdinfo) const;

    /// A pass of the statistics.
    std::vector<Told> pass();
    /// A pass after so many seconds, and one figure of the first card.
    std::optional<double> figure(std::string_view key, double secondsLater = 1);
    std::vector<GraphicsDevices::Device> devices();

    void wind(double seconds) const;

    FakeKernelTree tree;
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<GraphicsCards> cards;
    LinuxGraphicsDevices graphicsDevices;
    LinuxAccelerators accelerators;
};

}  // namespace vantor
