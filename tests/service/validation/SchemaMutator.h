#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Draws changes of a schema or of a document: values of attributes, attributes and elements that are left out, elements
/// that come twice or in another order. What was well-formed stays so. The same seed draws the same on every system.
class SchemaMutator
{
public:
  SchemaMutator(std::string const& text, std::uint32_t seed);

  /// The text after a few changes more.
  std::string const& mutate();

private:
  struct Span
  {
    std::size_t begin;
    std::size_t end;
  };

  struct Attribute
  {
    std::string name;
    Span whole; // with the white space before it
    Span value;
  };

  unsigned pick(std::size_t below) noexcept;
  void look();
  void look_at_tag(std::size_t begin, std::size_t end);
  std::string other_value(Attribute const& attribute);
  bool change();

  std::string text;
  std::uint32_t state;
  std::vector<Attribute> attributes;
  std::vector<Span> elements; // but for the root, in the order of their ends
};
