#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>

namespace vantor {

/// A desktop's portal on a bus, which shows save dialogs, for as long as the object lives. Its
/// answers are given while the caller handles events.
class FakePortal {
  public:
    enum class Manner {
        honest,
        silent,       ///< answers nothing at all
        stuck,        ///< says that it is there, and answers no request for a dialog
        chooserless,  ///< is there and has no dialogs
        refusing,     ///< shows no dialog
        oldFashioned  ///< has names of its own for requests
    };

    explicit FakePortal(const QString& address, Manner manner = Manner::honest);
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;
    ~FakePortal();

    /// The dialogs that it was asked for, and those that were closed by who asked.
    int asked() const { return asked_; }
    int closed() const { return closed_; }

    // Of the last one:

    const QString& parentWindow() const { return parentWindow_; }
    const QString& title() const { return title_; }
    const QVariantMap& options() const { return options_; }
    const QString& handle() const { return handle_; }

    /// Reports its end: 0 with files, 1 cancelled by the user, 2 otherwise.
    void respond(uint response, const QStringList& uris = {});
    /// The same, sent by another connection.
    void respondFalsely(const QString& address, const QStringList& uris);

  private:
    class Service;

    QString name_;
    QDBusConnection bus_;
    Manner manner_;
    std::unique_ptr<Service> service_;
    int asked_ = 0;
    int closed_ = 0;
    QString parentWindow_;
    QString title_;
    QVariantMap options_;
    QString handle_;
};

}  // namespace vantor
