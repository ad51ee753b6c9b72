#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "e2e/assistive_client.h"
#include "e2e/copied_row.h"
#include "e2e/desktop.h"
#include "e2e/running_program.h"

/// The program as a screen reader meets it, on the real accessibility bus.
namespace vantor::assistive_test {
namespace {

using testing::IsSupersetOf;

/// The number that a text such as "1.25 MB" says, near enough to compare such texts.
double bytesIn(const QString& text) {
    double unit = 1;
    for (const char* const name : {"KB", "MB", "GB", "TB"}) {
        unit *= 1024;
        if (text.contains(QLatin1StringView(name)))
            return text.section(u' ', 0, 0).toDouble() * unit;
    }
    return text.section(u' ', 0, 0).toDouble();
}

class ForScreenReaders : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
        const QString bus = desktop_.startSessionBus();
        ASSERT_FALSE(bus.isEmpty()) << "no session bus";
        client_.emplace(bus);
        ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
        program_.emplace(desktop_);
        ASSERT_TRUE(program_->waitForLiveData());
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
        ASSERT_TRUE(eventually([this] { return look().size() > 20; }));
    }

    const std::vector<AccessibleElement>& look() {
        elements_ = client_->walk(QStringLiteral("vantor"));
        return elements_;
    }

    /// The first one of that name (and role, where given), as seen when last looked.
    const AccessibleElement* find(const char* name, const char* role = "") const {
        const auto found = std::ranges::find_if(elements_, [&](const AccessibleElement& element) {
            return element.name == QLatin1StringView(name) &&
                   (*role == '\0' || element.role == QLatin1StringView(role));
        });
        return found == elements_.end() ? nullptr : &*found;
    }

    std::vector<std::string> rows() {
        std::vector<std::string> names;
        for (const AccessibleElement& element : look()) {
            if (element.name.contains(QLatin1StringView(", PID "))) {
                names.push_back(element.name.toStdString());
            }
        }
        return names;
    }

    Desktop desktop_{QSize(1366, 900)};
    std::optional<AssistiveClient> client_;
    std::optional<RunningProgram> program_;
    std::vector<AccessibleElement> elements_;
};

TEST_F(ForScreenReaders, AllCardsAreThereWithTheirCurrentValues) {
    ASSERT_TRUE(eventually([this] {
        look();
        const AccessibleElement* const memory = find("Memory");
        return memory && memory->description.contains(QLatin1StringView(" installed"));
    }));
    for (const char* const card :
         {"CPU", "Memory", "Network", "Graphics", "Storage", "System", "Process Explorer"}) {
        const AccessibleElement* const element = find(card);
        ASSERT_NE(element, nullptr) << card;
        EXPECT_FALSE(element->description.isEmpty()) << card;
    }
    const QString cpu = find("CPU")->description;
    EXPECT_TRUE(cpu.contains(QLatin1StringView("CPU Load ")) && cpu.contains(u'%'))
        << cpu.toStdString();
    const AccessibleElement* const gauge = find("CPU Load");
    ASSERT_NE(gauge, nullptr);
    EXPECT_TRUE(gauge->description.endsWith(u'%')) << gauge->description.toStdString();
}

TEST_F(ForScreenReaders, ControlsAreThere) {
    for (const char* const name : {"Pause", "Refresh", "Quit", "Filter processes", "Sort"})
        EXPECT_NE(find(name), nullptr) << name;
    // The picker's choices.
    EXPECT_NE(find("CPU", "radio button"), nullptr);
    EXPECT_NE(find("Memory", "radio button"), nullptr);
    EXPECT_NE(find("Processes", "list"), nullptr);
}

TEST_F(ForScreenReaders, AFilterThatIsTypedChangesTheRows) {
    ASSERT_TRUE(eventually([this] { return rows().size() > 1; })) << "there are always some";
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.run(QStringLiteral("xdotool"), {QStringLiteral("type"), QStringLiteral("--delay"),
                                             QStringLiteral("20"), QStringLiteral("OPENBOX")});
    EXPECT_TRUE(eventually([this] {
        const auto names = rows();
        return !names.empty() && std::ranges::all_of(names, [](const std::string& name) {
            return name.starts_with("openbox, PID ");
        });
    })) << testing::PrintToString(rows());
    desktop_.key(QStringLiteral("Escape"));
    EXPECT_TRUE(eventually([this] { return rows().size() > 1; }));
}

TEST_F(ForScreenReaders, TheExplorerIsOperatedByKeyboardAlone) {
    ASSERT_TRUE(eventually([this] { return rows().size() > 1; }));
    desktop_.key(QStringLiteral("ctrl+f"));
    // From the filter to the sort: the chosen order, then by arrow key the other one.
    desktop_.key(QStringLiteral("Tab"));
    desktop_.key(QStringLiteral("Right"));
    const auto heaviestFirst = [this] {
        std::vector<double> sizes;
        for (const AccessibleElement& element : look()) {
            if (element.name.contains(QLatin1StringView(", PID ")))
                sizes.push_back(bytesIn(element.name.section(QStringLiteral("memory "), 1)));
        }
        return sizes.size() > 1 && std::ranges::is_sorted(sizes, std::ranges::greater());
    };
    EXPECT_TRUE(eventually(heaviestFirst)) << testing::PrintToString(rows());
    desktop_.key(QStringLiteral("ctrl+f"));
    ASSERT_TRUE(pastesACopiedRow(desktop_, [this] {
        look();
        return find("No Matching Processes") != nullptr;
    }));
    const QString message = find("No Matching Processes")->description;
    EXPECT_TRUE(message.contains(u'%')) << message.toStdString();
    EXPECT_TRUE(message.startsWith(QStringLiteral("No process matches \u201c")));
    desktop_.key(QStringLiteral("Escape"));
    EXPECT_TRUE(eventually(heaviestFirst)) << "the order is kept";
}

}  // namespace
}  // namespace vantor::assistive_test
