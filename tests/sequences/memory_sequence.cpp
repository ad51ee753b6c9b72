#include "sequences/memory_sequence.h"

#include <algorithm>

#include "sequences/disagreement.h"

namespace vantor {

namespace {

constexpr std::uint64_t largest = ~std::uint64_t{0};

bool fits(std::uint64_t pages, std::uint64_t pageSize) {
    return pages == 0 || pageSize <= largest / pages;
}

void compare(Disagreement& disagreement, const MemoryStats& actual, const MemoryStats& expected) {
    disagreement.expectSame("total", actual.totalBytes, expected.totalBytes);
    disagreement.expectSame("used", actual.usedBytes, expected.usedBytes);
    disagreement.expectSame("active", actual.activeBytes, expected.activeBytes);
    disagreement.expectSame("wired", actual.wiredBytes, expected.wiredBytes);
    disagreement.expectSame("compressed", actual.compressedBytes, expected.compressedBytes);
    disagreement.expectSame("cached", actual.cachedBytes, expected.cachedBytes);
    disagreement.expectSame("available", actual.availableBytes, expected.availableBytes);
}

}  // namespace

MemorySequence::MemorySequence(std::uint64_t seed) : chance_(seed) {
    installed_ = chance_.oneIn(3) ? chance_.ofAnySize() : std::uint64_t{1} << chance_.below(44);
    if (chance_.oneIn(3)) {
        machine_->processInfo().memory = installed_;
    } else {
        machine_->kernelValues().setUInt64("hw.memsize", installed_);
    }
    host_.bytesPerPage = std::uint64_t{1024} << chance_.below(7);
}

void MemorySequence::changePages() {
    const unsigned bits = chance_.oneIn(4) ? 32 : 20;
    for (std::uint32_t* const pages :
         {&host_.active, &host_.inactive, &host_.wired, &host_.purgeable, &host_.compressor}) {
        if (!chance_.oneIn(3)) *pages = static_cast<std::uint32_t>(chance_.ofAnySize(bits));
        if (chance_.oneIn(40)) *pages = ~std::uint32_t{0};
    }
    if (chance_.oneIn(10)) host_.bytesPerPage = chance_.ofAnySize();
    if (chance_.oneIn(10)) host_.bytesPerPage = (std::uint64_t{1} << 32) - chance_.below(2);
    if (chance_.oneIn(5)) host_.bytesPerPage = 16384;
    host_.statisticsFail = chance_.oneIn(20);
    host_.pageSizeFails = chance_.oneIn(20);
    host_.wordCount = chance_.oneIn(20) ? 0 : 38;
}

std::optional<MemoryStats> MemorySequence::expected() const {
    if (host_.statisticsFail || host_.wordCount == 0 || host_.pageSizeFails) return std::nullopt;
    const std::uint64_t size = host_.bytesPerPage;
    const std::uint64_t inUse =
        std::uint64_t{host_.active} + std::uint64_t{host_.wired} + std::uint64_t{host_.compressor};
    const std::uint64_t cached = std::uint64_t{host_.purgeable} + host_.inactive;
    // Each of the parts is smaller than their sum.
    if (!fits(inUse, size) || !fits(cached, size)) return std::nullopt;
    MemoryStats stats;
    stats.totalBytes = installed_;
    stats.usedBytes = std::min(inUse * size, installed_);
    stats.activeBytes = host_.active * size;
    stats.wiredBytes = host_.wired * size;
    stats.compressedBytes = host_.compressor * size;
    stats.cachedBytes = cached * size;
    stats.availableBytes = installed_ - stats.usedBytes;
    return stats;
}

std::optional<std::string> MemorySequence::step() {
    changePages();
    const auto expected = this->expected();
    // Installed memory is what it was when it was first asked for.
    if (isInstalledKnown_ && chance_.oneIn(10)) {
        machine_->kernelValues().setUInt64("hw.memsize", chance_.any());
        machine_->processInfo().memory = chance_.any();
    }
    const auto actual = reader_.read();
    isInstalledKnown_ = isInstalledKnown_ || actual.has_value();
    if (host_.portsOutstanding != 0) return "a port was not given back";
    Disagreement disagreement;
    disagreement.expectSame("there is a record", actual.has_value(), expected.has_value());
    if (actual && expected) compare(disagreement, *actual, *expected);
    return disagreement.text();
}

}  // namespace vantor
