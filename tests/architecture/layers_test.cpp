#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "architecture/layer_rules.h"
#include "architecture/sample_tree.h"

namespace vantor::layers_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Layers, IncludesOnlyDownwards) {
    EXPECT_THAT(findBreaches(VANTOR_SOURCE_DIR "/src"), IsEmpty());
}

struct Row {
    const char* name;
    const char* file;
    const char* line;
    const char* reason;  ///< empty where the line is fine

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class LayerRule : public testing::TestWithParam<Row> {};

constexpr auto system = "an operating system outside the platform";
constexpr auto toolkit = "the toolkit below the views";

INSTANTIATE_TEST_SUITE_P(
    Includes, LayerRule,
    testing::Values(
        Row{"ModelOfModel", "model/a.h", "#include \"model/b.h\"", ""},
        Row{"ModelOfPlatform", "model/a.h", "#include \"platform/b.h\"", "model includes platform"},
        Row{"PlatformOfModel", "platform/linux/a.h", "#include \"model/b.h\"", ""},
        Row{"PlatformOfPlatform", "platform/linux/a.cpp", "#include \"platform/b.h\"", ""},
        Row{"PlatformOfProbes", "platform/a.h", "#include \"probes/b.h\"",
            "platform includes probes"},
        Row{"ProbesOfPlatform", "probes/a.h", "#include \"platform/b.h\"", ""},
        Row{"ProbesOfSettings", "probes/a.h", "#include \"settings/b.h\"",
            "probes includes settings"},
        Row{"SettingsOfProbes", "settings/a.h", "#include \"probes/b.h\"",
            "settings includes probes"},
        Row{"SettingsOfModel", "settings/a.h", "#include \"model/b.h\"", ""},
        Row{"ProbesOfSampling", "probes/a.cpp", "#include \"sampling/b.h\"",
            "probes includes sampling"},
        Row{"SamplingOfSettings", "sampling/a.h", "#include \"settings/b.h\"", ""},
        Row{"SamplingOfViews", "sampling/a.h", "#include \"ui/b.h\"", "sampling includes ui"},
        Row{"ViewsOfSampling", "ui/charts/a.h", "#include \"sampling/b.h\"", ""},
        Row{"ViewsOfApplication", "ui/a.h", "#include \"app/b.h\"", "ui includes app"},
        Row{"ApplicationOfAll", "app/a.cpp", "#include \"ui/b.h\"", ""},
        Row{"BlanksAroundTheDirective", "model/a.h", "  #  include  \"app/b.h\"",
            "model includes app"},
        Row{"NoFolder", "model/a.h", "#include \"b.h\"", "an include outside the modules: b.h"},
        Row{"UpAndDown", "model/a.h", "#include \"../app/b.h\"",
            "an include outside the modules: ../app/b.h"},
        Row{"Comment", "model/a.h", "// #include \"app/b.h\"", ""}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Toolkit, LayerRule,
    testing::Values(Row{"InModel", "model/a.h", "#include <QString>", toolkit},
                    Row{"InPlatform", "platform/qt/a.h", "#include <QTimer>", toolkit},
                    Row{"InSampling", "sampling/a.h", "#include <QtCore/QObject>", toolkit},
                    Row{"InViews", "ui/a.h", "#include <QWidget>", ""},
                    Row{"InApplication", "app/a.h", "#include <QApplication>", ""},
                    Row{"GeneratedCodeInViews", "ui/a.cpp", "#include \"a.moc\"", ""},
                    Row{"LibraryInModel", "model/a.h", "#include <queue>", ""}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    OperatingSystem, LayerRule,
    testing::Values(Row{"Ifdef", "model/a.h", "#ifdef __linux__", system},
                    Row{"Ifndef", "settings/a.h", "#ifndef _WIN32", system},
                    Row{"IfDefined", "probes/a.h", "#if defined(__APPLE__)", system},
                    Row{"IfDefinedAmongOthers", "app/a.h", "# if X && defined __linux__", system},
                    Row{"Elif", "sampling/a.h", "#elif defined(__linux__)", system},
                    Row{"OfTheToolkit", "ui/a.h", "#ifdef Q_OS_MACOS", system},
                    Row{"InPlatform", "platform/a.h", "#ifdef __linux__", ""},
                    Row{"OtherCondition", "ui/a.h", "#ifdef NDEBUG", ""},
                    Row{"InAComment", "ui/a.h", "// as with __linux__", ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(LayerRule, IsKept) {
    const SampleTree sample;
    const auto& [name, file, line, reason] = GetParam();
    sample.write(file, std::string("#pragma once\n") + line + "\nint x;\n");
    if (*reason == '\0') {
        EXPECT_THAT(findBreaches(sample.root()), IsEmpty());
    } else {
        EXPECT_THAT(findBreaches(sample.root()), ElementsAre(Breach{file, 2, reason}));
    }
}

TEST(Layers, ShowsEveryBreachSorted) {
    const SampleTree sample;
    sample.write("probes/b.cpp", "#include \"app/a.h\"\n#include <QString>\n");
    sample.write("model/a.h", "#include \"ui/a.h\"\n");
    sample.write("model/CMakeLists.txt", "#include \"ui/a.h\"\n");
    EXPECT_THAT(findBreaches(sample.root()),
                ElementsAre(Breach{"model/a.h", 1, "model includes ui"},
                            Breach{"probes/b.cpp", 1, "probes includes app"},
                            Breach{"probes/b.cpp", 2, toolkit}));
}

TEST(Layers, HasNoFileOutsideItsModules) {
    const SampleTree sample;
    sample.write("attic/a.h", "int x;\n");
    sample.write("main.cpp", "int main() {}\n");
    EXPECT_THAT(findBreaches(sample.root()),
                ElementsAre(Breach{"attic/a.h", 0, "a file in no module"},
                            Breach{"main.cpp", 0, "a file in no module"}));
}

}  // namespace
}  // namespace vantor::layers_test
