#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "platform/shared_file.h"

namespace vantor {

/// A file that fails on request.
class FakeSharedFile : public SharedFile {
  public:
    Reading read(std::size_t most) override {
        ++reads;
        if (readError) return {std::nullopt, DescribedError{*readError}};
        if (!bytes) return {};
        return {bytes->substr(0, most), std::nullopt};
    }
    std::optional<DescribedError> write(std::string_view content) override {
        ++writes;
        wasHeldForWrite = isHeld;
        if (writeError) return DescribedError{*writeError};
        bytes = content;
        return std::nullopt;
    }
    std::optional<DescribedError> remove() override {
        if (writeError) return DescribedError{*writeError};
        bytes.reset();
        return std::nullopt;
    }
    std::optional<DescribedError> putAside() override {
        if (asideError) return DescribedError{*asideError};
        aside = std::exchange(bytes, std::nullopt);
        return std::nullopt;
    }
    void withoutOthers(const std::function<void()>& work) override {
        isHeld = true;
        if (onHold) onHold();
        work();
        isHeld = false;
    }

    std::optional<std::string> bytes;
    std::optional<std::string> aside;
    std::optional<std::string> readError;
    std::optional<std::string> writeError;
    std::optional<std::string> asideError;
    std::function<void()> onHold;  ///< what another program does just before
    int reads = 0;
    int writes = 0;
    bool isHeld = false;
    bool wasHeldForWrite = false;
};

}  // namespace vantor
