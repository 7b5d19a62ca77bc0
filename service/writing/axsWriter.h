#pragma once

#include "axsNode.h"
#include "axsSaveFault.h"

#include <cstdio>
#include <string>
#include <string_view>

class axsElement;
class axsLeaf;
class axsTree;

/// Writes nodes as XML in UTF-8, into a text or straight to a file.
///
/// Characters that a parser would change are written as references. What XML cannot hold at all (control characters, a
/// comment with "--" in it, a document without a root element) and what would be read as something else (a carriage return in
/// a comment or an instruction, white space at the beginning of the data of an instruction) makes the operations fail.
/// Linear in the size of the node; does not recurse. Threads: those of the document.
///
/// A document that was read as XML 1.1 is written as XML 1.1, with references to the control characters that it may hold
/// (XML 1.1, 2.2 and 2.11). A node by itself is written as XML 1.0.
class axsWriter
{
public:
  /// Appends the node as XML to `xml`; a document with its XML declaration. False when XML cannot hold it, with a part of
  /// it in `xml`. Throws std::bad_alloc when memory runs out.
  static bool write(axsNode const& node, std::string& xml);

  /// The same, with the reason in `fault`.
  static bool write(axsNode const& node, std::string& xml, axsSaveFault& fault);

  /// Writes it to `file` in pieces. False as well when the file does not take it.
  static bool write(axsNode const& node, std::FILE* file);

private:
  axsWriter(axsNode const& top, std::string& buffer, std::FILE* target);

  bool write_tree(axsNode const& top);
  bool open(axsNode const& node);
  void write_declaration(axsTree const& document);
  void close(axsNode const& node);
  bool write_attributes(axsElement const& element);
  bool write_cdata(axsNode const& section);
  bool write_comment(axsNode const& comment);
  bool write_instruction(axsLeaf const& instruction);
  bool write_raw(axsNode const& node, std::string_view text);
  bool write_escaped(std::string_view text, bool in_attribute);
  std::size_t needs_reference(std::string_view text, std::size_t at) const;
  bool flush(std::size_t limit);

  axsSaveFault fault;
  std::string& xml;
  std::FILE* file;
  bool const is_xml_1_1;
};
