#pragma once

#include <QFile>
#include <QRect>
#include <QRegularExpression>

#include "e2e/program_fixture.h"

namespace vantor {

/// A program that is closed into a tray, and its panel.
class ProgramInATray : public ProgramOnADesktop {
  protected:
    void write(const QByteArray& settings) {
        QFile file(desktop_.settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(settings);
    }
    void closeWindow() { desktop_.key(QStringLiteral("alt+F4")); }
    bool isHidden() { return program_->window().isEmpty(); }
    void closeIntoTheTray() {
        closeWindow();
        ASSERT_TRUE(eventually([this] { return isHidden(); }, patience));
        ASSERT_TRUE(program_->isRunning());
    }

    /// Where the panel is, a window of its width with its border; empty where it is not open.
    QRect popover() {
        const QString ids = desktop_.run(QStringLiteral("xdotool"),
                                         {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                          QStringLiteral("--class"), QStringLiteral("vantor")});
        for (const QString& id : ids.split(u'\n', Qt::SkipEmptyParts)) {
            const QString text =
                desktop_.run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id});
            const auto number = [&](const char* name) {
                const QRegularExpression line(QString::fromLatin1(name) +
                                              QStringLiteral(":\\s+(-?\\d+)"));
                return line.match(text).captured(1).toInt();
            };
            if (number("Width") != 332) continue;
            return {number("Absolute upper-left X"), number("Absolute upper-left Y"), 332,
                    number("Height")};
        }
        return {};
    }
    bool hasPopover() { return popover().isValid(); }
    /// Once it has drawn its tile it has the keyboard, too: keys before that are lost.
    bool hasDrawnPopover() {
        const QRect area = popover();
        if (!area.isValid()) return false;
        const QRect tile(area.topLeft() + QPoint(10, 10), QSize(40, 40));
        return countColor(desktop_.picture(), tile, QColor(0x7a, 0x94, 0xff)) > 0;
    }

    /// Milliseconds; on a machine that is kept busy by others, each look takes a second or two.
    static constexpr int patience = 30'000;
};

}  // namespace vantor
