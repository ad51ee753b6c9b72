#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/macos/frameworks/objective_c_table.h"

namespace vantor {

/// An object of the frameworks that stand in for a Mac's.
struct FakeObject {
    using Ref = const FakeObject*;  ///< null is none
    enum class Kind {
        text,
        number,
        boolean,
        data,
        array,
        dictionary,
        null,  ///< stands for every kind that nobody asks for
        error,
        url,
        enumerator,
        powerInfo,
        powerSource,
        client,  ///< of the event system, as are services and events
        service,
        event,
        instance,  ///< of an Objective-C class, or such a class
        pool,
        count
    };
    using Answer =
        std::variant<Ref, bool, std::int64_t, std::uint64_t, double, ObjectiveCTable::Version>;

    Kind kind{};
    // Each used by the kinds that have such a thing.
    std::u16string units;  ///< of a text
    std::variant<std::int64_t, std::uint64_t, double> number{std::int64_t{0}};
    std::string bytes;                         ///< of data; the path of a URL
    std::vector<std::pair<Ref, Ref>> entries;  ///< of a dictionary; the first alone: of a list
    std::map<std::string, Answer> methods;     ///< of an instance
    mutable std::size_t next = 0;  ///< of an enumerator; the number of what a script lists

    // Whether it is still there.
    bool isLasting = false;    ///< made by a test, or a constant: never gone, never owned
    mutable int owned = 0;     ///< how often the code under test has to release it
    std::vector<Ref> holders;  ///< it is there as long as one of these is
};

/// All objects that were ever handed out, and what was done wrong with them.
class FakeObjects {
  public:
    using Ref = FakeObject::Ref;
    using Kind = FakeObject::Kind;

    // Objects for scripts. They are the script's, and lasting.
    Ref text(std::string_view ascii);
    Ref unitsText(std::u16string units);
    Ref integer(std::int64_t number);
    Ref unsignedInteger(std::uint64_t number);
    Ref floating(double number);
    Ref boolean(bool truth);
    Ref data(std::string bytes);
    Ref array(std::vector<Ref> entries);
    Ref dictionary(std::vector<std::pair<Ref, Ref>> entries);
    Ref instance(std::map<std::string, FakeObject::Answer> methods);
    Ref url(std::string path);
    Ref nothing(Kind kind = Kind::null);

    /// A new object with new objects in it, to be released by whoever gets it. Null stays null.
    Ref copyOut(Ref original);
    /// A new object that is there as long as `holder` is.
    Ref copyInto(Ref holder, Ref original);
    /// A new one of that kind, to be released by whoever gets it.
    FakeObject& create(Kind kind);
    /// A new one of that kind and number that is there as long as `holder` is.
    Ref createInto(Ref holder, Kind kind, std::size_t number);
    /// Makes the held object last as long as the holder does.
    void hold(Ref holder, Ref held);

    void retain(const void* object);
    void release(const void* object);

    /// The object behind an address; null, and a complaint, when it is none, not there any more, or
    /// not of that kind.
    Ref check(const void* address, Kind kind, const char* function);
    Ref check(const void* address, const char* function);

    void complain(std::string what) { complaints_.push_back(std::move(what)); }
    const std::vector<std::string>& complaints() const { return complaints_; }
    /// What was handed out to be released and was not.
    std::vector<std::string> leaks() const;
    /// How many objects were ever handed out to be released.
    std::size_t created() const { return created_; }
    /// Forgets what is not there any more; to whoever uses it nevertheless it is no object.
    void sweep();

  private:
    FakeObject& add(Kind kind);
    FakeObject& addLasting(Kind kind);
    Ref copy(Ref original, Ref holder);
    bool isThere(Ref object) const;

    std::unordered_map<const void*, std::unique_ptr<FakeObject>> objects_;
    std::vector<std::string> complaints_;
    std::size_t created_ = 0;
};

/// The text of a text, where it is ASCII.
std::string asciiOf(FakeObject::Ref text);

}  // namespace vantor
