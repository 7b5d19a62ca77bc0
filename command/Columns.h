#pragma once

#include <axmAbstractXmlReader.h>
#include <utString.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The columns of a table, as what has to be read of a record: an element each, with its attributes, its text and the
/// child elements in which further columns lie.
///
/// A column is written `@name` (an attribute of the record), `name` (the text of its first child of that name), `.` (the
/// text of the record itself), or with steps down in front: `a/b`, `a/@b`.
class Columns
{
public:
  /// What the reader gave; none where the record has no such value.
  using Values = std::vector<std::optional<utString>>;

  /// Why `columns` cannot be read; empty if they can.
  static std::string complaint(std::vector<std::string> const& columns);

  /// `columns` must be without complaint.
  explicit Columns(std::vector<std::string> const& columns);

  /// The values in the element in which `reader` stands, one for each column. The reader stays in that element. When it
  /// is in error afterwards, the values are not to be used.
  Values read(axmAbstractXmlReader& reader) const;

private:
  struct Element
  {
    struct Attribute
    {
      utString name;
      std::size_t column;
    };

    std::string name;
    std::vector<Attribute> attributes;
    std::optional<std::size_t> text_column;
    std::vector<std::unique_ptr<Element>> children;
  };

  static Element& child(Element& element, std::string const& name);
  static void read_element(axmAbstractXmlReader& reader, Element const& element, Values& values);

  Element record;
  std::size_t count;
};

/// The names in `path`, which stand with a slash between them; empty if one of them is.
std::vector<std::string> split_path(std::string const& path);
