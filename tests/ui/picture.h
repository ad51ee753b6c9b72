#pragma once

#include <gtest/gtest.h>

#include <QImage>

#include <string>

namespace vantor {

/// Compares `image` with the agreed picture of that name in tests/ui/pictures.
///
/// They are alike when the channels differ by 2 of 255 on average at most and no more than 1 % of
/// the pixels have a channel that differs by more than 32: glyphs are drawn a shade lighter or
/// darker by another version of the font renderer, and a misplaced line is not such a shade. What
/// is not alike is saved in the build folder, to be looked at.
///
/// With --update-pictures on the command line, `image` becomes the agreed picture instead; the
/// target update_pictures does that.
testing::AssertionResult looksLike(const QImage& image, const std::string& name);

}  // namespace vantor
