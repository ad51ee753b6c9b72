#include <stdlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/linux/storage/block_device.h"

#include "require.h"

namespace {

namespace fs = std::filesystem;

/// A folder of this process, emptied for each input and gone at its end.
class Tree {
  public:
    Tree() {
        std::string name = (fs::temp_directory_path() / "block-device-fuzz-XXXXXX").string();
        vantor::fuzz::require(::mkdtemp(name.data()) != nullptr);
        root_ = name;
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;
    ~Tree() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }

    vantor::LinuxRoots roots() const {
        return {root_ / "proc", root_ / "sys", root_ / "etc", root_ / "run"};
    }

    void clear() const {
        std::error_code ignored;
        for (const char* part : {"sys", "run"})
            fs::remove_all(root_ / part, ignored);
    }

    /// "path=content" makes a file, "path>target" a link to a device; other lines nothing.
    void make(std::string_view line) const {
        const auto sign = line.find_first_of("=>");
        if (sign == std::string_view::npos || !isPlain(line.substr(0, sign))) return;
        const std::string_view rest = line.substr(sign + 1);
        const bool isLink = line[sign] == '>';
        if (isLink && !leadsToDevices(line.substr(0, sign), rest)) return;
        const fs::path path = root_ / line.substr(0, sign);
        std::error_code ignored;
        fs::create_directories(path.parent_path(), ignored);
        if (isLink) {
            fs::create_symlink(rest, path, ignored);
        } else {
            std::ofstream(path) << rest;
        }
    }

  private:
    /// Nothing may lead out of the folder.
    static bool isPlain(std::string_view path) {
        return path.size() < 200 && (path.starts_with("sys/") || path.starts_with("run/")) &&
               path.find("..") == std::string_view::npos &&
               path.find('\0') == std::string_view::npos;
    }

    /// Where links are, how many folders deep, and their way to the devices.
    struct Links {
        std::string_view folder;
        std::ptrdiff_t depth;
        std::string_view toDevices;
    };

    static bool leadsToDevices(std::string_view link, std::string_view target) {
        constexpr std::array places{
            Links{"sys/dev/block/", 0, "../../devices/"},
            Links{"sys/class/block/", 0, "../../devices/"},
            Links{"sys/devices/virtual/nvme-subsystem/", 1, "../../../"},
            Links{"sys/devices/virtual/block/", 2, "../../../../"},
        };
        return std::ranges::any_of(places, [&](const Links& place) {
            return link.starts_with(place.folder) && target.starts_with(place.toDevices) &&
                   std::ranges::count(link.substr(place.folder.size()), '/') == place.depth &&
                   isPlain("sys/devices/" + std::string(target.substr(place.toDevices.size())));
        });
    }

    fs::path root_;
};

std::string_view takeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return line;
}

}  // namespace

/// The first line is the mount's source, with "b" before it where the mount has the number 8:1; the
/// others are what sysfs and udev have.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    static const Tree tree;
    tree.clear();
    std::string_view text = fuzz::textOf(data, size);
    Mount mount;
    mount.source = takeLine(text);
    if (mount.source.starts_with('b')) {
        mount.major = 8;
        mount.minor = 1;
        mount.source.remove_prefix(1);
    }
    for (int lines = 0; lines < 40 && !text.empty(); ++lines)
        tree.make(takeLine(text));
    const BlockDeviceFacts facts = readBlockDevice(tree.roots(), mount);
    require(facts.isInternal.has_value() == facts.isRemovable.has_value());
    if (facts.isInternal) require(!*facts.isInternal || !*facts.isRemovable);
    if (facts.label) require(!facts.label->empty());
    return 0;
}
