#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <string>

#include "model/snapshot_document.h"
#include "support/line_difference.h"
#include "support/temporary_folder.h"

#include "documents/document_subjects.h"

/// What is exported of each machine, letter by letter, compared with what was agreed upon.
namespace vantor::machine_snapshots_test {
namespace {

std::string nameOf(const testing::TestParamInfo<std::string>& subject) {
    std::string name = subject.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
}

class MachineSnapshot : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Of, MachineSnapshot, testing::ValuesIn(documentSubjectNames()), nameOf);

TEST_P(MachineSnapshot, IsAsAgreed) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "exported.json";
    const SystemSnapshot snapshot = exportSubject(makeDocumentSubject(GetParam()), file);
    EXPECT_EQ(contentOf(file), std::get<std::string>(encodedSnapshot(snapshot)));

    const std::string actual = std::get<std::string>(encodedSnapshot(withoutTraces(snapshot)));
    const std::filesystem::path tests = VANTOR_TESTS_DIR;
    const auto agreedFile = tests / "documents" / "agreed" / (GetParam() + ".json");
    if (std::getenv("VANTOR_UPDATE_GOLDENS")) return writeFile(agreedFile, actual);
    const std::string agreed = std::filesystem::exists(agreedFile) ? contentOf(agreedFile) : "";
    EXPECT_TRUE(agreed == actual) << agreedFile.string() << ": - is agreed, + is exported now\n"
                                  << lineDifference(agreed, actual);
}

}  // namespace
}  // namespace vantor::machine_snapshots_test
