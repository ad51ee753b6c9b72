#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/defaults_store.h"

namespace vantor {

/// Small values by name.
using DefaultsValues = std::map<std::string, DefaultsStore::Value, std::less<>>;

/// The text of a file of preferences: lines that are blank, comments (; or #), a [group] or
/// key=value. Ours is the group [General], which the lines before the first group belong to as
/// well; of a key that is there twice, the last counts. Whatever is not changed stays as it was
/// written: comments, keys and groups of others. Byte order marks at the beginning are dropped. No
/// thread, no file.
///
/// An ini file holds texts only; the type follows from the text: true and false, whole numbers,
/// numbers, anything else a text. One with commas is a list, which none of ours is, and becomes the
/// empty text.
class IniText {
  public:
    /// Bytes; a larger file is not one of preferences.
    static constexpr std::size_t largest = std::size_t{1} << 20;

    IniText() = default;

    /// Absent for anything else: a picture, a truncated line, zero bytes, malformed UTF-8, too many
    /// bytes.
    static std::optional<IniText> parse(std::string_view bytes);

    DefaultsValues values() const;

    /// The key is of ASCII.
    void setValue(std::string_view key, const DefaultsStore::Value& value);

    std::string text() const;

  private:
    struct Line {
        std::string text;      // with its end
        bool isOurs = false;   // of our group
        bool isBlank = false;  // nothing on it
        std::optional<std::string> key;
        std::string value;  // as it is written
    };

    /// Absent for a line that is none.
    static std::optional<Line> parseLine(std::string_view text, bool& isOurs);

    std::vector<Line> lines_;
};

}  // namespace vantor
