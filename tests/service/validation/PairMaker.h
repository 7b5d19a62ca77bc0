#pragma once

#include "ContentOracle.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

/// Draws schemas, and documents that are mostly nearly valid by them: simple types with facets, lists and unions, content
/// models, derived types, substitution groups, wildcards, attributes with defaults, keys. Some schemas are wrong. The same
/// seed draws the same on every system.
class PairMaker
{
public:
  explicit PairMaker(std::uint32_t seed) noexcept : state(seed * 2654435761u + 1) {}

  /// A new schema, of the elements of which `r` is the root of documents.
  std::string schema();

  /// A document for the schema made last.
  std::string document();

  /// Whether a content model of that schema is ambiguous (Part 1, 3.8.6 cos-nonambig).
  bool is_ambiguous() const;

  /// Whether, in such a document, the children of each element are what its content model takes. Of the elements that it
  /// does not take, nothing is said.
  bool has_right_contents(std::string const& document) const;

private:
  struct SimpleType
  {
    std::string name; // as references have it
    std::string primitive;
  };

  using Particle = DrawnParticle;

  struct Attribute
  {
    std::string name;
    std::size_t type = 0;
    bool is_required = false;
  };

  struct ComplexType
  {
    bool is_mixed = false;
    bool is_simple = false; // of content
    std::size_t base = none;
    std::size_t text_type = 0;
    Particle content;
    std::vector<Attribute> attributes;
    // The number of the type of each element name, complex ones after the simple ones.
    std::vector<std::size_t> types_of_names;
    unsigned names_used = 0;
  };

  static constexpr unsigned many = DrawnParticle::many;
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  unsigned pick(unsigned below) noexcept;
  bool chance(unsigned percent) noexcept { return pick(100) < percent; }
  std::string one_of(std::initializer_list<char const*> choices);

  std::string simple_type(std::size_t number);
  std::string facets(std::string const& primitive);
  std::string complex_type(std::size_t number);
  std::string derived_type(std::size_t number, std::string const& open);
  Particle particle(int depth, ComplexType& type);
  std::string element_name(ComplexType& type);
  ContentOracle content_of(ComplexType const& type) const;
  std::string written(Particle const& particle, ComplexType const& type);
  std::string attributes(ComplexType& type, std::initializer_list<char const*> of_names);
  std::string constraints();

  void add_content(ComplexType const& type, std::string& text, int depth);
  void add(Particle const& particle, ComplexType const& type, std::string& text, int depth);
  std::string element(std::string const& name, std::size_t type, int depth, std::string const& extra = {});
  std::string attribute_values(ComplexType const& type);
  std::string value(std::string const& primitive);
  void damage(std::string& document);

  std::uint32_t state;
  bool has_namespace = false;
  bool is_qualified = false;
  std::vector<SimpleType> simple_types;
  std::vector<ComplexType> complex_types;
};
