#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

namespace vantor {

/// A desktop's portal on a bus that tells how programs should look, for as long as the object
/// lives. Its answers are given while the caller handles events.
class FakeSettingsPortal {
  public:
    using Look = QMap<QString, QVariant>;  ///< "color-scheme" and so on

    explicit FakeSettingsPortal(const QString& address, Look look = {});
    FakeSettingsPortal(const FakeSettingsPortal&) = delete;
    FakeSettingsPortal& operator=(const FakeSettingsPortal&) = delete;
    ~FakeSettingsPortal();

    /// Changes it and tells everybody.
    void change(const QString& key, const QVariant& value,
                const QString& where = QStringLiteral("org.freedesktop.appearance"));
    /// The same, told by another connection.
    void changeFalsely(const QString& address, const QString& key, const QVariant& value) const;

    bool isSilent = false;  ///< answers nothing
    int asked() const { return asked_; }

  private:
    class Service;

    QString name_;
    QDBusConnection bus_;
    Look look_;
    std::unique_ptr<Service> service_;
    int asked_ = 0;
};

}  // namespace vantor
