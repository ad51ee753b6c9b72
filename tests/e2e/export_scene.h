#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

#include "e2e/assistive_client.h"
#include "e2e/desktop.h"
#include "e2e/running_program.h"

namespace vantor {

/// A program on a desktop, whose user exports snapshots by keyboard into a folder of the test's
/// own.
class ExportScene : public testing::Test {
  protected:
    // Where the Tab key arrives in turn, from a window that has just been opened.
    static constexpr int pauseStop = 2;
    static constexpr int exportStop = 4;
    static constexpr int quitStop = 5;

    static const QString dialogTitle;
    static const QString alertTitle;

    void SetUp() override;

    /// Until it shows live figures and processes. The program may be started through another one.
    void start(const QStringList& through = {});

    /// Presses the Tab key so often; the middle of the button that has the focus then.
    QPoint tabTo(int stops);

    /// From the Export button, which has the focus, to the dialog.
    void openDialog();

    /// Types the name into the dialog that is open, and confirms it.
    void confirm(const QString& file);

    /// The same for a file that is there already, which is asked about.
    void confirmReplacing(const QString& file);

    /// What the alert says besides its title, once it is on the screen; empty when there is none.
    QString alertText();

    /// Dismisses the alert and waits until the program has the keyboard again.
    void dismissAlert(const QString& key);

    /// What python3 has to complain of in that document, see check_document.py.
    QString complaintsAbout(const QString& document) const;

    static QByteArray read(const QString& path);
    static void write(const QString& path, const QByteArray& bytes);

    QString path(const char* name) const {
        return desktop_.path(QStringLiteral("out/") + QString::fromLatin1(name));
    }

    Desktop desktop_{QSize(1366, 900)};
    std::optional<AssistiveClient> client_;
    std::optional<RunningProgram> program_;
};

}  // namespace vantor
