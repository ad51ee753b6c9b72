#pragma once

#include <QDBusVirtualObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace vantor {

/// An object on a bus with one interface, whose properties can be read. Main thread.
class BusObject : public QDBusVirtualObject {
  public:
    /// `description` is the interface in the format of introspection.
    BusObject(QString path, QString interface, QString description);

    const QString& path() const { return path_; }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  protected:
    virtual QVariantMap properties() const = 0;
    /// The reply; absent where there is no such method.
    virtual std::optional<QVariantList> call(const QString& method, const QString& signature,
                                             const QVariantList& arguments) = 0;

  private:
    std::optional<QVariantList> answer(const QDBusMessage& message);
    std::optional<QVariantList> read(const QDBusMessage& message) const;

    QString path_;
    QString interface_;
    QString description_;
};

}  // namespace vantor
