#include "platform/macos/frameworks/fake_objects.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantor {

namespace {

constexpr std::array kindNames{"text",       "number",       "boolean", "data",    "array",
                               "dictionary", "null",         "error",   "url",     "enumerator",
                               "power info", "power source", "client",  "service", "event",
                               "instance",   "pool"};
static_assert(kindNames.size() == static_cast<std::size_t>(FakeObject::Kind::count));

std::string nameOf(FakeObject::Kind kind) {
    return kindNames[static_cast<std::size_t>(kind)];
}

}  // namespace

std::string asciiOf(FakeObject::Ref text) {
    std::string ascii;
    for (const char16_t unit : text->units)
        ascii += static_cast<char>(unit);
    return ascii;
}

FakeObject& FakeObjects::add(Kind kind) {
    auto object = std::make_unique<FakeObject>();
    object->kind = kind;
    FakeObject& added = *object;
    objects_.emplace(&added, std::move(object));
    return added;
}

FakeObject& FakeObjects::addLasting(Kind kind) {
    FakeObject& object = add(kind);
    object.isLasting = true;
    return object;
}

FakeObject& FakeObjects::create(Kind kind) {
    FakeObject& object = add(kind);
    object.owned = 1;
    ++created_;
    return object;
}

FakeObjects::Ref FakeObjects::text(std::string_view ascii) {
    return unitsText(std::u16string(ascii.begin(), ascii.end()));
}

FakeObjects::Ref FakeObjects::unitsText(std::u16string units) {
    FakeObject& object = addLasting(Kind::text);
    object.units = std::move(units);
    return &object;
}

FakeObjects::Ref FakeObjects::integer(std::int64_t number) {
    FakeObject& object = addLasting(Kind::number);
    object.number = number;
    return &object;
}

FakeObjects::Ref FakeObjects::unsignedInteger(std::uint64_t number) {
    FakeObject& object = addLasting(Kind::number);
    object.number = number;
    return &object;
}

FakeObjects::Ref FakeObjects::floating(double number) {
    FakeObject& object = addLasting(Kind::number);
    object.number = number;
    return &object;
}

FakeObjects::Ref FakeObjects::boolean(bool truth) {
    FakeObject& object = addLasting(Kind::boolean);
    object.number = std::int64_t{truth};
    return &object;
}

FakeObjects::Ref FakeObjects::data(std::string bytes) {
    FakeObject& object = addLasting(Kind::data);
    object.bytes = std::move(bytes);
    return &object;
}

FakeObjects::Ref FakeObjects::array(std::vector<Ref> entries) {
    FakeObject& object = addLasting(Kind::array);
    for (const Ref entry : entries)
        object.entries.emplace_back(entry, nullptr);
    return &object;
}

FakeObjects::Ref FakeObjects::dictionary(std::vector<std::pair<Ref, Ref>> entries) {
    FakeObject& object = addLasting(Kind::dictionary);
    object.entries = std::move(entries);
    return &object;
}

FakeObjects::Ref FakeObjects::instance(std::map<std::string, FakeObject::Answer> methods) {
    FakeObject& object = addLasting(Kind::instance);
    object.methods = std::move(methods);
    return &object;
}

FakeObjects::Ref FakeObjects::url(std::string path) {
    FakeObject& object = addLasting(Kind::url);
    object.bytes = std::move(path);
    return &object;
}

FakeObjects::Ref FakeObjects::nothing(Kind kind) {
    return &addLasting(kind);
}

FakeObjects::Ref FakeObjects::copy(Ref original, Ref holder) {
    if (!original) return nullptr;
    FakeObject& object = add(original->kind);
    object.units = original->units;
    object.number = original->number;
    object.bytes = original->bytes;
    object.methods = original->methods;
    for (const auto& [first, second] : original->entries)
        object.entries.emplace_back(copy(first, &object), copy(second, &object));
    if (holder) object.holders.push_back(holder);
    return &object;
}

FakeObjects::Ref FakeObjects::copyOut(Ref original) {
    const Ref object = copy(original, nullptr);
    if (!object) return nullptr;
    object->owned = 1;
    ++created_;
    return object;
}

FakeObjects::Ref FakeObjects::copyInto(Ref holder, Ref original) {
    return copy(original, holder);
}

FakeObjects::Ref FakeObjects::createInto(Ref holder, Kind kind, std::size_t number) {
    FakeObject& object = add(kind);
    object.holders.push_back(holder);
    object.next = number;
    return &object;
}

void FakeObjects::hold(Ref holder, Ref held) {
    if (held) objects_.at(held)->holders.push_back(holder);
}

bool FakeObjects::isThere(Ref object) const {
    if (!objects_.contains(object)) return false;
    return object->isLasting || object->owned > 0 ||
           std::any_of(object->holders.begin(), object->holders.end(),
                       [&](Ref holder) { return isThere(holder); });
}

FakeObjects::Ref FakeObjects::check(const void* address, const char* function) {
    const auto found = objects_.find(address);
    if (found == objects_.end() || !isThere(found->second.get())) {
        const std::string what = found == objects_.end()
                                     ? (address ? "what is no object" : "null")
                                     : "a " + nameOf(found->second->kind) + " that is gone";
        complain(std::string(function) + " of " + what);
        return nullptr;
    }
    return found->second.get();
}

FakeObjects::Ref FakeObjects::check(const void* address, Kind kind, const char* function) {
    const Ref object = check(address, function);
    if (!object || object->kind == kind) return object;
    complain(std::string(function) + " of a " + nameOf(object->kind) + " as a " + nameOf(kind));
    return nullptr;
}

void FakeObjects::retain(const void* address) {
    if (const Ref object = check(address, "retain")) {
        if (object->owned++ == 0) ++created_;
    }
}

void FakeObjects::release(const void* address) {
    const Ref object = check(address, "release");
    if (!object) return;
    if (object->owned == 0) {
        complain("release of a " + nameOf(object->kind) + " that is borrowed");
    } else {
        --object->owned;
    }
}

std::vector<std::string> FakeObjects::leaks() const {
    std::vector<std::string> leaks;
    for (const auto& [address, object] : objects_) {
        if (object->owned > 0) leaks.push_back(nameOf(object->kind));
    }
    return leaks;
}

void FakeObjects::sweep() {
    std::vector<const void*> gone;
    for (const auto& [address, object] : objects_) {
        if (!isThere(object.get())) gone.push_back(address);
    }
    for (const void* const address : gone)
        objects_.erase(address);
}

}  // namespace vantor
