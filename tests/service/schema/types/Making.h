#pragma once

#include <axsBuiltInTypes.h>
#include <axsSimpleTypes.h>

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Notes what is wrong with types, as "rule: text".
class NotedDiagnostics : public axsTypeDiagnostics
{
public:
  void report(std::uint64_t place, char const* rule, std::string text) override
  {
    places.push_back(place);
    rules.emplace_back(rule);
    texts.push_back(std::move(text));
  }

  std::vector<std::uint64_t> places;
  std::vector<std::string> rules;
  std::vector<std::string> texts;
};

/// A context that knows what it is told.
class ToldContext : public axsValueContext
{
public:
  bool find_namespace(std::string_view prefix, std::string_view& uri) const override
  {
    auto const found = namespaces.find(std::string(prefix));
    uri = found == namespaces.end() ? std::string_view() : std::string_view(found->second);
    return found != namespaces.end() || prefix.empty();
  }
  bool is_unparsed_entity(std::string_view name) const override { return name == entity; }
  bool is_notation(std::string_view, std::string_view local_name) const override { return local_name == notation; }

  std::map<std::string, std::string> namespaces;
  std::string entity;
  std::string notation;
};

inline axsFacet facet(axsFacetKind kind, std::string_view value, bool fixed = false)
{
  axsFacet made;
  made.kind = kind;
  made.value = value;
  made.fixed = fixed;
  return made;
}

inline axsSimpleType const& built_in(std::string_view name)
{
  axsSimpleType const* const found = axsBuiltInTypes::find(name);
  EXPECT_NE(found, nullptr) << name;
  return found == nullptr ? axsBuiltInTypes::any_simple_type() : *found;
}

/// Makes types of which nothing must be wrong, but where that is asked for.
class Making
{
public:
  axsSimpleType const& restrict(axsSimpleType const& base, std::vector<axsFacet> const& facets, char const* name = "")
  {
    NotedDiagnostics noted;
    axsTypeHead head;
    head.name = name;
    axsSimpleType const& type = types.restrict(head, base, facets, noted);
    for (std::size_t i = 0; i < noted.rules.size(); ++i)
      ADD_FAILURE() << noted.rules[i] << ": " << noted.texts[i];
    return type;
  }

  axsSimpleType const& restrict(char const* base, std::vector<axsFacet> const& facets, char const* name = "")
  {
    return restrict(built_in(base), facets, name);
  }

  axsSimpleType const& list(axsSimpleType const& item, char const* name = "")
  {
    NotedDiagnostics noted;
    axsTypeHead head;
    head.name = name;
    axsSimpleType const& type = types.list(head, item, noted);
    EXPECT_TRUE(noted.rules.empty());
    return type;
  }

  axsSimpleType const& union_of(std::vector<axsSimpleType const*> const& members, char const* name = "")
  {
    NotedDiagnostics noted;
    axsTypeHead head;
    head.name = name;
    axsSimpleType const& type = types.union_of(head, members, noted);
    EXPECT_TRUE(noted.rules.empty());
    return type;
  }

  /// The rules against which a restriction is.
  std::vector<std::string> faults(axsSimpleType const& base, std::vector<axsFacet> const& facets)
  {
    NotedDiagnostics noted;
    types.restrict({}, base, facets, noted);
    return noted.rules;
  }

  /// The only one, or what there is instead.
  std::string fault(axsSimpleType const& base, std::vector<axsFacet> const& facets)
  {
    std::string all;
    for (std::string const& rule : faults(base, facets))
      all += (all.empty() ? "" : " ") + rule;
    return all;
  }

  axsSimpleTypes types;
};

inline bool is_valid(axsSimpleType const& type, std::string_view text)
{
  ToldContext const context;
  return type.check(text, context, nullptr);
}

inline std::string bytes_of(axsSimpleType const& type, std::string_view text)
{
  ToldContext const context;
  axsValue value;
  EXPECT_TRUE(type.check(text, context, &value)) << text;
  return std::string(value.bytes());
}

inline std::string fault_of(axsSimpleType const& type, std::string_view text)
{
  ToldContext const context;
  EXPECT_FALSE(type.check(text, context, nullptr)) << text;
  return type.fault(text, context);
}
