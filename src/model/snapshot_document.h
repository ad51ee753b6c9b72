#pragma once

#include <string>
#include <variant>

#include "model/described_error.h"
#include "model/system_snapshot.h"

namespace vantor {

/// The whole of a snapshot as one JSON document: UTF-8 without a byte-order mark, and nothing after
/// the closing brace.
///
/// Each member and each element stands on a line of its own, two blanks a level, with a blank on
/// each side of the colon; an empty list is `[]`. Keys are the fields' names in ascending order of
/// their bytes. An absent optional has no key. Integers are decimal; a floating value has the
/// fewest digits that read back as the same 64 bits, and always a fraction or an exponent, so that
/// a reader takes 5.0 for the same kind of number as 5.25, and keeps the sign of -0.0. Slashes are
/// not escaped. Bytes that are not UTF-8 (the names of processes can be any bytes) are written as
/// U+FFFD, by the rules of validUTF8: whatever the texts hold, the document is well-formed.
///
/// The one failure is a floating value that is infinite or not a number: JSON cannot represent
/// it. The error names its place in the document. Any thread.
std::variant<std::string, DescribedError> encodedSnapshot(const SystemSnapshot& snapshot);

}  // namespace vantor
