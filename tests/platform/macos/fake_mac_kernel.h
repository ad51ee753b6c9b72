#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vantor {

/// The kernel behind the calls of the stand-in's headers, by script. One at a time.
class FakeMacKernel {
  public:
    struct Process {
        std::uint64_t startSeconds = 0;
        std::uint64_t startMicroseconds = 0;
        std::uint64_t resident = 0;
        std::uint64_t user = 0;
        std::uint64_t system = 0;
        std::string path;  ///< none can be asked for when empty
        std::string name;
    };

    FakeMacKernel();
    FakeMacKernel(const FakeMacKernel&) = delete;
    FakeMacKernel& operator=(const FakeMacKernel&) = delete;
    ~FakeMacKernel();

    std::vector<std::uint32_t> total{4000, 2000, 32000, 400};
    std::vector<std::uint32_t> perProcessor;  ///< four for each
    std::vector<std::uint32_t> memoryRecord = std::vector<std::uint32_t>(38);
    std::uint64_t pageSize = 16384;
    std::uint32_t numerator = 125;
    std::uint32_t denominator = 3;
    std::map<std::int32_t, Process> processes;
    std::map<std::string, std::vector<std::byte>> values;
    bool fails = false;  ///< every call

    int portsHeld = 0;
    std::vector<std::size_t> arraysHeld;  ///< their sizes in bytes
    int maxBytesOfPath = 0;               ///< the most room that was offered for one

    static FakeMacKernel& current();
};

}  // namespace vantor
