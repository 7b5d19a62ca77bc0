#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Which elements of a document are records, and what of each is a column: a path of names from the root to the record,
/// and for each column a path from there.
///
/// A path is written `a/b/c`; a name in it may be `*` or `p:*`, for any, or any of a namespace. A column is written
/// `@a` (an attribute of the record), `b` (the text of a child), `b/c`, `b/@a`, or `.` (the text of the record itself).
/// Names are compared as they are written in the document, but those with a prefix that is given a namespace by that
/// and the part after the colon. Immutable once made.
class axsRecordPattern
{
public:
  using Namespaces = std::map<std::string, std::string>;

  /// A name that is looked for.
  struct Name
  {
    std::string text;       // as written or, with a namespace, the part after the colon
    std::string name_space; // where one is given
    bool has_name_space = false;
    bool is_any = false;
    std::size_t number = 0; // among all names of the pattern
  };

  /// An element of the record in which columns lie; the first is the record itself.
  struct Element
  {
    struct Attribute
    {
      Name name;
      std::size_t column;
    };

    struct Child
    {
      Name name;
      std::size_t element;
    };

    std::vector<Attribute> attributes;
    std::vector<Child> children;
    std::vector<std::size_t> text_columns;
  };

  /// Why such a pattern cannot be made, in a sentence; empty if it can.
  static std::string complaint(
    std::string_view path, std::vector<std::string> const& columns, Namespaces const& namespaces);

  /// Of what complaint() has nothing to say about. `columns` may be empty.
  axsRecordPattern(std::string_view path, std::vector<std::string> const& columns, Namespaces const& namespaces);

  std::vector<Name> const& path() const noexcept { return steps; }
  std::vector<Element> const& elements() const noexcept { return all_elements; }

  /// The texts of all names, by their numbers.
  std::vector<std::string> const& names() const noexcept { return texts; }

  std::size_t column_count() const noexcept { return columns; }

private:
  Name name_of(std::string_view text, Namespaces const& namespaces);
  void add_column(std::string_view column, std::size_t number, Namespaces const& namespaces);
  std::size_t child(std::size_t element, Name const& name);

  std::vector<Name> steps;
  std::vector<Element> all_elements;
  std::vector<std::string> texts;
  std::size_t columns = 0;
};
