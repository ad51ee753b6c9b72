#include "platform/macos/frameworks/property_conversion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::property_conversion_test {
namespace {

using testing::Eq;
using testing::IsEmpty;
using testing::Optional;

class PropertyConversionTest : public FakeDarwinTest {
  protected:
    std::optional<PropertyValue> convert(Ref object) const { return conversion.value(object); }
    std::optional<std::int64_t> integerOf(Ref object) const {
        const auto value = convert(object);
        return value ? value->integer() : std::nullopt;
    }
    std::optional<double> numberOf(Ref object) const {
        const auto value = convert(object);
        return value ? value->number() : std::nullopt;
    }
    std::optional<bool> booleanOf(Ref object) const {
        const auto value = convert(object);
        return value ? value->boolean() : std::nullopt;
    }

    FakeObjects& objects = darwin.objects;
    std::shared_ptr<Frameworks> frameworks = darwin.frameworks();
    PropertyConversion conversion{frameworks->coreFoundation};
};

TEST_F(PropertyConversionTest, TellsTextsAsUTF8) {
    EXPECT_THAT(conversion.text(objects.text("")), Optional(std::string()));
    EXPECT_THAT(conversion.text(objects.text("AC Power")), Optional(std::string("AC Power")));
    EXPECT_THAT(conversion.text(objects.unitsText(u"\u00e9 \u20ac \U0001F50B")),
                Optional(std::string("\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x94\x8B")));
}

TEST_F(PropertyConversionTest, TellsTextsOfEveryLength) {
    for (const std::size_t length : {1u, 127u, 128u, 129u, 1000u, 100'000u}) {
        const std::u16string widest(length, u'\u20ac');
        std::string expected;
        for (std::size_t i = 0; i < length; ++i)
            expected += "\xE2\x82\xAC";
        EXPECT_THAT(conversion.text(objects.unitsText(widest)), Optional(expected)) << length;
    }
}

TEST_F(PropertyConversionTest, TellsTextsWithZeroBytesWhole) {
    std::u16string units = u"a b";
    units[1] = 0;
    EXPECT_THAT(conversion.text(objects.unitsText(units)), Optional(std::string("a\0b", 3)));
    std::u16string many(300, u'\0');
    EXPECT_THAT(conversion.text(objects.unitsText(many)), Optional(std::string(300, '\0')));
}

TEST_F(PropertyConversionTest, HasNoTextWhereThereIsHalfACharacter) {
    for (const std::size_t length : {0u, 500u}) {
        std::u16string units(length, u'a');
        units += char16_t{0xD800};
        std::string text = "from before";
        EXPECT_FALSE(conversion.copyText(objects.unitsText(units), text));
        EXPECT_EQ(text, "");
        EXPECT_FALSE(convert(objects.unitsText(units)));
    }
}

TEST_F(PropertyConversionTest, ReusesTheStorageOfATextThatIsShort) {
    std::string text(200, ' ');
    const char* const storage = text.data();
    EXPECT_TRUE(conversion.copyText(objects.text("short"), text));
    EXPECT_EQ(text, "short");
    EXPECT_EQ(text.data(), storage);
}

TEST_F(PropertyConversionTest, TellsWholeNumbersOfSixtyFourBits) {
    for (const std::int64_t number :
         {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max(), std::int64_t{9007199254740993}}) {
        EXPECT_THAT(integerOf(objects.integer(number)), Optional(number));
        EXPECT_THAT(conversion.integer(objects.integer(number)), Optional(number));
    }
}

TEST_F(PropertyConversionTest, TellsNumbersPastTheSignedOnesAsFloatingValues) {
    constexpr std::uint64_t bound = std::uint64_t{1} << 63;
    for (const std::uint64_t number : {bound, bound + 5, ~std::uint64_t{0}}) {
        EXPECT_THAT(numberOf(objects.unsignedInteger(number)),
                    Optional(static_cast<double>(number)));
        EXPECT_EQ(integerOf(objects.unsignedInteger(number)), std::nullopt);
        EXPECT_EQ(conversion.integer(objects.unsignedInteger(number)), std::nullopt);
    }
}

TEST_F(PropertyConversionTest, HasNoNumberThatTheFrameworkDoesNotTell) {
    frameworks->coreFoundation.numberGetValue = [](CFTypeRef, CFIndex, void*) -> CFBoolean {
        return 0;
    };
    EXPECT_FALSE(convert(objects.integer(1)));
    EXPECT_FALSE(convert(objects.floating(1.5)));
}

TEST_F(PropertyConversionTest, TellsFloatingNumbersAsTheyAre) {
    EXPECT_THAT(numberOf(objects.floating(48.25)), Optional(48.25));
    EXPECT_THAT(numberOf(objects.floating(-0.5)), Optional(-0.5));
    EXPECT_THAT(numberOf(objects.floating(std::numeric_limits<double>::infinity())),
                Optional(std::numeric_limits<double>::infinity()));
    const auto nothing = numberOf(objects.floating(std::numeric_limits<double>::quiet_NaN()));
    ASSERT_TRUE(nothing);
    EXPECT_TRUE(std::isnan(*nothing));
    // Where a whole number is asked for, a floating one is of the wrong kind, even a whole one.
    EXPECT_EQ(conversion.integer(objects.floating(3.0)), std::nullopt);
}

TEST_F(PropertyConversionTest, TellsBooleansFromNumbers) {
    EXPECT_THAT(booleanOf(objects.boolean(true)), Optional(true));
    EXPECT_THAT(booleanOf(objects.boolean(false)), Optional(false));
    EXPECT_EQ(numberOf(objects.boolean(true)), std::nullopt);
    EXPECT_EQ(booleanOf(objects.integer(1)), std::nullopt);
    EXPECT_EQ(conversion.boolean(objects.integer(1)), std::nullopt);
    EXPECT_EQ(conversion.integer(objects.boolean(true)), std::nullopt);
}

TEST_F(PropertyConversionTest, TellsData) {
    const auto value = convert(objects.data(std::string("M\0 1", 4)));
    ASSERT_TRUE(value && value->data());
    EXPECT_THAT(*value->data(),
                testing::ElementsAre(std::byte{'M'}, std::byte{0}, std::byte{' '}, std::byte{'1'}));
    const auto empty = convert(objects.data(""));
    ASSERT_TRUE(empty && empty->data());
    EXPECT_THAT(*empty->data(), IsEmpty());
}

TEST_F(PropertyConversionTest, KeepsTheOrderOfADictionary) {
    const auto value = convert(objects.dictionary({{objects.text("b"), objects.integer(1)},
                                                   {objects.text("a"), objects.text("x")},
                                                   {objects.text("b"), objects.integer(2)}}));
    ASSERT_TRUE(value && value->dictionary());
    const PropertyDictionary& dictionary = *value->dictionary();
    ASSERT_EQ(dictionary.size(), 3u);
    EXPECT_EQ(dictionary[0].key, "b");
    EXPECT_EQ(dictionary[1].key, "a");
    EXPECT_THAT(findInteger(dictionary, "b"), Optional(1));
    EXPECT_EQ(*findText(dictionary, "a"), "x");
}

TEST_F(PropertyConversionTest, LeavesOutWhatHasAKeyThatIsNoText) {
    const auto value = convert(objects.dictionary(
        {{objects.integer(1), objects.integer(10)},
         {nullptr, objects.integer(11)},
         {objects.unitsText(std::u16string(1, char16_t{0xDC00})), objects.integer(12)},
         {objects.text("kept"), objects.dictionary({{objects.data("k"), objects.integer(1)}})}}));
    ASSERT_TRUE(value && value->dictionary());
    ASSERT_EQ(value->dictionary()->size(), 1u);
    const PropertyDictionary* const nested = value->dictionary()->front().value.dictionary();
    ASSERT_TRUE(nested);
    EXPECT_THAT(*nested, IsEmpty());
}

TEST_F(PropertyConversionTest, LeavesOutValuesOfNoKnownKind) {
    const auto value = convert(objects.dictionary({{objects.text("null"), nullptr},
                                                   {objects.text("date"), objects.nothing()},
                                                   {objects.text("kept"), objects.integer(1)}}));
    ASSERT_TRUE(value && value->dictionary());
    ASSERT_EQ(value->dictionary()->size(), 1u);
    EXPECT_EQ(value->dictionary()->front().key, "kept");
    EXPECT_FALSE(convert(nullptr));
    EXPECT_FALSE(convert(objects.nothing()));
    EXPECT_TRUE(convert(objects.array({nullptr, objects.nothing()})));
}

TEST_F(PropertyConversionTest, GoesDownSixteenLevels) {
    for (const bool ofArrays : {false, true}) {
        Ref nested = objects.integer(7);
        for (int level = 0; level < 100'000; ++level) {
            nested = ofArrays ? objects.array({nested})
                              : objects.dictionary({{objects.text("in"), nested}});
        }
        const auto value = convert(nested);
        ASSERT_TRUE(value);
        const PropertyDictionary* dictionary = value->dictionary();
        int levels = 0;
        for (; dictionary && !dictionary->empty(); ++levels)
            dictionary = dictionary->front().value.dictionary();
        EXPECT_EQ(levels, ofArrays ? 0 : 15);
    }
    Ref nested = objects.integer(7);
    for (int level = 0; level < 16; ++level)
        nested = objects.dictionary({{objects.text("in"), nested}});
    const auto value = convert(nested);
    ASSERT_TRUE(value);
    const PropertyDictionary* dictionary = value->dictionary();
    for (int level = 1; level < 16; ++level)
        dictionary = dictionary->front().value.dictionary();
    EXPECT_THAT(findInteger(*dictionary, "in"), Optional(7));
}

TEST_F(PropertyConversionTest, CountsArraysAlone) {
    const Ref array = objects.array({objects.integer(4), nullptr});
    EXPECT_THAT(conversion.arrayCount(array), Optional(2u));
    EXPECT_THAT(conversion.integer(conversion.arrayEntry(array, 0)), Optional(4));
    EXPECT_EQ(conversion.arrayEntry(array, 1), nullptr);
    for (const Ref other : objectsOtherThan(FakeObject::Kind::array))
        EXPECT_EQ(conversion.arrayCount(other), std::nullopt);
}

TEST_F(PropertyConversionTest, LooksUpInDictionariesAlone) {
    const Ref key = objects.text("key");
    const Ref dictionary = objects.dictionary({{objects.text("key"), objects.integer(4)}});
    EXPECT_THAT(conversion.integer(conversion.dictionaryEntry(dictionary, key)), Optional(4));
    EXPECT_EQ(conversion.dictionaryEntry(dictionary, nullptr), nullptr);
    for (const Ref other : objectsOtherThan(FakeObject::Kind::dictionary))
        EXPECT_EQ(conversion.dictionaryEntry(other, key), nullptr);
}

TEST_F(PropertyConversionTest, AsksOfEachKindWhatItIsFirst) {
    for (const Ref other : objectsOtherThan(FakeObject::Kind::text))
        EXPECT_EQ(conversion.text(other), std::nullopt);
    for (const Ref other : objectsOtherThan(FakeObject::Kind::number))
        EXPECT_EQ(conversion.integer(other), std::nullopt);
    for (const Ref other : objectsOtherThan(FakeObject::Kind::boolean))
        EXPECT_EQ(conversion.boolean(other), std::nullopt);
}

TEST_F(PropertyConversionTest, MakesTexts) {
    const RetainedReference made = conversion.makeText("PrimaryUsage");
    EXPECT_THAT(conversion.text(made.get()), Optional(std::string("PrimaryUsage")));
}

TEST_F(PropertyConversionTest, SurvivesEachFunctionMissing) {
    const Ref everything = objects.array(objectsOtherThan(FakeObject::Kind::count));
    withEachFunctionMissing([&](const std::shared_ptr<const Frameworks>& some) {
        const PropertyConversion partial(some->coreFoundation);
        partial.value(everything);
        partial.text(objects.text("text"));
        partial.integer(objects.integer(1));
        partial.boolean(objects.boolean(true));
        partial.arrayCount(everything);
        partial.dictionaryEntry(everything, objects.text("key"));
        partial.makeText("text");
        partial.share(everything);
    });
}

TEST_F(PropertyConversionTest, LosesNoMoreThanWhatAFunctionIsNeededFor) {
    frameworks->coreFoundation.dataGetBytePtr = nullptr;
    const PropertyConversion partial(frameworks->coreFoundation);
    const auto value = partial.value(objects.dictionary(
        {{objects.text("model"), objects.data("x")}, {objects.text("n"), objects.integer(5)}}));
    ASSERT_TRUE(value && value->dictionary());
    ASSERT_EQ(value->dictionary()->size(), 1u);
    EXPECT_THAT(findInteger(*value->dictionary(), "n"), Optional(5));
}

TEST_F(PropertyConversionTest, SurvivesEachCallFailing) {
    const Ref everything = objects.array(objectsOtherThan(FakeObject::Kind::count));
    withEachCallFailing(10, [&](const std::shared_ptr<const Frameworks>& some) {
        const PropertyConversion failing(some->coreFoundation);
        failing.value(everything);
        failing.makeText("text");
        failing.share(everything);
    });
}

}  // namespace
}  // namespace vantor::property_conversion_test
