#include "app/qt_defaults_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>

#include <charconv>

namespace vantor {

namespace {

constexpr int mostDamagedFiles = 100;

enum class Condition { usable, damaged, unreadable };

/// The toolkit's own reader forgives too much: it takes a picture for an empty file of settings and
/// then overwrites it. A file of ours is text, each line blank, a comment, a [group] or key=value.
Condition conditionOf(const QString& path) {
    if (!QFileInfo::exists(path)) return Condition::usable;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return Condition::unreadable;
    constexpr qint64 largest = 1 << 20;
    if (file.size() > largest) return Condition::damaged;
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError() || bytes.contains('\0')) return Condition::damaged;
    for (const QString& raw : text.split(u'\n')) {
        const QString line = raw.trimmed();
        const bool isGroup = line.startsWith(u'[') && line.endsWith(u']');
        const bool isEntry = line.indexOf(u'=') > 0;
        if (!line.isEmpty() && !line.startsWith(u';') && !line.startsWith(u'#') && !isGroup &&
            !isEntry) {
            return Condition::damaged;
        }
    }
    return Condition::usable;
}

bool moveAside(const QString& path) {
    for (int i = 1; i <= mostDamagedFiles; ++i) {
        const QString aside = path + QStringLiteral(".damaged-%1").arg(i);
        if (!QFileInfo::exists(aside)) return QFile::rename(path, aside);
    }
    return false;
}

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::optional<std::int64_t> wholeNumber(const std::string& text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// The toolkit's own reading, whatever the locale, for a text that is nothing but a number.
std::optional<double> floatingNumber(const QString& text) {
    if (text.startsWith(u'+') || text.trimmed() != text) return std::nullopt;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// An ini file holds texts only; what such a text can be read as is its type.
DefaultsStore::Value typed(const QString& text) {
    const std::string bytes = text.toStdString();
    if (bytes == "true") return true;
    if (bytes == "false") return false;
    if (const auto whole = wholeNumber(bytes)) return *whole;
    if (const auto number = floatingNumber(text)) return *number;
    return bytes;
}

struct ToVariant {
    QVariant operator()(bool value) const { return value; }
    QVariant operator()(std::int64_t value) const { return QVariant::fromValue<qlonglong>(value); }
    QVariant operator()(double value) const { return value; }
    QVariant operator()(const std::string& value) const { return QString::fromStdString(value); }
};

}  // namespace

QString QtDefaultsStore::userFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QStringLiteral("/vantor/settings.ini");
}

QtDefaultsStore::QtDefaultsStore(const QString& file) {
    const Condition condition = conditionOf(file);
    if (condition == Condition::unreadable) return;
    if (condition == Condition::damaged && !moveAside(file)) return;
    settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

std::optional<DefaultsStore::Value> QtDefaultsStore::value(std::string_view key) const {
    if (!settings_) return std::nullopt;
    const QVariant stored = settings_->value(toQString(key));
    if (!stored.isValid()) return std::nullopt;
    if (stored.typeId() == QMetaType::Bool) return stored.toBool();
    if (stored.typeId() == QMetaType::LongLong) return Value{std::int64_t{stored.toLongLong()}};
    if (stored.typeId() == QMetaType::Double) return stored.toDouble();
    // A text with a comma arrives as a list; none of ours has one.
    if (stored.typeId() != QMetaType::QString) return Value{std::string()};
    return typed(stored.toString());
}

void QtDefaultsStore::setValue(std::string_view key, const Value& value) {
    if (!settings_) return;
    settings_->setValue(toQString(key), std::visit(ToVariant{}, value));
    settings_->sync();
}

}  // namespace vantor
