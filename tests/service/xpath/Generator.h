#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

/// Makes documents and XPath expressions over their vocabulary, the same for the same seed on every system.
///
/// The documents have namespaces, redeclared and default ones too, attributes, comments, processing instructions and
/// CDATA sections beside text; no text in them is white space alone. The expressions are right in syntax and type, of
/// every type, over all axes, functions and operators.
class Generator
{
public:
  explicit Generator(std::uint32_t seed) noexcept : state(seed * 2654435761u + 1) {}

  std::string document();

  std::string node_set(int depth);
  std::string boolean(int depth);
  std::string number(int depth);
  std::string string(int depth);

  /// An expression of any type.
  std::string expression(int depth);

  /// A number from 0 to `below` - 1.
  unsigned pick(unsigned below) noexcept;

private:
  bool chance(unsigned percent) noexcept { return pick(100) < percent; }
  std::string one_of(std::initializer_list<char const*> choices);
  std::string content(int depth);
  std::string element(int depth);
  std::string attributes(bool is_root);
  std::string path(int depth);
  std::string steps(int depth);
  std::string step(int depth);
  std::string predicates(int depth);
  std::string node_test();
  std::string any(int depth);

  std::uint32_t state;
};
