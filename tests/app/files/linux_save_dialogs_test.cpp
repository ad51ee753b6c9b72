#include "app/files/linux_save_dialogs.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include <optional>
#include <string>
#include <vector>

#include "app/files/dialog_desk.h"
#include "app/files/portal_world.h"
#include "app/files/save_location.h"
#include "app/files/save_panel.h"
#include "support/event_patience.h"
#include "ui/rendering.h"

/// The portal where there is one, and the program's own panel where there is none.
namespace vantor::linux_save_dialogs_test {
namespace {

using namespace std::chrono_literals;
using Path = std::filesystem::path;
using Answers = std::vector<std::optional<Path>>;
using Manner = FakePortal::Manner;

const SaveRequest request{"Export System Snapshot", "Vantor-1.json", "application/json", true};

class LinuxSaveDialogsTest : public testing::Test {
  protected:
    void begin() {
        if (!dialogs) {
            dialogs = std::make_unique<LinuxSaveDialogs>(LinuxSaveDialogs::Surroundings{
                world.questions, world.questions, world.connector(), 20s});
        }
        isBeginning = true;
        dialog = dialogs->makeSaveDialog(request);
        dialog->begin([this](const std::optional<Path>& answer) {
            EXPECT_FALSE(isBeginning) << "never from within begin";
            answers.push_back(answer);
        });
        isBeginning = false;
    }
    static SavePanel* panel() { return DialogDesk::shown<SavePanel>(); }
    static bool panelOpens() {
        return handleEventsUntil([] { return panel() != nullptr; });
    }
    bool portalOpens(int times = 1) {
        return handleEventsUntil([this, times] { return world.portal->asked() == times; });
    }
    void saveInPanel(const QString& name) {
        panel()->findChild<QLineEdit*>(QStringLiteral("name"))->setText(name);
        panel()->findChild<QPushButton*>()->click();
        ASSERT_TRUE(hasAnswer());
    }
    void savedByPortal(const QString& file) {
        world.portal->respond(0, {QStringLiteral("file://") + file});
        ASSERT_TRUE(hasAnswer());
    }
    bool hasAnswer() {
        return handleEventsUntil([this] { return !answers.empty(); });
    }

    DialogDesk desk;
    PortalWorld world;
    std::unique_ptr<LinuxSaveDialogs> dialogs;
    std::unique_ptr<SaveDialog> dialog;
    bool isBeginning = true;
    Answers answers;
};

TEST_F(LinuxSaveDialogsTest, WithAPortalItIsThePortalsDialog) {
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    EXPECT_EQ(panel(), nullptr);
    savedByPortal(desk.path("a.json"));
    EXPECT_EQ(answers, Answers{pathOf(desk.path("a.json"))});
}

TEST_F(LinuxSaveDialogsTest, ANameThatThePortalLeftWithoutAnEndingGetsOneUnlessThatIsAnotherFile) {
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    savedByPortal(desk.path("a"));
    EXPECT_EQ(answers, Answers{pathOf(desk.path("a.json"))});
    answers.clear();
    ASSERT_TRUE(QFile(desk.path("a.json")).open(QIODevice::WriteOnly));
    begin();
    ASSERT_TRUE(portalOpens(2));
    savedByPortal(desk.path("a"));
    EXPECT_EQ(answers, Answers{pathOf(desk.path("a"))});
}

TEST_F(LinuxSaveDialogsTest, CancelledInThePortalItIsOver) {
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    world.portal->respond(1);
    ASSERT_TRUE(hasAnswer());
    EXPECT_EQ(answers, Answers{std::nullopt});
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(LinuxSaveDialogsTest, WithoutAPortalItIsTheProgramsOwn) {
    begin();
    ASSERT_TRUE(panelOpens());
    EXPECT_EQ(utf8(panel()->windowTitle()), "Export System Snapshot");
    saveInPanel(desk.path("a"));
    EXPECT_EQ(answers, Answers{pathOf(desk.path("a.json"))});
    dialog.reset();
    EXPECT_EQ(panel(), nullptr);
    EXPECT_EQ(answers.size(), 1u);
}

TEST_F(LinuxSaveDialogsTest, APortalThatVanishesIsTakenOverByTheProgramsOwn) {
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    world.portal.reset();
    ASSERT_TRUE(panelOpens());
    panel()->reject();
    ASSERT_TRUE(hasAnswer());
    EXPECT_EQ(answers, Answers{std::nullopt});
}

TEST_F(LinuxSaveDialogsTest, BothOpenWhereWasSavedLast) {
    QDir(desk.home()).mkdir(QStringLiteral("elsewhere"));
    begin();
    ASSERT_TRUE(panelOpens());
    saveInPanel(desk.path("elsewhere/a"));
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    EXPECT_EQ(world.portal->options().value(QStringLiteral("current_folder")).toByteArray(),
              QByteArray(desk.path("elsewhere").toUtf8().append('\0')));
    world.portal.reset();
    ASSERT_TRUE(panelOpens());
    const auto* const folder = panel()->findChild<QLineEdit*>(QStringLiteral("folder"));
    EXPECT_TRUE(handleEventsUntil([&] { return folder->text() == desk.path("elsewhere"); }));
}

TEST_F(LinuxSaveDialogsTest, DestroyedItIsGoneAndSaysNothing) {
    begin();
    ASSERT_TRUE(panelOpens());
    dialog.reset();
    EXPECT_EQ(panel(), nullptr);
    world.startPortal();
    begin();
    ASSERT_TRUE(portalOpens());
    dialog.reset();
    EXPECT_TRUE(handleEventsUntil([this] { return world.portal->closed() == 1; }));
    begin();
    dialog.reset();  // before there is either
    settleEvents();
    EXPECT_TRUE(answers.empty());
}

TEST_F(LinuxSaveDialogsTest, BelongsToTheFrontWindowAndIsOverWithIt) {
    auto window = std::make_unique<QWidget>();
    window->show();
    begin();
    ASSERT_TRUE(panelOpens());
    EXPECT_EQ(panel()->parentWidget(), window.get());
    window.reset();
    EXPECT_EQ(panel(), nullptr);
    EXPECT_TRUE(answers.empty()) << "not from within the window's end";
    ASSERT_TRUE(hasAnswer());
    EXPECT_EQ(answers, Answers{std::nullopt});
}

TEST_F(LinuxSaveDialogsTest, ThePortalsDialogIsOverWithTheWindowToo) {
    world.startPortal();
    auto window = std::make_unique<QWidget>();
    window->show();
    begin();
    ASSERT_TRUE(portalOpens());
    window.reset();
    ASSERT_TRUE(hasAnswer());
    EXPECT_EQ(answers, Answers{std::nullopt});
    EXPECT_TRUE(handleEventsUntil([this] { return world.portal->closed() == 1; }));
}

TEST_F(LinuxSaveDialogsTest, BegunAfterItsWindowHasGoneItIsOverAtOnce) {
    auto window = std::make_unique<QWidget>();
    window->show();
    dialogs = std::make_unique<LinuxSaveDialogs>(
        LinuxSaveDialogs::Surroundings{world.questions, world.questions, world.connector(), 20s});
    dialog = dialogs->makeSaveDialog(request);
    window.reset();
    dialog->begin([this](const std::optional<Path>& answer) { answers.push_back(answer); });
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(hasAnswer());
    EXPECT_EQ(answers, Answers{std::nullopt});
}

}  // namespace
}  // namespace vantor::linux_save_dialogs_test
