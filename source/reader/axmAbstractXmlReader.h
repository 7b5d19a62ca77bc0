#pragma once

#include "axmExport.h"

#include <utString.h>

#include <iosfwd>

/// Walks an XML document from element to element by name, down and up, and hands out attributes and text on the way.
///
/// Interface. A reader comes from a factory (axmIXmlPathFactory, axmIXmlFileFactory) and has read nothing then: read_file()
/// comes first, once. Nothing is thrown for what is wrong with a document: the reader keeps a list of errors and, from the
/// first one on, answers every question with its neutral value; ask has_error_occurred() when the walk is done. Running
/// out of memory is std::bad_alloc. Texts are bytes as they stand in the document. One thread at a time uses a reader.
/// The order of the virtual operations is a promise to readers built separately.
class AXM_API axmAbstractXmlReader
{
public:
  /// Reads the document and its XML declaration. True when it can be walked; false, perhaps without any error in the
  /// list, when not.
  virtual bool read_file() = 0;

  /// The name of the document's encoding; "Unknown" where a reader does not tell.
  virtual utString encoding();

  /// Leaves the current element: its parent becomes the current one, and the next down_to() goes on after the element
  /// just left.
  virtual void up() = 0;

  /// Makes the next child of the current element that bears `name` the current one; false, with the current element as
  /// before, if there is none.
  virtual bool down_to(utString const& name) = 0;

  /// The value of the attribute `name` of the current element, `default_value` if it has none.
  virtual utString attribute(utString const& name, utString const& default_value) = 0;

  /// The text in the current element.
  virtual utString text_node() = 0;

  /// Whether an error is in the list.
  virtual bool has_error_occurred() const = 0;

  /// Writes the errors to `out`, in the order in which they occurred; nothing where a reader keeps none.
  virtual void dump_error(std::ostream& out) const;

  virtual ~axmAbstractXmlReader();

protected:
  axmAbstractXmlReader();
  axmAbstractXmlReader(axmAbstractXmlReader const&) = delete;
  axmAbstractXmlReader& operator=(axmAbstractXmlReader const&) = delete;

  /// Whether `name` is "UTF-8", "utf-8", "UTF8" or "utf8".
  virtual bool matches_utf8(utString const& name);

  /// Whether `name` is "UTF-16", "utf-16", "UTF16" or "utf16".
  virtual bool matches_utf16(utString const& name);

  /// Whether `text` has nothing but ASCII in it, and no backslash and no brace.
  virtual bool is_safe_ascii(utString const& text);
};
