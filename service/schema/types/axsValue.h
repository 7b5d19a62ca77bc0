#pragma once

#include "axsPrimitive.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class axsSimpleType;

/// A value of a simple type, in the form that its value space has it: 1.0 and 1 are the same decimal, 2024-01-01T00:00Z and
/// 2024-01-01T02:00+02:00 the same dateTime (XML Schema Part 2, 2.2). Its bytes are the value: two values are equal exactly
/// if their bytes are, whatever types they come from, so that bytes are what tables of keys keep and hash.
///
/// The bytes of an atomic value begin with its primitive type. The rest of them stands in the order of the values: within
/// a primitive type, what memcmp says of the bytes is the order of the values wherever that is total. Short values, which
/// are all numbers up to 18 digits, dates and times, take no memory but the object itself.
class axsValue
{
public:
  /// What a part of the value names (XML Schema Part 1, 3.15.4 cvc-id, and 3.14.4 cvc-simple-type).
  enum class Reference : unsigned char
  {
    id,
    idref
  };

  struct Identifier
  {
    Reference kind;
    std::string name;
  };

  enum class Order : unsigned char
  {
    less,
    equal,
    greater,
    none // neither is less, and they are not equal
  };

  /// Equal exactly if the values are. Never empty of a value; empty of an object that got none. Up to the next change.
  std::string_view bytes() const noexcept { return data; }

  /// Of an atomic value. Of a list, none.
  axsPrimitive primitive() const noexcept;

  /// The characters of a value of a primitive type whose values are characters: string and anyURI.
  std::string_view text() const noexcept { return bytes().substr(1); }

  /// The atomic or list type that took the value: the type itself, or of a union the member (cvc-simple-type, active
  /// member type). Null where there is no value.
  axsSimpleType const* active_type() const noexcept { return active; }

  /// The IDs and references to IDs in it, in their order.
  std::vector<Identifier> const& identifiers() const noexcept { return names; }

  void clear();

  friend bool operator==(axsValue const& left, axsValue const& right) noexcept { return left.data == right.data; }
  friend bool operator!=(axsValue const& left, axsValue const& right) noexcept { return left.data != right.data; }

  /// The order of two values given by their bytes (Part 2, 4.2.2). Of durations, and of times of which only one has a time
  /// zone, some have none.
  static Order compare(std::string_view left, std::string_view right);

private:
  friend class axsTypeChecker;

  std::string data;
  axsSimpleType const* active = nullptr;
  std::vector<Identifier> names;
};
