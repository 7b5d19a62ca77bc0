#pragma once

#include "axsExport.h"
#include <axmAbstractXmlReader.h>
#include <axmParseError.h>

#include <memory>
#include <vector>

class axsXmlWalk;

/// Walks an XML document as axmSimpleXmlReader does, by all of XML's rules, from files of any size.
///
/// Made by axsXmlFactory. What it adds to the interface's promises:
/// - Names are compared whole, as they are written in the document; the name of an attribute, too.
/// - References to characters and entities are resolved, defaults of attributes are there, CDATA is text. All texts are
///   UTF-8, whatever the document is encoded in.
/// - down_to() takes the next child of exactly that name. If there is none, the walk goes back to the beginning of the
///   current element's content. A file is read again from there, once something more of the content is asked for; of a
///   pipe, the last 32 MiB are kept for that, and going back further is an error.
/// - text_node() of an element without child elements is its whole text, which comments, CDATA sections and instructions
///   do not part; of one with children the text up to the first one, and after up() what follows the child just left.
///   Asked again at the same place, it answers the same.
/// - Whatever is not well-formed where the walk passes it is an error; leaving the root checks the rest of the document.
///   So are attribute() and text_node() before an element is entered.
/// - encoding() is what the document declares, or the encoding that was found out if it does not.
/// Memory: that of the open elements' attributes and the longest text. Time: linear in what is read; what
/// is asked for after a search that failed is read once more.
/// Running out of memory is std::bad_alloc. One thread at a time uses a reader.
class AXS_API axsXmlReader final : public axmAbstractXmlReader
{
public:
  axsXmlReader(axsXmlReader const&) = delete;
  axsXmlReader& operator=(axsXmlReader const&) = delete;
  ~axsXmlReader() override;

  bool read_file() override;
  utString encoding() override;
  void up() override;
  bool down_to(utString const& name) override;
  utString attribute(utString const& name, utString const& default_value) override;
  utString text_node() override;
  bool has_error_occurred() const override;

  /// One error a line: file:line:column: message.
  void dump_error(std::ostream& out) const override;

  /// The errors, with their places.
  std::vector<axmParseError> const& errors() const noexcept;

private:
  friend class axsXmlFactory;

  explicit axsXmlReader(std::unique_ptr<axsXmlWalk> walk);

  std::unique_ptr<axsXmlWalk> walk;
};
