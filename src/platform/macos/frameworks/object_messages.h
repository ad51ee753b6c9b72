#pragma once

#include <cstdint>
#include <optional>

#include "platform/macos/frameworks/objective_c_table.h"

namespace vantor {

/// Sends messages to Objective-C objects that have a method for them; absent, or null, where the
/// object is null or has none, or a function of the runtime is missing. Any thread, each run of
/// messages within an AutoreleasePool.
class ObjectMessages {
  public:
    using Object = ObjectiveCTable::Object;

    /// The table has to outlive this.
    explicit ObjectMessages(const ObjectiveCTable& table) : table_(table) {}

    /// Whether anything can be asked at all, and what is autoreleased meanwhile be let go of.
    bool isUsable() const {
        return table_.registerName && table_.sendTruthOfSelector && table_.autoreleasePoolPush &&
               table_.autoreleasePoolPop;
    }

    Object classNamed(const char* name) const {
        return table_.getClass ? table_.getClass(name) : nullptr;
    }
    /// Borrowed from the object, or autoreleased.
    Object object(Object receiver, const char* method) const {
        return ask(table_.sendObject, receiver, method).value_or(nullptr);
    }
    std::optional<bool> truth(Object receiver, const char* method) const {
        const auto answer = ask(table_.sendTruth, receiver, method);
        return answer ? std::optional(*answer != 0) : std::nullopt;
    }
    std::optional<std::int64_t> integer(Object receiver, const char* method) const {
        return ask(table_.sendInteger, receiver, method);
    }
    std::optional<std::uint64_t> unsignedInteger(Object receiver, const char* method) const {
        return ask(table_.sendUnsigned, receiver, method);
    }
    std::optional<double> floating(Object receiver, const char* method) const {
        return ask(table_.sendDouble, receiver, method);
    }
    std::optional<ObjectiveCTable::Version> version(Object receiver, const char* method) const {
        return ask(table_.sendVersion, receiver, method);
    }

  private:
    template <class Answer>
    std::optional<Answer> ask(Answer (*send)(Object, ObjectiveCTable::Selector), Object receiver,
                              const char* method) const {
        if (!send || !receiver || !isUsable()) return std::nullopt;
        const auto selector = table_.registerName(method);
        const auto question = table_.registerName("respondsToSelector:");
        if (!selector || !question) return std::nullopt;
        if (table_.sendTruthOfSelector(receiver, question, selector) == 0) return std::nullopt;
        return send(receiver, selector);
    }

    const ObjectiveCTable& table_;
};

}  // namespace vantor
