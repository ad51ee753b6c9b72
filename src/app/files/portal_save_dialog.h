#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "app/files/bus_signal.h"
#include "app/files/patient_questions.h"
#include "app/session/bus_line.h"

namespace vantor {

/// A pattern of file names, and the filter with it, as they are sent.
struct PortalPattern {
    uint kind = 0;  ///< 0: with wildcards
    QString text;
};
QDBusArgument& operator<<(QDBusArgument& out, const PortalPattern& pattern);
const QDBusArgument& operator>>(const QDBusArgument& in, PortalPattern& pattern);

struct PortalFilter {
    QString name;
    QList<PortalPattern> patterns;
};
QDBusArgument& operator<<(QDBusArgument& out, const PortalFilter& filter);
const QDBusArgument& operator>>(const QDBusArgument& in, PortalFilter& filter);

/// The file of a "file:" URI of this machine, in the system's bytes; none for any other.
std::optional<std::filesystem::path> fileOfURI(const QString& uri);

/// The desktop's own save dialog, which its portal shows from a process of its own
/// (org.freedesktop.portal.FileChooser): disks that it looks at cannot hold up the program. Nothing
/// here waits for the bus. Main thread.
class PortalSaveDialog {
  public:
    struct Request {
        QString title;
        QString proposedName;
        QString kind;                  ///< of file, as users call it
        QString ending;                ///< of such files; empty: any file
        std::filesystem::path folder;  ///< where to begin; empty: the desktop decides
        QString parentWindow;  ///< "x11:" and its number; empty where it has no handle for others
    };

    struct Outcome {
        enum class Kind {
            chosen,
            cancelled,
            unavailable,  ///< no portal, or it stopped answering
        };
        Kind kind = Kind::unavailable;
        std::filesystem::path file;
    };

    /// How long the portal may take to confirm that it shows a dialog.
    static constexpr std::chrono::milliseconds usualPatience{1500};

    static QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }

    PortalSaveDialog(Request request, std::shared_ptr<PatientQuestions> questions,
                     BusLine::Connect connect, std::chrono::milliseconds patience = usualPatience);
    PortalSaveDialog(const PortalSaveDialog&) = delete;
    PortalSaveDialog& operator=(const PortalSaveDialog&) = delete;
    /// Closes the dialog; `onEnd` is not called any more.
    ~PortalSaveDialog();

    /// Shows the dialog. `onEnd` is called once, never from within this call; it may not end this
    /// object.
    void begin(std::function<void(const Outcome&)> onEnd);

  private:
    void askWhetherItIsThere();
    void askForDialog();
    void listenTo(const QString& handle);
    void handleIs(const QString& handle);
    void responded(const QDBusMessage& message);
    void end(Outcome outcome);
    void closeRequest();
    QVariantMap options() const;

    Request request_;
    std::shared_ptr<PatientQuestions> questions_;
    BusLine::Connect connect_;
    std::chrono::milliseconds patience_;
    std::function<void(const Outcome&)> onEnd_;

    PatientQuestions::Question connecting_;
    std::shared_ptr<BusLine> line_;
    QString portal_;  // its unique name
    QString token_;
    QString handle_;  // of the request; empty while there is none
    QDBusServiceWatcher portalEnd_;
    BusSignal response_;
    BusSignal lineEnd_;
    QObject context_;  // of pending answers
};

}  // namespace vantor
