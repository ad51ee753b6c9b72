#include "support/fake_graphics.h"

#include <chrono>

#include "platform/linux/processes/process_clocks.h"

namespace vantor {

namespace {

class FakeCPUClocks : public ProcessClocks {
  public:
    explicit FakeCPUClocks(std::shared_ptr<const FakeClock> clock) : clock_(std::move(clock)) {}

    std::optional<std::uint64_t> read(std::int32_t) override { return std::nullopt; }
    double now() override { return clock_->seconds(); }

  private:
    std::shared_ptr<const FakeClock> clock_;
};

LinuxCalls callsWith(std::shared_ptr<const FakeClock> clock,
                     std::shared_ptr<GraphicsLibrary> library) {
    return {nullptr, nullptr, std::make_shared<FakeCPUClocks>(std::move(clock)),
            std::move(library)};
}

std::string domainOf(const std::string& address) {
    return "pci" + address.substr(0, address.rfind(':') - 3) + ":00";
}

}  // namespace

FakeGraphics::FakeGraphics(std::shared_ptr<GraphicsLibrary> library)
    : cards(std::make_shared<GraphicsCards>(tree.roots(), callsWith(clock, std::move(library)))),
      graphicsDevices(cards),
      accelerators(cards) {}

std::string FakeGraphics::folder(const std::string& address) const {
    return "devices/" + domainOf(address) + "/" + address;
}

void FakeGraphics::card(unsigned number, const std::string& address,
                        const std::string& vendorAndDevice, const std::string& driver,
                        const Files& files) {
    file(address, "vendor", "0x" + vendorAndDevice.substr(0, 4));
    file(address, "device", "0x" + vendorAndDevice.substr(5));
    file(address, "class", "0x030000");
    power(address, "active");
    tree.link(folder(address) + "/driver", "../../../bus/pci/drivers/" + driver);
    for (const auto& [name, text] : files)
        file(address, name, text);
    node("card" + std::to_string(number), address);
}

void FakeGraphics::node(const std::string& name, const std::string& address) const {
    tree.link(folder(address) + "/drm/" + name + "/device", "../../../" + address);
    tree.link("class/drm/" + name, "../../" + folder(address) + "/drm/" + name);
}

void FakeGraphics::file(const std::string& address, const std::string& name,
                        const std::string& text) const {
    tree.sys(folder(address) + "/" + name, text + "\n");
}

void FakeGraphics::remove(const std::string& address, const std::string& name) const {
    tree.removeSys(folder(address) + "/" + name);
}

void FakeGraphics::power(const std::string& address, const std::string& status) const {
    file(address, "power/runtime_status", status);
}

void FakeGraphics::pciDevices(const std::vector<std::string>& lines) const {
    std::string text;
    for (const std::string& line : lines)
        text += line.substr(0, 4) + "\t" + line.substr(5) + "\t1d\t0\n";
    tree.proc("bus/pci/devices", text);
}

void FakeGraphics::client(int pid, int fd, const std::string& node,
                          const std::string& fdinfo) const {
    const std::string process = std::to_string(pid);
    tree.linkProc(process + "/fd/" + std::to_string(fd), "/dev/dri/" + node);
    tree.proc(process + "/fdinfo/" + std::to_string(fd), fdinfo);
}

std::vector<FakeGraphics::Told> FakeGraphics::pass() {
    std::vector<Told> all;
    const auto iterator = accelerators.matchingServices();
    if (!iterator) return all;
    while (const auto service = accelerators.iteratorNext(*iterator)) {
        Told told;
        told.id = accelerators.registryEntryID(service).value_or(0);
        if (const auto* const model = accelerators.property(service, "model")) {
            told.model = *model->text();
        }
        for (const auto& [key, value] :
             *accelerators.property(service, "PerformanceStatistics")->dictionary()) {
            told.statistics.emplace(key, value.number().value_or(-1));
        }
        accelerators.release(service);
        all.push_back(std::move(told));
    }
    accelerators.release(*iterator);
    return all;
}

std::optional<double> FakeGraphics::figure(std::string_view key, double secondsLater) {
    wind(secondsLater);
    const auto all = pass();
    if (all.empty()) return std::nullopt;
    const auto found = all.front().statistics.find(std::string(key));
    if (found == all.front().statistics.end()) return std::nullopt;
    return found->second;
}

std::vector<GraphicsDevices::Device> FakeGraphics::devices() {
    std::vector<GraphicsDevices::Device> list;
    graphicsDevices.copyAllDevices(list);
    return list;
}

void FakeGraphics::wind(double seconds) const {
    clock->wind(std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::duration<double>(seconds)));
}

}  // namespace vantor
