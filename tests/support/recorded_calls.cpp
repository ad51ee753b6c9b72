#include "support/recorded_calls.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <linux/if.h>

#include <array>
#include <functional>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "support/recorded_tree.h"

namespace vantor {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::pair<std::string_view, std::uint32_t>, 12> flagNames{{
    {"up", IFF_UP},
    {"broadcast", IFF_BROADCAST},
    {"loopback", IFF_LOOPBACK},
    {"pointtopoint", IFF_POINTOPOINT},
    {"running", IFF_RUNNING},
    {"noarp", IFF_NOARP},
    {"promisc", IFF_PROMISC},
    {"master", IFF_MASTER},
    {"slave", IFF_SLAVE},
    {"multicast", IFF_MULTICAST},
    {"lower_up", IFF_LOWER_UP},
    {"dormant", IFF_DORMANT},
}};

/// Gives each line of the file that is no comment to `take`; false from it means malformed. False
/// when there is no such file: then the call fails.
bool forEachLine(const fs::path& path, const std::function<bool(std::istringstream&)>& take) {
    if (!fs::exists(path)) return false;
    std::istringstream text(readRecordedFile(path));
    for (std::string line; std::getline(text, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream words(line);
        std::string rest;
        if (!take(words) || words >> rest) throw std::runtime_error(path.string() + ": " + line);
    }
    return true;
}

bool parseFlags(const std::string& text, std::uint32_t& flags) {
    std::istringstream words(text);
    for (std::string word; std::getline(words, word, ',');) {
        bool isKnown = word == "none";
        for (const auto& [name, flag] : flagNames) {
            if (name != word) continue;
            flags |= flag;
            isKnown = true;
        }
        if (!isKnown) return false;
    }
    return true;
}

bool parseCounters(const std::string& received, const std::string& sent, LinkSource::Link& link) {
    if (received == "-" && sent == "-") return true;
    link.hasCounters = true;
    return static_cast<bool>(std::istringstream(received) >> link.receivedBytes) &&
           static_cast<bool>(std::istringstream(sent) >> link.sentBytes);
}

/// Undoes the octal escapes that the kernel writes for blanks, tabs, line ends and backslashes.
std::string unescape(const std::string& text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 3 < text.size()) {
            plain += static_cast<char>(std::stoi(text.substr(at + 1, 3), nullptr, 8));
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

class RecordedLinks : public LinkSource {
  public:
    explicit RecordedLinks(fs::path folder) : folder_(std::move(folder)) {}

    bool links(std::vector<Link>& list) override {
        list.clear();
        return forEachLine(folder_ / "links", [&](std::istringstream& words) {
            Link link;
            std::string flags, received, sent;
            if (!(words >> link.index >> link.name >> flags >> received >> sent)) return false;
            if (!parseFlags(flags, link.flags) || !parseCounters(received, sent, link)) {
                return false;
            }
            list.push_back(std::move(link));
            return true;
        });
    }

    bool mayHaveChanged() override { return true; }
    bool counters(std::span<Link>) override { return false; }

    bool addresses(std::vector<Address>& list) override {
        list.clear();
        return forEachLine(folder_ / "addresses", [&](std::istringstream& words) {
            Address address;
            std::string text;
            if (!(words >> address.index >> text)) return false;
            address.isIPv6 = text.find(':') != std::string::npos;
            list.push_back(address);
            const int family = address.isIPv6 ? AF_INET6 : AF_INET;
            return ::inet_pton(family, text.c_str(), list.back().bytes.data()) == 1;
        });
    }

  private:
    fs::path folder_;
};

class RecordedFileSystems : public FileSystems {
  public:
    explicit RecordedFileSystems(fs::path file) : file_(std::move(file)) {}

    std::optional<Space> space(const std::string& path) override {
        std::optional<Space> found;
        bool isListed = false;
        const bool answers = forEachLine(file_, [&](std::istringstream& words) {
            std::string listed, mode;
            Space space;
            if (!(words >> listed)) return false;
            const bool isMeant = unescape(listed) == path;
            isListed = isListed || isMeant;
            if (words >> std::ws; words.peek() == '-') return static_cast<bool>(words >> mode);
            if (!(words >> space.fragmentSize >> space.blocks >> space.availableBlocks >> mode)) {
                return false;
            }
            space.isReadOnly = mode == "ro";
            if (isMeant) found = space;
            return mode == "ro" || mode == "rw";
        });
        if (answers && !isListed) ADD_FAILURE() << "the file system at " << path << " was touched";
        return found;
    }

  private:
    fs::path file_;
};

class NoProcessClocks : public ProcessClocks {
  public:
    explicit NoProcessClocks(std::shared_ptr<const FakeClock> clock) : clock_(std::move(clock)) {}

    std::optional<std::uint64_t> read(std::int32_t) override { return std::nullopt; }
    double now() override { return clock_->seconds(); }

  private:
    std::shared_ptr<const FakeClock> clock_;
};

}  // namespace

LinuxCalls recordedCalls(const fs::path& folder, std::shared_ptr<const FakeClock> clock) {
    return {std::make_shared<RecordedFileSystems>(folder / "statvfs"),
            std::make_shared<RecordedLinks>(folder),
            std::make_shared<NoProcessClocks>(std::move(clock))};
}

}  // namespace vantor
