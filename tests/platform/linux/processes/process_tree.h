#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/linux/processes/linux_process_table.h"
#include "support/fake_kernel_tree.h"
#include "support/fake_process_clocks.h"

namespace vantor {

/// What the files of a made-up process say.
struct ProcessFacts {
    std::string name = "proc";
    std::uint64_t flags = 0x400000;
    std::uint64_t userTicks = 0;
    std::uint64_t systemTicks = 0;
    std::uint64_t startTicks = 100;
    std::uint64_t residentPages = 10;

    std::string stat(std::int32_t pid) const {
        return std::to_string(pid) + " (" + name + ") S 1 1 1 0 -1 " + std::to_string(flags) +
               " 9 8 7 6 " + std::to_string(userTicks) + " " + std::to_string(systemTicks) +
               " 5 4 20 0 1 0 " + std::to_string(startTicks) + " 99999 " +
               std::to_string(residentPages) + " 18446744073709551615 0 0 0\n";
    }
    std::string statm() const { return "5000 " + std::to_string(residentPages) + " 3 1 0 2 0\n"; }
};

constexpr std::uint64_t kernelThreadFlags = 0x208040;

/// A made-up /proc with processes, their scripted clocks, and the table over both.
class ProcessTree {
  public:
    void add(std::int32_t pid, const ProcessFacts& facts) const {
        tree.proc(file(pid, "stat"), facts.stat(pid));
        tree.proc(file(pid, "statm"), facts.statm());
    }
    /// One whose clock has run, too.
    void start(std::int32_t pid, const ProcessFacts& facts = {}) {
        add(pid, facts);
        clocks->values[pid] = 1000;
    }
    void end(std::int32_t pid) {
        tree.removeProc(std::to_string(pid));
        clocks->values.erase(pid);
    }
    void sayLastPID(std::int32_t pid) const {
        tree.proc("sys/kernel/ns_last_pid", std::to_string(pid) + "\n");
    }
    static std::string file(std::int32_t pid, const std::string& name) {
        return std::to_string(pid) + "/" + name;
    }
    LinuxProcessTable table() const { return LinuxProcessTable(tree.roots(), clocks); }
    LinuxProcessTable ownTable() const {
        tree.becomeOwnProc();
        return table();
    }

    FakeKernelTree tree;
    std::shared_ptr<FakeProcessClocks> clocks = std::make_shared<FakeProcessClocks>();
};

}  // namespace vantor
