#include "support/fake_kernel_tree.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace vantor {

namespace {

void write(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

void makeLink(const std::filesystem::path& place, std::string_view target) {
    std::filesystem::create_directories(place.parent_path());
    std::filesystem::remove(place);
    std::filesystem::create_symlink(target, place);
}

}  // namespace

FakeKernelTree::FakeKernelTree() {
    std::string name = (std::filesystem::temp_directory_path() / "kernel-tree-XXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("cannot make " + name);
    root_ = name;
    std::filesystem::create_directory(root_ / "proc");
    std::filesystem::create_directory(root_ / "sys");
}

FakeKernelTree::~FakeKernelTree() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
}

void FakeKernelTree::proc(std::string_view path, std::string_view content) const {
    write(root_ / "proc" / path, content);
}

void FakeKernelTree::sys(std::string_view path, std::string_view content) const {
    write(root_ / "sys" / path, content);
}

void FakeKernelTree::etc(std::string_view path, std::string_view content) const {
    write(root_ / "etc" / path, content);
}

void FakeKernelTree::run(std::string_view path, std::string_view content) const {
    write(root_ / "run" / path, content);
}

void FakeKernelTree::usr(std::string_view path, std::string_view content) const {
    write(root_ / "usr" / path, content);
}

void FakeKernelTree::link(std::string_view path, std::string_view target) const {
    makeLink(root_ / "sys" / path, target);
}

void FakeKernelTree::linkProc(std::string_view path, std::string_view target) const {
    makeLink(root_ / "proc" / path, target);
}

void FakeKernelTree::blockDevice(std::string_view number, std::string_view device) const {
    std::filesystem::create_directories(root_ / "sys" / device);
    sys(std::string(device) + "/dev", std::string(number) + "\n");
    const std::string target = "../../" + std::string(device);
    link("dev/block/" + std::string(number), target);
    link("class/block" + std::string(device.substr(device.rfind('/'))), target);
}

void FakeKernelTree::core(unsigned processor, std::string_view package, std::string_view die,
                          std::string_view core) const {
    const std::string folder = "devices/system/cpu/cpu" + std::to_string(processor) + "/topology/";
    if (!package.empty()) sys(folder + "physical_package_id", package);
    if (!die.empty()) sys(folder + "die_id", die);
    if (!core.empty()) sys(folder + "core_id", core);
}

void FakeKernelTree::procFolder(std::string_view path) const {
    std::filesystem::create_directories(root_ / "proc" / path);
}

void FakeKernelTree::becomeOwnProc() const {
    linkProc("self", std::to_string(::getpid()));
}

void FakeKernelTree::removeProc(std::string_view path) const {
    std::filesystem::remove_all(root_ / "proc" / path);
}

void FakeKernelTree::removeSys(std::string_view path) const {
    std::filesystem::remove_all(root_ / "sys" / path);
}

}  // namespace vantor
