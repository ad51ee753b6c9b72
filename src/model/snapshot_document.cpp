#include "model/snapshot_document.h"

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>

#include "model/number_text.h"
#include "model/record_fields.h"
#include "model/timestamp_text.h"
#include "model/utf8.h"

namespace vantor {

namespace {

/// The place of a value, from the value upwards; only used when it cannot be written.
struct Place {
    const Place* above = nullptr;
    const char* key = nullptr;
    std::optional<std::size_t> element;

    std::string text() const {
        std::string path = above ? above->text() : std::string();
        if (element) return path + '[' + std::to_string(*element) + ']';
        if (!path.empty()) path += '.';
        return path + key;
    }
};

class DocumentWriter {
  public:
    explicit DocumentWriter(std::string& out) : out_(out) {}

    /// False when a number in it cannot be written.
    template <class T>
    bool write(const T& value, const Place* place) {
        if constexpr (std::same_as<T, bool>) {
            out_ += value ? "true" : "false";
        } else if constexpr (std::floating_point<T>) {
            return writeFloating(value, place);
        } else if constexpr (std::integral<T>) {
            writeWhole(value);
        } else if constexpr (std::same_as<T, Timestamp>) {
            writeText(encodeTimestamp(value));
        } else if constexpr (std::same_as<T, SharedText>) {
            writeText(value.string());
        } else if constexpr (std::same_as<T, std::string>) {
            writeText(value);
        } else if constexpr (isList<T>) {
            return writeList(value, place);
        } else {
            return writeRecord(value, place);
        }
        return true;
    }

    const std::string& complaint() const { return complaint_; }

  private:
    template <class Record>
    bool writeRecord(const Record& record, const Place* place) {
        bool isFirst = true;
        open('{');
        const bool wentWell = forEachFieldByName(record, [&](const char* name, const auto& value) {
            return writeMember(name, value, place, isFirst);
        });
        if (!wentWell) return false;
        close('}');
        return true;
    }

    template <class T>
    bool writeMember(const char* name, const T& value, const Place* place, bool& isFirst) {
        if constexpr (isOptional<T>) {
            return !value || writeMember(name, *value, place, isFirst);
        } else {
            beginLine(isFirst);
            ((out_ += '"') += name) += "\" : ";
            const Place here{place, name, {}};
            return write(value, &here);
        }
    }

    template <class T>
    bool writeList(const std::vector<T>& list, const Place* place) {
        if (list.empty()) {
            out_ += "[]";
            return true;
        }
        bool isFirst = true;
        Place here{place, nullptr, 0};
        open('[');
        for (const T& element : list) {
            beginLine(isFirst);
            if (!write(element, &here)) return false;
            ++*here.element;
        }
        close(']');
        return true;
    }

    void open(char bracket) {
        out_ += bracket;
        ++level_;
    }

    void close(char bracket) {
        --level_;
        newLine();
        out_ += bracket;
    }

    void beginLine(bool& isFirst) {
        if (!isFirst) out_ += ',';
        isFirst = false;
        newLine();
    }

    void newLine() {
        out_ += '\n';
        out_.append(2 * level_, ' ');
    }

    template <std::integral Number>
    void writeWhole(Number number) {
        std::array<char, 24> characters;  // no number needs more than 20
        const auto end =
            std::to_chars(characters.data(), characters.data() + characters.size(), number).ptr;
        out_.append(characters.data(), end);
    }

    bool writeFloating(double value, const Place* place) {
        if (!std::isfinite(value)) {
            complaint_ = "The value of \"" + place->text() +
                         (std::isnan(value) ? "\" is not a number" : "\" is infinite") +
                         ", and a JSON document can hold finite numbers only.";
            return false;
        }
        std::array<char, 32> characters;
        const std::string_view written = shortestText(characters, value);
        out_ += written;
        if (written.find_first_of(".e") == std::string_view::npos) out_ += ".0";
        return true;
    }

    void writeText(std::string_view text) {
        text = validUTF8(text, mended_);
        out_ += '"';
        std::size_t copied = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto letter = static_cast<unsigned char>(text[i]);
            if (letter >= 0x20 && letter != '"' && letter != '\\') continue;
            out_ += text.substr(copied, i - copied);
            copied = i + 1;
            writeEscaped(letter);
        }
        out_ += text.substr(copied);
        out_ += '"';
    }

    void writeEscaped(unsigned char letter) {
        constexpr std::string_view special = "\"\\\b\f\n\r\t";
        constexpr std::string_view shortForms = "\"\\bfnrt";
        constexpr std::string_view digits = "0123456789abcdef";
        const auto found = special.find(static_cast<char>(letter));
        if (found != std::string_view::npos) {
            (out_ += '\\') += shortForms[found];
        } else {
            ((out_ += "\\u00") += digits[letter >> 4]) += digits[letter & 0xF];
        }
    }

    std::string& out_;
    std::string complaint_;
    std::string mended_;
    std::size_t level_ = 0;
};

}  // namespace

std::variant<std::string, DescribedError> encodedSnapshot(const SystemSnapshot& snapshot) {
    // What a process takes, its texts aside, and the rest of a usual machine.
    constexpr std::size_t bytesOfProcess = 256;
    constexpr std::size_t bytesOfTheRest = 16384;
    std::string document;
    document.reserve(bytesOfTheRest + bytesOfProcess * snapshot.processes.size());
    DocumentWriter writer(document);
    if (!writer.write(snapshot, nullptr)) return DescribedError{writer.complaint()};
    return document;
}

}  // namespace vantor
