#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <type_traits>

#include "model/record_coding.h"
#include "model/record_fields.h"
#include "model/snapshot_document.h"
#include "model/timestamp_text.h"
#include "support/temporary_folder.h"

#include "documents/document_subjects.h"

/// Exports the snapshots of all machines into a folder, and writes beside each of them what every
/// value in it is, in a form that no JSON writer had a hand in: `place kind value` a line, the
/// value being the 64 bits of a floating one, the digits of an integer, true or false, or the bytes
/// of a text, in hexadecimal. `optional_keys` has the keys that a record may lack.
namespace vantor {
namespace {

void dumpText(const std::string& text, std::ostream& out) {
    out << "text ";
    for (const char letter : text) {
        char digits[3] = {};
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(letter));
        out << digits;
    }
}

template <class T>
void dump(const T& value, const std::string& place, std::ostream& out) {
    if constexpr (isOptional<T>) {
        if (value) dump(*value, place, out);
    } else if constexpr (isList<T>) {
        out << place << " list " << value.size() << '\n';
        for (std::size_t i = 0; i < value.size(); ++i)
            dump(value[i], place + '/' + std::to_string(i), out);
    } else if constexpr (std::is_same_v<T, bool>) {
        out << place << " boolean " << (value ? "true" : "false") << '\n';
    } else if constexpr (std::is_floating_point_v<T>) {
        char bits[17] = {};
        std::snprintf(bits, sizeof bits, "%016llx",
                      static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(value)));
        out << place << " floating " << bits << '\n';
    } else if constexpr (std::is_integral_v<T>) {
        out << place << " integer " << value << '\n';
    } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, SharedText> ||
                         std::is_same_v<T, Timestamp>) {
        out << place << ' ';
        if constexpr (std::is_same_v<T, Timestamp>) {
            dumpText(encodeTimestamp(value), out);
        } else {
            dumpText(value, out);
        }
        out << '\n';
    } else {
        forEachField(value, [&](const char* name, const auto& field) {
            dump(field, place + '/' + name, out);
            return true;
        });
    }
}

void dumpInto(const std::filesystem::path& file, const SystemSnapshot& snapshot) {
    std::ofstream out(file, std::ios::binary);
    dump(snapshot, "", out);
    out.close();
    if (!out) throw std::runtime_error("cannot write " + file.string());
}

/// The keys that may be missing: a line `object key` for each, the object by the key that it is
/// under.
template <class T>
void listOptionalKeys(const std::string& name, std::ostream& out) {
    if constexpr (isOptional<T> || isList<T>) {
        listOptionalKeys<typename T::value_type>(name, out);
    } else if constexpr (std::is_class_v<T> &&
                         !std::is_null_pointer_v<std::remove_const_t<decltype(fieldsOf<T>)>>) {
        const T record{};
        forEachField(record, [&](const char* key, const auto& field) {
            using Field = std::remove_cvref_t<decltype(field)>;
            if (isOptional<Field>) out << name << ' ' << key << '\n';
            listOptionalKeys<Field>(key, out);
            return true;
        });
    }
}

/// Thousands of floating values of all magnitudes, and the ends of every integer.
SystemSnapshot extremeNumbers() {
    using U64 = std::numeric_limits<std::uint64_t>;
    using I64 = std::numeric_limits<std::int64_t>;
    using Double = std::numeric_limits<double>;
    SystemSnapshot snapshot = SystemSnapshot::empty();
    snapshot.cpu.nominalFrequencyHz = U64::max();
    snapshot.cpu.logicalCoreCount = I64::min();
    snapshot.cpu.physicalCoreCount = I64::max();
    snapshot.cpu.totalUsage = -0.0;
    snapshot.cpu.userUsage = Double::denorm_min();
    snapshot.cpu.temperatureCelsius = Double::lowest();
    snapshot.memory.totalBytes = U64::max();
    snapshot.memory.usedBytes = (std::uint64_t{1} << 53) + 1;
    snapshot.system.uptimeSeconds = Double::max();
    snapshot.power = PowerStats{"", Double::min(), true, false, I64::min(), I64::max()};
    snapshot.processes.push_back(
        {std::numeric_limits<std::int32_t>::min(), "", "", 9007199254740992.0, 0});
    std::mt19937_64 random(1);
    while (snapshot.processes.size() < 5000) {
        const double value = std::fabs(std::bit_cast<double>(random()));
        if (!std::isfinite(value)) continue;
        snapshot.processes.push_back(
            {static_cast<std::int32_t>(random()), "a", "b", value, random()});
    }
    return snapshot;
}

/// Every kind of letter that needs care, and no broken ones: those are the fuzzer's.
SystemSnapshot oddTexts() {
    SystemSnapshot snapshot = SystemSnapshot::empty();
    std::string all;
    for (char letter = 0; letter < 0x7F; ++letter)
        all += letter;
    for (const std::string& text :
         {all, std::string("\x7F\xC2\x80\xE2\x80\xA8\xE2\x80\xA9\xEF\xBB\xBF\xEF\xBF\xBF"),
          std::string("\xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF"), std::string("</script>\\u0041\\")}) {
        snapshot.processes.push_back({1, text, "/" + text, 0, 0});
        snapshot.volumes.push_back({text, text, 0, 0, false, false, false});
    }
    return snapshot;
}

void writeDocument(const std::filesystem::path& folder, const std::string& name,
                   const SystemSnapshot& snapshot) {
    writeFile(folder / (name + ".json"), std::get<std::string>(encodedSnapshot(snapshot)));
    dumpInto(folder / (name + ".values"), snapshot);
}

void exportAll(const std::filesystem::path& folder) {
    for (const std::string& name : documentSubjectNames()) {
        dumpInto(folder / (name + ".values"),
                 exportSubject(makeDocumentSubject(name), folder / (name + ".json")));
    }
    writeDocument(folder, "extreme-numbers", extremeNumbers());
    writeDocument(folder, "odd-texts", oddTexts());
    writeDocument(folder, "stand-in", SystemSnapshot::empty());
    std::ofstream keys(folder / "optional_keys");
    listOptionalKeys<SystemSnapshot>("", keys);
}

}  // namespace
}  // namespace vantor

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    try {
        std::filesystem::remove_all(argv[1]);
        std::filesystem::create_directories(argv[1]);
        vantor::exportAll(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
