#pragma once

#include "axsAttributeSetting.h"
#include "axsEditFault.h"
#include "axsEditPlace.h"
#include "axsExport.h"
#include "axsXPathPrefixes.h"

#include <apPath.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Edits a document as it is written: an edit changes the tags, values and elements that it is about, and every other byte
/// stays: comments, white space, quotes, the order of attributes, the document type, references to entities, line ends,
/// the encoding and its byte-order mark.
///
/// What is edited is said by an XPath expression, seen from the root element, over the document with all its white space.
/// Each edit is made twice, in the text and in a tree, and both are compared before it counts: there is no edit that leaves
/// a document which is not well-formed, whose prefixes are not bound, or which says something else.
///
/// - A new attribute stands after the others of its tag, with the quotes and the white space of the last one. A value that
///   is the same already stays as it is written.
/// - What is taken out and stands alone on its lines, but for blanks, takes them with it; what is put beside such gets a line
///   of its own, with the same indentation. Where xml:space="preserve" holds, it does not.
/// - Line ends of what is put in become those of the document. A character that its encoding does not have becomes a
///   reference; in a name it is refused.
/// - What comes out of the replacement text of an entity stands nowhere in the document, and is refused. So is to take out
///   the root element, or an attribute that only the document type has.
///
/// All texts are UTF-8. Each edit reads the document three times and takes the memory of its tree; the time is linear in its
/// size. Nothing outside of it is read but what its document type names, relative to its path, where the usual options do that.
/// One object belongs to one thread at a time.
class AXS_API axsEditor
{
public:
  /// Of the document that `bytes` are, with `path` in messages.
  axsEditor(std::string bytes, apPath const& path);
  axsEditor(axsEditor const&) = delete;
  axsEditor& operator=(axsEditor const&) = delete;
  ~axsEditor();

  /// The document as it is now.
  std::string const& bytes() const noexcept { return document; }

  /// Prefixes for the expressions that follow, which count before those that the root element binds. Where a name that is
  /// put into the document has one of them, it has to be bound there to the same namespace.
  void set_prefixes(axsXPathPrefixes const& given) { prefixes = given; }

  /// Each of the following returns how many nodes were selected and edited. 0 where it is not done, with the reason in
  /// fault() and the document as it was. Throws std::bad_alloc when memory runs out.
  ///
  /// Sets attributes of elements.
  std::size_t set_attributes(std::string_view xpath, std::vector<axsAttributeSetting> const& settings);

  /// Sets the values of attributes, and the text of elements that have nothing else in them.
  std::size_t set_value(std::string_view xpath, std::string_view value);

  /// Takes out elements, attributes, texts, comments and processing instructions.
  std::size_t remove(std::string_view xpath);

  /// Gives elements and attributes another name.
  std::size_t rename(std::string_view xpath, std::string_view name);

  /// Puts a fragment, which is what may stand in an element, at each that is selected.
  std::size_t insert(std::string_view xpath, axsEditPlace where, std::string_view fragment);

  /// Moves elements, comments and processing instructions to the one place that `target` selects, in their order.
  std::size_t move(std::string_view xpath, axsEditPlace where, std::string_view target);

  /// Of the last edit; of kind none if it was made.
  axsEditFault const& fault() const noexcept { return wrong; }

private:
  template <class Edit>
  std::size_t run(Edit edit);

  std::string document;
  apPath file;
  axsXPathPrefixes prefixes;
  axsEditFault wrong;
};
