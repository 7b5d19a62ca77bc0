#pragma once

#include <string_view>

/// What surrounds a value and decides what it means.
class axsValueContext
{
public:
  virtual ~axsValueContext() = default;

  /// The namespace that `prefix` stands for, the default one where that is empty; `uri` is empty for no namespace. False
  /// if the prefix is not declared. What `uri` refers to lives at least until the context is asked again.
  virtual bool find_namespace(std::string_view prefix, std::string_view& uri) const = 0;

  /// Whether the document type declares an unparsed entity of that name (XML Schema Part 1, 3.14.4 cvc-simple-type, 2).
  virtual bool is_unparsed_entity(std::string_view name) const = 0;

  /// Whether the schema declares a notation of that name (Part 2, 3.2.19 NOTATION).
  virtual bool is_notation(std::string_view uri, std::string_view local_name) const = 0;
};
