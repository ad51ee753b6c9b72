#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <optional>

#include "app/session/instance_claim.h"

#include "require.h"

/// A caller over the session bus puts any values under any keys, ours among them.
namespace vantor {
namespace {

using fuzz::require;

constexpr int maxValues = 12;

class Caller {
  public:
    explicit Caller(FuzzedDataProvider& input) : input_(input) {}

    QVariantMap data() {
        QVariantMap data;
        for (int i = input_.ConsumeIntegralInRange(0, maxValues); i > 0; --i)
            data.insert(key(), value());
        return data;
    }

  private:
    QString text() {
        switch (input_.ConsumeIntegralInRange(0, 3)) {
            case 0:  // about as long as a token may be
                return QString(input_.ConsumeIntegralInRange(500, 520), u'a');
            case 1: {
                const std::string units = input_.ConsumeRandomLengthString(64);
                return QString::fromUtf16(reinterpret_cast<const char16_t*>(units.data()),
                                          static_cast<qsizetype>(units.size() / sizeof(char16_t)));
            }
            default:
                return QString::fromStdString(input_.ConsumeRandomLengthString(64));
        }
    }

    QString key() {
        switch (input_.ConsumeIntegralInRange(0, 2)) {
            case 0:
                return waylandTokenKey;
            case 1:
                return x11TokenKey;
            default:
                return text();
        }
    }

    QVariant value() {
        switch (input_.ConsumeIntegralInRange(0, 7)) {
            case 0:
                return {};
            case 1:
                return input_.ConsumeIntegral<qint64>();
            case 2:
                return text().toUtf8();
            case 3:
                return QStringList{text()};
            case 4:
                return QVariantMap{{key(), text()}};
            default:
                return text();
        }
    }

    FuzzedDataProvider& input_;
};

/// The token under that key, as the header promises it.
std::optional<QString> tokenUnder(const QVariantMap& data, QLatin1StringView key) {
    const QVariant value = data.value(key);
    if (value.typeId() != QMetaType::QString) return std::nullopt;
    const QString text = value.toString();
    const bool isToken = !text.isEmpty() && text.size() <= 512 &&
                         std::ranges::all_of(text, [](QChar c) { return c >= u' ' && c <= u'~'; });
    return isToken ? std::optional(text) : std::nullopt;
}

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    FuzzedDataProvider input(data, size);
    const QVariantMap sent = Caller(input).data();
    const auto wayland = tokenUnder(sent, waylandTokenKey);
    const auto x11 = tokenUnder(sent, x11TokenKey);
    fuzz::require(tokenIn(sent) == wayland.value_or(x11.value_or(QString())));
    return 0;
}
