#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

#include "e2e/spoken_program.h"

namespace vantor {

/// All that a user does with the program, by assistive technology, without keyboard or pointer; so
/// it is the same on every display. Each act waits until it shows, and fails the test if it never
/// does.
class WholeUse {
  public:
    struct Session {
        QString busAddress;
        QString settingsFile;
        QString folder;     ///< for what is exported
        QString documents;  ///< what the save dialog proposes first
        /// Presses the key that confirms, where there is a keyboard: the tray's panel is not among
        /// what a screen reader is notified of.
        std::function<void()> confirm{};
    };

    /// `client` must outlive it.
    WholeUse(const AssistiveClient& client, Session session);

    void waitForAllCards() const;
    /// The theme through all three, and the history.
    void changeSettings() const;
    void sort() const;
    void exportByTheOwnDialog() const;
    void exportByAPortal() const;
    /// Into a tray, out of it by its panel, and again by its menu.
    void useATray() const;
    void quitFromTheMenu() const;

  private:
    void expectStored(const QByteArray& line) const;

    SpokenProgram program_;
    Session session_;
};

}  // namespace vantor
