#include "platform/darwin/smc_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace vantor::smc_record_test {
namespace {

std::uint32_t wordAt(const SMCRecord& record, std::size_t offset) {
    std::uint32_t word = 0;
    std::memcpy(&word, record.bytes().data() + offset, sizeof word);
    return word;
}

/// Where bytes are not zero.
std::vector<std::size_t> written(const SMCRecord& record) {
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < SMCRecord::size; ++i) {
        if (record.bytes()[i] != std::byte{0}) offsets.push_back(i);
    }
    return offsets;
}

TEST(FourCC, PutsTheFirstByteFirst) {
    EXPECT_EQ(fourCC("TC0P"), 0x54433050U);
    EXPECT_EQ(fourCC("flt "), 0x666C7420U);
    EXPECT_EQ(fourCC("\xFF\xFE\xFD\xFC"), 0xFFFEFDFCU);
}

TEST(FourCC, TakesFourBytesOnly) {
    for (const char* text : {"", "T", "TC0", "TC0PX",
                             "T\xC3\xBC"
                             "0P"}) {
        EXPECT_EQ(fourCC(text), std::nullopt) << text;
    }
    EXPECT_EQ(fourCC("T\xC3\xBC"
                     "0"),
              0x54C3BC30U)
        << "bytes are counted, not letters";
    EXPECT_EQ(fourCC(std::string_view("\0\0\0\1", 4)), 1U);
}

TEST(SMCRecord, IsEightyZeros) {
    EXPECT_EQ(SMCRecord::size, 80U);
    EXPECT_TRUE(written(SMCRecord()).empty());
}

TEST(SMCRecord, HasEachFieldInItsPlace) {
    SMCRecord record;
    record.setKey(0x11121314);
    EXPECT_EQ(wordAt(record, 0), 0x11121314U);
    EXPECT_EQ(written(record), (std::vector<std::size_t>{0, 1, 2, 3}));
    record.clear();
    record.setDataSize(0x21222324);
    EXPECT_EQ(wordAt(record, 28), 0x21222324U);
    EXPECT_EQ(written(record), (std::vector<std::size_t>{28, 29, 30, 31}));
    record.clear();
    record.setDataType(0x31323334);
    EXPECT_EQ(wordAt(record, 32), 0x31323334U);
    EXPECT_EQ(written(record), (std::vector<std::size_t>{32, 33, 34, 35}));
    record.clear();
    record.setResult(0x84);
    EXPECT_EQ(record.bytes()[40], std::byte{0x84});
    EXPECT_EQ(written(record), (std::vector<std::size_t>{40}));
    record.clear();
    record.setCommand(SMCRecord::Command::readKeyInfo);
    EXPECT_EQ(record.bytes()[42], std::byte{9});
    record.setCommand(SMCRecord::Command::readBytes);
    EXPECT_EQ(record.bytes()[42], std::byte{5});
    EXPECT_EQ(written(record), (std::vector<std::size_t>{42}));
    record.clear();
    EXPECT_EQ(record.value().size(), 32U);
    record.value().front() = std::byte{1};
    record.value().back() = std::byte{1};
    EXPECT_EQ(written(record), (std::vector<std::size_t>{48, 79}));
}

TEST(SMCRecord, GivesWhatWasWritten) {
    SMCRecord record;
    for (std::size_t i = 0; i < SMCRecord::size; ++i)
        record.bytes()[i] = static_cast<std::byte>(i);
    EXPECT_EQ(record.key(), wordAt(record, 0));
    EXPECT_EQ(record.dataSize(), wordAt(record, 28));
    EXPECT_EQ(record.dataType(), wordAt(record, 32));
    EXPECT_EQ(record.result(), 40);
    EXPECT_EQ(record.command(), static_cast<SMCRecord::Command>(42));
    EXPECT_EQ(std::as_const(record).value().front(), std::byte{48});
}

}  // namespace
}  // namespace vantor::smc_record_test
