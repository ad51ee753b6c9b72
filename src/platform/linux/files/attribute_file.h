#pragma once

#include <string>

namespace vantor {

/// What a small file of the kernel's said. Reading by folder and name spares the kernel the way.
struct AttributeText {
    std::string text;  ///< without the line's end
    int error = 0;     ///< an errno value; 0 when it could be read

    bool wasRead() const { return error == 0; }
    /// The file, or the device that it speaks of, is not there.
    bool isGone() const;
};

/// Reads the front of the file, a page at most. `folder` is an open folder, or AT_FDCWD.
AttributeText readAttribute(int folder, const char* name);

}  // namespace vantor
