#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <vector>

#include "platform/darwin/interface_dump.h"
#include "platform/darwin/interface_dump_reader.h"
#include "platform/darwin/interface_message.h"

#include "require.h"

namespace vantor {
namespace {

using fuzz::require;
using Bytes = std::span<const std::byte>;
using Step = InterfaceDump::Step;

/// Answers the question for the list with these bytes. Every seventh index has no name; two
/// indices share each name, as when an interface comes twice.
class Interfaces : public InterfaceCalls {
  public:
    explicit Interfaces(Bytes list) : list_(list) {}

    /// How many times less room is asked for than is needed, as when interfaces come meanwhile.
    int tooLittle = 0;
    /// How much more is asked for than is needed.
    std::size_t excess = 0;

    static bool hasName(std::uint32_t index) { return index % 7 != 6; }

    int sysctl(std::span<const int>, std::span<std::byte> buffer, std::size_t& size) override {
        size = list_.size();
        if (buffer.empty()) {
            size = tooLittle > 0 ? (size + 1) / 2 : size + excess;
            --tooLittle;
            return 0;
        }
        if (buffer.size() < size) return ENOMEM;
        std::ranges::copy(list_, buffer.begin());
        return 0;
    }
    bool indexToName(std::uint32_t index, std::span<char> name) override {
        if (!hasName(index)) return false;
        const std::string text = "link" + std::to_string(index / 2);
        require(text.size() < name.size());
        std::ranges::copy(text, name.begin());
        name[text.size()] = '\0';
        return true;
    }
    std::optional<std::span<const Entry>> getifaddrs() override { return std::nullopt; }
    void freeifaddrs() override {}
    bool numericHost(const Entry&, std::span<char>) override { return false; }

  private:
    Bytes list_;
};

std::vector<InterfaceDump::Message> walk(Bytes bytes, Step& end) {
    InterfaceDump dump(bytes);
    InterfaceDump::Message message;
    std::vector<InterfaceDump::Message> messages;
    while ((end = dump.next(message)) == Step::message)
        messages.push_back(message);
    require(dump.next(message) == end);
    return messages;
}

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const auto bytes = std::as_bytes(std::span(data, size));
    Step end = Step::end;
    const auto messages = walk(bytes, end);
    require(messages.size() <= size / interface_message::size);

    // Written anew they say the same.
    std::vector<std::byte> written(messages.size() * interface_message::size);
    for (std::span<std::byte> rest = written; const auto& message : messages) {
        writeInterfaceMessage(rest, message.index, message.received, message.sent);
        rest = rest.subspan(interface_message::size);
    }
    Step again = Step::malformed;
    const auto same = [](const auto& a, const auto& b) {
        return a.index == b.index && a.received == b.received && a.sent == b.sent;
    };
    require(std::ranges::equal(walk(written, again), messages, same) && again == Step::end);

    Interfaces interfaces(bytes);
    InterfaceDumpReader reader;
    const bool areNamed =
        std::ranges::all_of(messages, [](const auto& m) { return Interfaces::hasName(m.index); });
    const bool isWhole = reader.read64BitInterfaceCounters(interfaces);
    require(isWhole == (size > 0 && end == Step::end && areNamed));
    if (!isWhole) return 0;
    require(reader.counters().size() <= messages.size());
    require(messages.empty() == (reader.counters().size() == 0));
    if (messages.empty()) return 0;
    const auto& last = messages.back();  // the later one of two of a name
    const auto* const held = reader.counters().find("link" + std::to_string(last.index / 2));
    require(held && held->received == last.received && held->sent == last.sent);
    require(held->index == last.index);

    // Much room that was needed once is given back, and what is read stays the same.
    constexpr int passes = 9;
    interfaces.excess = data[0] % 16 == 0 ? std::size_t{1} << 20 : 0;
    for (int pass = 0; pass < passes && interfaces.excess > 0; ++pass) {
        require(reader.read64BitInterfaceCounters(interfaces));
        require(reader.counters().find("link" + std::to_string(last.index / 2)) != nullptr);
    }
    // Twice the room is tried twice; the first question may have asked for half of it.
    interfaces.excess = 0;
    for (int times = 1; times < 4; ++times) {
        interfaces.tooLittle = times;
        InterfaceDumpReader surprised;
        require(surprised.read64BitInterfaceCounters(interfaces));
    }
    return 0;
}
