#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QString>

#include <optional>
#include <vector>

namespace vantor {

/// Something that a screen reader can speak of.
struct AccessibleElement {
    QString service;
    QDBusObjectPath path;
    QString role;
    QString name;
    QString description;
};

/// What a screen reader is: a client of the desktop's accessibility bus.
class AssistiveClient {
  public:
    /// Asks the session bus at that address for the accessibility bus.
    explicit AssistiveClient(const QString& sessionBus);
    AssistiveClient(const AssistiveClient&) = delete;
    AssistiveClient& operator=(const AssistiveClient&) = delete;
    ~AssistiveClient();

    bool isConnected() const { return bus_.has_value(); }

    /// Every element of the program of that name, outermost first; none when it is not there.
    std::vector<AccessibleElement> walk(const QString& program) const;

    /// Asks an element for one of its actions, and does not wait for what comes of it. False when
    /// it has no action of that name.
    bool act(const AccessibleElement& element, const char* action) const;

    /// Whether it is on the screen, as far as its own program can tell.
    bool isShowing(const AccessibleElement& element) const;

    /// Whether it is the one of its group that is chosen.
    bool isChecked(const AccessibleElement& element) const;

    /// Where its left edge is in its window; none where it does not say.
    std::optional<int> leftOf(const AccessibleElement& element) const;

  private:
    bool hasState(const AccessibleElement& element, unsigned state) const;
    std::vector<AccessibleElement> childrenOf(const AccessibleElement& element) const;
    QString property(const AccessibleElement& element, const char* name) const;
    void collect(const AccessibleElement& element, std::vector<AccessibleElement>& all) const;

    std::optional<QDBusConnection> bus_;
};

}  // namespace vantor
