#pragma once

#include "axmAbstractXmlReader.h"
#include "axmUtf8.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace axm
{
class entered_child;
class walked_children;

/// The element in which a streaming reader stands, with ranges of its children and values of the standard library:
///
///     auto const made = factory.create_xml_reader_path(utPtrReleaseToCaller, path);
///     if (auto const catalog = axm::read_root(*made, "catalog"))
///       for (auto& book : catalog.children("book"))
///         std::cout << book.attribute("id", "?") << ": " << book.child_text("title").value_or("?") << '\n';
///
/// There is one reader: it stands in the element that the innermost loop has, and in its parent again once that is left, by
/// `break`, `return` or an exception, too. All that it promises and all its rules hold: a search goes on after the child that
/// was left last, and begins with the first child again after one that found nothing, as at the end of a loop.
/// Holds no reader and nothing of it but its address; is copied freely, each copy being the same reader.
class walk
{
public:
  /// Of a reader that stands in an element, or has read a document and stands before its root. It must live longer.
  explicit walk(axmAbstractXmlReader& reader) noexcept : walked(&reader) {}

  /// The children of that name, one after the other, each entered while the loop has it. The root of a document is for
  /// child() and read_root(): there are readers that find it again and again.
  walked_children children(std::string_view name) const;

  /// Enters the next child of that name; what is returned says whether there is one and leaves it at its end.
  entered_child child(std::string_view name) const;

  /// The text of the next child of that name or, if none follows, of the first; none if there is no such child. So
  /// children of different names may be asked for in any order.
  std::optional<std::string> child_text(std::string_view name) const;

  /// The value of an attribute of the current element; none if it has no such attribute.
  std::optional<std::string> attribute(std::string_view name) const
  {
    utString const value = walked->attribute(narrow(name), utString());
    return value.has_storage() ? std::optional<std::string>(value.view()) : std::nullopt;
  }

  std::string attribute(std::string_view name, std::string_view default_value) const
  {
    return utf8(walked->attribute(narrow(name), narrow(default_value)));
  }

  /// The text of the current element, as axmAbstractXmlReader::text_node().
  std::string text() const { return utf8(walked->text_node()); }

  /// Whether no error has occurred, which is to be asked when the walk is done: what comes after an error is empty.
  bool good() const { return !walked->has_error_occurred(); }

  axmAbstractXmlReader& reader() const noexcept { return *walked; }

private:
  axmAbstractXmlReader* walked;
};

/// An element that is entered for as long as this lives. What is entered meanwhile must have been left before.
/// Leaving throws std::bad_alloc when memory runs out.
class entered_child : public walk
{
public:
  entered_child(axmAbstractXmlReader& reader, std::string_view name)
    : walk(reader),
      is_entered(reader.down_to(narrow(name)))
  {
  }
  /// None.
  explicit entered_child(axmAbstractXmlReader& reader) noexcept : walk(reader), is_entered(false) {}
  entered_child(entered_child const&) = delete;
  entered_child& operator=(entered_child const&) = delete;
  ~entered_child() noexcept(false) { leave(); }

  /// Whether there was one of that name.
  explicit operator bool() const noexcept { return is_entered; }

  /// Leaves it early; after that there is none.
  void leave()
  {
    if (!is_entered)
      return;
    is_entered = false;
    reader().up();
  }

private:
  bool is_entered;
};

/// The children of one name of the element in which a reader stands, for one loop.
class walked_children
{
public:
  class iterator
  {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = walk;
    using difference_type = std::ptrdiff_t;
    using pointer = walk*;
    using reference = walk&;

    iterator() = default;
    explicit iterator(walked_children& of) : children(of.enter_next() ? &of : nullptr) {}

    reference operator*() const { return children->current; }
    pointer operator->() const { return &children->current; }

    iterator& operator++()
    {
      children->leave();
      if (!children->enter_next())
        children = nullptr;
      return *this;
    }

    bool operator==(iterator const& other) const { return children == other.children; }
    bool operator!=(iterator const& other) const { return children != other.children; }

  private:
    walked_children* children = nullptr;
  };

  walked_children(axmAbstractXmlReader& reader, std::string_view wanted) : current(reader), name(narrow(wanted)) {}
  walked_children(walked_children const&) = delete;
  walked_children& operator=(walked_children const&) = delete;

  /// Leaves the child that the loop has, if it was ended before it came to the last one.
  ~walked_children() noexcept(false) { leave(); }

  iterator begin() { return iterator(*this); }
  iterator end() const { return {}; }

private:
  bool enter_next()
  {
    is_entered = current.reader().down_to(name);
    return is_entered;
  }

  void leave()
  {
    if (!is_entered)
      return;
    is_entered = false;
    current.reader().up();
  }

  walk current;
  utString name;
  bool is_entered = false;
};

inline walked_children walk::children(std::string_view name) const
{
  return {*walked, name};
}

inline entered_child walk::child(std::string_view name) const
{
  return {*walked, name};
}

inline std::optional<std::string> walk::child_text(std::string_view name) const
{
  // The search that failed has gone back to the first child.
  for (int search = 0; search < 2; ++search)
    if (entered_child const found(*walked, name); found)
      return found.text();
  return std::nullopt;
}

/// Reads the document of a new reader and enters its root element; of none where it cannot be read or its root bears another
/// name.
inline entered_child read_root(axmAbstractXmlReader& reader, std::string_view name)
{
  return reader.read_file() ? entered_child(reader, name) : entered_child(reader);
}
}
