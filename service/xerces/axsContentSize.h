#pragma once

#include "axsReadError.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// How large the contents that schemas allow become when the validator writes them out: it makes as many copies of a
/// repeated group as may follow each other, of groups in groups the product. What it takes to make an automaton of the
/// result grows with more than the square of its size.
///
/// Definitions are told apart by their local names only; where schemas have several of one name, they are taken together.
class axsContentSize
{
public:
  /// The elements that contents written out may have; of several contents, the root of the sum of the squares. More of
  /// them take the validator seconds, and then minutes.
  static constexpr double most = 10000;

  using Id = std::size_t;

  /// A content begins: of a group of that name, of a complex type of that name, or, if it is empty, of one without.
  /// `place` is what check() throws if the type is the one that is too large.
  Id add_group(std::string_view name, axsReadError const& place);
  Id add_type(std::string_view name, axsReadError const& place);

  /// It has an element, or a wildcard, that may stand there so many times.
  void add_element(Id content, double times);

  /// It has a group of that name, or begins with the content of the type of that name.
  void add_group_reference(Id content, std::string_view name, double times);
  void add_base_type(Id content, std::string_view name);

  /// A group in it repeats what is in it.
  void set_repeating(Id content) { contents[content].repeats = true; }

  /// Throws the place of the largest type, with a message, if that is too large with what was added so far.
  void check() const;

private:
  struct Part
  {
    std::string name; // of what is referred to, with what it is; empty for an element
    double times;
  };

  struct Content
  {
    axsReadError place;
    bool is_type = false;
    bool repeats = false;
    std::vector<Part> parts;
  };

  struct Size
  {
    double written_out = 0; // with all copies
    double once = 0;        // without, as elements alone are not copied where no group is
    bool repeats = false;

    double value() const { return repeats ? written_out : once; }
  };

  class Measuring;

  Id add(axsReadError const& place, bool is_type);

  std::vector<Content> contents;
  std::unordered_map<std::string, Id> by_name; // with what it is
};
