#pragma once

#include <QSettings>
#include <QString>

#include <memory>

#include "settings/defaults_store.h"

namespace vantor {

/// The five preferences in one small ini file.
///
/// A missing or unreadable file answers nothing. A damaged one is moved aside beside its place
/// (settings.ini.damaged-1 and so on) before anything is written; where that cannot be done, the
/// file stays as it is and preferences last for the run only. The same goes for a folder that
/// cannot be written.
class QtDefaultsStore : public DefaultsStore {
  public:
    /// The file of the user who runs the program.
    static QString userFile();

    explicit QtDefaultsStore(const QString& file);

    std::optional<Value> value(std::string_view key) const override;
    void setValue(std::string_view key, const Value& value) override;

    bool isPersistent() const { return settings_ != nullptr; }

  private:
    std::unique_ptr<QSettings> settings_;  // none when there is no file to keep them in
};

}  // namespace vantor
