#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <string>

#include "model/filled_records.h"
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

/// Compares with the agreed document of that name, or writes it anew.
void expectAsAgreed(const std::string& name, const std::string& actual) {
    const std::filesystem::path tests = VANTOR_TESTS_DIR;
    const auto agreedFile = tests / "documents" / "agreed" / (name + ".json");
    if (std::getenv("VANTOR_UPDATE_GOLDENS")) return writeFile(agreedFile, actual);
    const std::string agreed = std::filesystem::exists(agreedFile) ? contentOf(agreedFile) : "";
    EXPECT_TRUE(agreed == actual) << agreedFile.string() << ": - is agreed, + is exported now\n"
                                  << lineDifference(agreed, actual);
}

TEST_P(MachineSnapshot, IsAsAgreed) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "exported.json";
    const SystemSnapshot snapshot = exportSubject(makeDocumentSubject(GetParam()), file);
    EXPECT_EQ(contentOf(file), std::get<std::string>(encodedSnapshot(snapshot)));
    expectAsAgreed(GetParam(), std::get<std::string>(encodedSnapshot(withoutTraces(snapshot))));
}

/// What tests of the records' writers compare with.
TEST(FilledSnapshot, IsAsAgreed) {
    expectAsAgreed("filled", std::get<std::string>(encodedSnapshot(filled::snapshot())));
}

}  // namespace
}  // namespace vantor::machine_snapshots_test
