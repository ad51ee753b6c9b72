#pragma once

/// The fields of every record with their written names: one table per record, right behind it.
/// Equality is not made from it: the language's own cannot forget a member.
namespace vantor {

template <class Record, class Value>
struct Field {
    const char* name;
    Value Record::*member;
};
template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

/// A tuple of `Field`s in declaration order.
template <class Record>
inline constexpr auto fieldsOf = nullptr;

}  // namespace vantor
