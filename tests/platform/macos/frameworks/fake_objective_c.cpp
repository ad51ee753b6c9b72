#include <string>
#include <string_view>

#include "platform/macos/fake_darwin.h"

namespace vantor {

namespace {

using Kind = FakeObject::Kind;
using Object = ObjectiveCTable::Object;
using Ref = FakeObject::Ref;
using Selector = ObjectiveCTable::Selector;
using Truth = ObjectiveCTable::Truth;

/// Selectors are the names themselves, each at one address.
Selector selectorNamed(const char* name) {
    static std::set<std::string> names;
    return names.insert(name).first->c_str();
}

std::string_view nameOf(Selector selector) {
    return static_cast<const char*>(selector);
}

/// What the receiver answers, where it does in that way.
template <class Answer>
const Answer* answerOf(FakeDarwin& darwin, Object receiver, Selector selector) {
    const Ref object = darwin.objects.check(receiver, Kind::instance, "a message");
    if (!object) return nullptr;
    const auto method = object->methods.find(std::string(nameOf(selector)));
    if (method == object->methods.end()) {
        darwin.objects.complain("a message that the object has no method for");
        return nullptr;
    }
    const Answer* const answer = std::get_if<Answer>(&method->second);
    if (!answer) darwin.objects.complain("a message to a method of another type");
    return answer;
}

template <class Answer>
Answer send(Object receiver, Selector selector) {
    const FakeCall call;
    const Answer* const answer = answerOf<Answer>(*call, receiver, selector);
    return answer ? *answer : Answer{};
}

Object sendObject(Object receiver, Selector selector) {
    const FakeCall call;
    const Ref* answer = answerOf<Ref>(*call, receiver, selector);
    if (receiver == call->processInfoClass) answer = &call->processInfo;
    if (!answer || !*answer || call->fails()) return nullptr;
    // An only object of its class stays as it is; what else is asked for is autoreleased.
    if ((*answer)->kind == Kind::instance) return *answer;
    if (call->pools().empty()) {
        call->objects.complain("an object is autoreleased where there is no pool");
        return nullptr;
    }
    return call->objects.copyInto(call->pools().back(), *answer);
}

Truth sendTruthOfSelector(Object receiver, Selector selector, Selector argument) {
    const FakeCall call;
    const Ref object = call->objects.check(receiver, Kind::instance, "a message");
    if (nameOf(selector) != "respondsToSelector:") call->objects.complain("another question");
    if (!object || call->fails()) return 0;
    return object->methods.contains(std::string(nameOf(argument))) ? 1 : 0;
}

void popPool(void* pool) {
    const FakeCall call;
    if (call->pools().empty() || call->pools().back() != pool) {
        call->objects.complain("a pool ends that is not the innermost one");
        return;
    }
    call->pools().pop_back();
    call->objects.release(pool);
}

}  // namespace

ObjectiveCTable fakeObjectiveC() {
    ObjectiveCTable table;
    table.getClass = [](const char* name) -> Object {
        const FakeCall call;
        if (std::string_view(name) != "NSProcessInfo" || !call->hasProcessInfoClass) return nullptr;
        if (call->fails()) return nullptr;
        return call->processInfoClass;
    };
    table.registerName = [](const char* name) -> Selector {
        return FakeCall()->fails() ? nullptr : selectorNamed(name);
    };
    table.autoreleasePoolPush = []() -> void* {
        const FakeCall call;
        FakeObject& pool = call->objects.create(Kind::pool);
        call->pools().push_back(&pool);
        return &pool;
    };
    table.autoreleasePoolPop = popPool;
    table.release = [](Object object) { FakeCall()->objects.release(object); };
    table.sendObject = sendObject;
    table.sendTruth = [](Object receiver, Selector selector) -> Truth {
        return send<bool>(receiver, selector) ? 1 : 0;
    };
    table.sendTruthOfSelector = sendTruthOfSelector;
    table.sendInteger = send<std::int64_t>;
    table.sendUnsigned = send<std::uint64_t>;
    table.sendDouble = send<double>;
    table.sendVersion = send<ObjectiveCTable::Version>;
    return table;
}

MetalTable fakeMetal() {
    MetalTable table;
    table.copyAllDevices = []() -> const void* {
        const FakeCall call;
        if (call->pools().empty()) call->objects.complain("devices are asked for without a pool");
        if (call->fails()) return nullptr;
        if (call->otherDeviceList) return call->objects.copyOut(*call->otherDeviceList);
        FakeObject& list = call->objects.create(Kind::array);
        for (const Ref device : call->devices)
            list.entries.emplace_back(call->objects.copyInto(&list, device), nullptr);
        return &list;
    };
    table.createSystemDefaultDevice = []() -> const void* {
        const FakeCall call;
        if (call->pools().empty()) call->objects.complain("a device is asked for without a pool");
        ++call->defaultDevicesCreated;
        if (!call->defaultDevice || call->fails()) return nullptr;
        return call->objects.copyOut(call->devices.at(*call->defaultDevice));
    };
    return table;
}

}  // namespace vantor
