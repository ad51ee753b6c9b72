#include "graphics_tree.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

namespace vantor::bench {

namespace {

namespace fs = std::filesystem;

const std::string amd = "devices/pci0000:00/0000:03:00.0";
const std::string intel = "devices/pci0000:00/0000:00:02.0";

void write(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text << '\n';
}

void link(const fs::path& path, const fs::path& target) {
    fs::create_directories(path.parent_path());
    fs::create_symlink(target, path);
}

void makeCard(const fs::path& sys, const std::string& folder, const std::string& node,
              const std::string& vendor, const std::string& device, const std::string& driver) {
    write(sys / folder / "vendor", vendor);
    write(sys / folder / "device", device);
    write(sys / folder / "class", "0x030000");
    write(sys / folder / "power/runtime_status", "active");
    write(sys / folder / "power/control", "on");
    link(sys / folder / "driver", sys / "bus/pci/drivers" / driver);
    link(sys / "class/drm" / node / "device", sys / folder);
}

/// As i915 writes it for a card with memory regions.
std::string fdinfo(int client, std::uint64_t done) {
    const std::string region = "system0:\t29904 KiB\n";
    std::string text = "pos:\t0\nflags:\t02100002\nmnt_id:\t26\nino:\t481\ndrm-driver:\ti915\n";
    text += "drm-client-id:\t" + std::to_string(client) + "\ndrm-pdev:\t0000:00:02.0\n";
    for (const char* const kind : {"total", "shared", "active", "resident", "purgeable"})
        text += "drm-" + std::string(kind) + "-" + region;
    text += "drm-engine-render:\t" + std::to_string(done) + " ns\n";
    text += "drm-engine-copy:\t2035071108 ns\ndrm-engine-video:\t0 ns\n";
    text += "drm-engine-capacity-video:\t2\ndrm-engine-video-enhance:\t0 ns\n";
    return text;
}

}  // namespace

GraphicsTree::GraphicsTree() {
    std::string name = fs::exists("/dev/shm") ? "/dev/shm/graphics-XXXXXX" : "/tmp/graphics-XXXXXX";
    if (!::mkdtemp(name.data())) throw std::runtime_error("cannot make " + name);
    root_ = name;
    const auto [proc, sys, etc, run, usr] = roots();
    makeCard(sys, amd, "card0", "0x1002", "0x73bf", "amdgpu");
    makeCard(sys, intel, "card1", "0x8086", "0x5917", "i915");
    write(sys / amd / "gpu_busy_percent", "37");
    write(sys / amd / "mem_info_vram_used", "2147483648");
    write(sys / amd / "mem_info_vram_total", "17163091968");
    write(sys / amd / "hwmon/hwmon2/temp1_input", "51000");
    write(sys / amd / "hwmon/hwmon2/temp1_label", "edge");
    link(sys / "class/drm/renderD129/device", sys / intel);
    for (int i = 0; i < clients; ++i) {
        const fs::path process = proc / std::to_string(firstPID + i);
        for (int fd = 1; fd < filesOfProcess; ++fd)
            link(process / "fd" / std::to_string(fd), "socket:[" + std::to_string(fd) + "]");
        link(process / "fd/20", "/dev/dri/renderD129");
        const fs::path client = process / "fdinfo/20";
        write(client, "");
        clientFiles_.emplace_back(::open(client.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
    }
    for (int i = 0; i < 10; ++i)
        work();
}

GraphicsTree::~GraphicsTree() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

LinuxRoots GraphicsTree::roots() const {
    return {root_ / "proc", root_ / "sys", root_ / "etc", root_ / "run", root_ / "usr"};
}

std::vector<fs::path> GraphicsTree::filesOfPass() const {
    const fs::path sys = root_ / "sys";
    std::vector<fs::path> files{
        sys / amd / "power/runtime_status", sys / intel / "power/runtime_status",
        sys / amd / "gpu_busy_percent",     sys / amd / "mem_info_vram_used",
        sys / amd / "mem_info_vram_total",  sys / amd / "hwmon/hwmon2/temp1_input"};
    for (int i = 0; i < clients; ++i)
        files.push_back(root_ / "proc" / std::to_string(firstPID + i) / "fdinfo/20");
    return files;
}

void GraphicsTree::work() {
    for (int i = 0; i < clients / 10; ++i) {
        const int client = next_++ % clients;
        const std::string text = fdinfo(client + 1, done_ += 1'000'000);
        const auto& file = clientFiles_[static_cast<std::size_t>(client)];
        if (::pwrite(file.get(), text.data(), text.size(), 0) < 0) std::abort();
    }
}

}  // namespace vantor::bench
