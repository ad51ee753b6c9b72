#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor {

namespace {

/// Takes a table's entries out one after the other.
template <class Table>
void withoutEach(Table Frameworks::*table,
                 const std::function<void(std::shared_ptr<const Frameworks>)>& use) {
    static_assert(std::is_trivially_copyable_v<Table> && sizeof(Table) % sizeof(void*) == 0,
                  "a table holds nothing but pointers");
    for (std::size_t i = 0; i < sizeof(Table) / sizeof(void*); ++i) {
        SCOPED_TRACE("without entry " + std::to_string(i));
        const auto frameworks = FakeDarwin::current().frameworks();
        void* const none = nullptr;
        auto* const bytes = reinterpret_cast<std::byte*>(&((*frameworks).*table));
        std::memcpy(bytes + i * sizeof none, &none, sizeof none);
        use(frameworks);
    }
}

}  // namespace

std::vector<FakeObject::Ref> FakeDarwinTest::objectsOtherThan(FakeObject::Kind kind) {
    FakeObjects& objects = darwin.objects;
    std::vector<Ref> all{nullptr,
                         objects.text("a text"),
                         objects.integer(3),
                         objects.boolean(true),
                         objects.data("data"),
                         objects.array({objects.integer(1)}),
                         objects.dictionary({{objects.text("a key"), objects.integer(2)}}),
                         objects.nothing(),
                         objects.nothing(FakeObject::Kind::url)};
    std::erase_if(all, [&](Ref object) { return object && object->kind == kind; });
    return all;
}

void FakeDarwinTest::withEachFunctionMissing(
    const std::function<void(std::shared_ptr<const Frameworks>)>& use) {
    use(FakeDarwin::current().frameworks());
    withoutEach(&Frameworks::coreFoundation, use);
    withoutEach(&Frameworks::systemConfiguration, use);
    withoutEach(&Frameworks::ioKit, use);
    withoutEach(&Frameworks::metal, use);
    withoutEach(&Frameworks::objectiveC, use);
    const auto none = std::make_shared<Frameworks>();
    none->loader = fakeLoader();
    use(none);
}

void FakeDarwinTest::withEachCallFailing(
    int atLeast, const std::function<void(std::shared_ptr<const Frameworks>)>& use) {
    int calls = atLeast;
    for (int k = 1; k <= calls; ++k) {
        SCOPED_TRACE("call " + std::to_string(k) + " fails");
        darwin.failAt = k;
        darwin.callsThatCanFail = 0;
        use(darwin.frameworks());
        ASSERT_THAT(darwin.wrongs(), testing::IsEmpty());
        calls = std::max(calls, darwin.callsThatCanFail);
    }
    darwin.failAt = 0;
    darwin.callsThatCanFail = 0;
    use(darwin.frameworks());
    EXPECT_GE(darwin.callsThatCanFail, atLeast);
}

void FakeDarwinTest::manyTimes(const std::function<void()>& read, std::size_t keptBetween) {
    for (int i = 0; i < 100; ++i) {
        for (int j = 0; j < 100; ++j)
            read();
        darwin.objects.sweep();
        ASSERT_EQ(darwin.objects.leaks().size(), keptBetween);
    }
    EXPECT_GE(darwin.objects.created(), 10'000u);
}

}  // namespace vantor
