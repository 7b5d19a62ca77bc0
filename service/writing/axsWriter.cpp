#include "axsWriter.h"

#include "axsTree.h"

#include <utUtf8.h>
#include <utXmlCharacter.h>

#include <array>
#include <cstdint>

namespace
{
char const* const wrong_character = "holds a character that XML cannot hold there";

std::size_t const piece = 64 * 1024;

enum Class : unsigned char
{
  plain,
  markup,     // & < >
  quote,      // needs a reference in attributes only
  white,      // the same, for reading makes spaces of it
  carriage,   // needs a reference everywhere, for reading makes a line feed of it
  last_plane, // may begin U+FFFE or U+FFFF
  restricted, // may begin what XML 1.1 wants a reference for; XML 1.0 takes it as it is
  control,    // the same, but XML 1.0 does not take it
  forbidden
};

constexpr std::array<Class, 256> make_classes()
{
  std::array<Class, 256> classes{};
  for (std::size_t c = 1; c < 0x20; ++c)
    classes[c] = control;
  classes[0] = forbidden;
  classes['\t'] = classes['\n'] = white;
  classes['\r'] = carriage;
  classes['&'] = classes['<'] = classes['>'] = markup;
  classes['"'] = quote;
  classes[0xEF] = last_plane;
  classes[0x7F] = classes[0xC2] = classes[0xE2] = restricted;
  return classes;
}

constexpr std::array<Class, 256> classes = make_classes();

Class class_of(char c)
{
  return classes[static_cast<unsigned char>(c)];
}

// Whether U+FFFE or U+FFFF stands there, which are no characters (XML 1.0, 2.2, [2] Char).
bool is_no_character(std::string_view text, std::size_t at)
{
  return text.compare(at, 3, "\xEF\xBF\xBE") == 0 || text.compare(at, 3, "\xEF\xBF\xBF") == 0;
}

// The number of the character at `at`.
std::uint32_t character_number(std::string_view text, std::size_t at)
{
  return utUtf8::decode(text.data() + at, text.data() + text.size()).code;
}

std::string_view reference(char c)
{
  switch (c)
  {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '"':
    return "&quot;";
  case '\t':
    return "&#9;";
  case '\n':
    return "&#10;";
  default:
    return "&#13;";
  }
}
}

axsWriter::axsWriter(axsNode const& top, std::string& buffer, std::FILE* target)
  : xml(buffer),
    file(target),
    is_xml_1_1(top.is_document() && top.tree().is_xml_1_1())
{
}

bool axsWriter::write(axsNode const& node, std::string& xml)
{
  return axsWriter(node, xml, nullptr).write_tree(node);
}

bool axsWriter::write(axsNode const& node, std::string& xml, axsSaveFault& fault)
{
  axsWriter writer(node, xml, nullptr);
  bool const is_written = writer.write_tree(node);
  fault = writer.fault;
  return is_written;
}

bool axsWriter::write(axsNode const& node, std::FILE* file)
{
  std::string buffer;
  buffer.reserve(2 * piece);
  axsWriter writer(node, buffer, file);
  return writer.write_tree(node) && writer.flush(0);
}

bool axsWriter::write_tree(axsNode const& top)
{
  for (axsNode const* node = &top;;)
  {
    if (!open(*node))
      return false;
    if (axsNode const* const child = node->first_child())
    {
      node = child;
      continue;
    }
    for (bool complete = true; complete;)
    {
      if (node == &top)
        return true;
      if (node->parent()->is_document())
        xml += '\n';
      if (!flush(piece))
        return false;
      complete = node->next_sibling() == nullptr;
      node = complete ? node->parent() : node->next_sibling();
      if (complete)
        close(*node);
    }
  }
}

// The node up to its children.
bool axsWriter::open(axsNode const& node)
{
  switch (node.kind())
  {
  case axsKind::document:
    write_declaration(static_cast<axsTree const&>(node));
    return static_cast<axsTree const&>(node).root_element() != nullptr || fault.note(node, "has no root element");
  case axsKind::element:
  {
    xml += '<';
    xml += node.name()->utf8();
    if (!write_attributes(static_cast<axsElement const&>(node)))
      return false;
    xml += node.first_child() == nullptr ? "/>" : ">";
    return true;
  }
  case axsKind::attribute:
    xml += node.name()->utf8();
    xml += "=\"";
    if (!write_escaped(node.value(), true))
      return fault.note(node, wrong_character);
    xml += '"';
    return true;
  case axsKind::text:
    return write_escaped(node.value(), false) || fault.note(node, wrong_character);
  case axsKind::cdata_section:
    return write_cdata(node);
  case axsKind::comment:
    return write_comment(node);
  case axsKind::processing_instruction:
    return write_instruction(static_cast<axsLeaf const&>(node));
  case axsKind::doctype:
    xml += static_cast<axsLeaf const&>(node).text();
    return true;
  }
  return false;
}

void axsWriter::write_declaration(axsTree const& document)
{
  xml += is_xml_1_1 ? "<?xml version=\"1.1\" encoding=\"UTF-8\"" : "<?xml version=\"1.0\" encoding=\"UTF-8\"";
  if (!document.standalone().empty())
    xml.append(" standalone=\"").append(document.standalone()) += '"';
  xml += "?>\n";
}

void axsWriter::close(axsNode const& node)
{
  if (!node.is_element())
    return;
  xml += "</";
  xml += node.name()->utf8();
  xml += '>';
}

bool axsWriter::write_attributes(axsElement const& element)
{
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    xml += ' ';
    if (!open(*at))
      return false;
  }
  return true;
}

// A section holds no references: what needs one is written as a text.
bool axsWriter::write_cdata(axsNode const& section)
{
  std::string_view const text = section.value();
  bool is_whole = text.find("]]>") == std::string_view::npos && text.find('\r') == std::string_view::npos;
  for (std::size_t at = 0; is_whole && is_xml_1_1 && at < text.size(); ++at)
    is_whole = needs_reference(text, at) == 0;
  if (!is_whole)
    return write_escaped(text, false) || fault.note(section, wrong_character);
  xml += "<![CDATA[";
  if (!write_raw(section, text))
    return false;
  xml += "]]>";
  return true;
}

bool axsWriter::write_comment(axsNode const& comment)
{
  std::string_view const text = comment.value();
  if (text.find("--") != std::string_view::npos || (!text.empty() && text.back() == '-'))
    return fault.note(comment, "has two hyphens in a row, or one at its end");
  xml += "<!--";
  if (!write_raw(comment, text))
    return false;
  xml += "-->";
  return true;
}

bool axsWriter::write_instruction(axsLeaf const& instruction)
{
  std::string_view const text = instruction.text();
  if (text.find("?>") != std::string_view::npos)
    return fault.note(instruction, "holds \"?>\", which would end it");
  std::string_view const data = instruction.value();
  if (!data.empty() && utXmlCharacter::is_space(data.front()))
    return fault.note(instruction, "begins its data with white space, which a reader takes out");
  xml += "<?";
  if (!write_raw(instruction, text))
    return false;
  xml += "?>";
  return true;
}

// What can have no references: where a reader would make a line feed of a carriage return, it does not go either.
bool axsWriter::write_raw(axsNode const& node, std::string_view text)
{
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    Class const found = class_of(text[at]);
    if (found >= control || found == carriage || (found == restricted && needs_reference(text, at) != 0) ||
        (found == last_plane && is_no_character(text, at)))
      return fault.note(node, wrong_character);
  }
  xml += text;
  return true;
}

bool axsWriter::write_escaped(std::string_view text, bool in_attribute)
{
  std::size_t written = 0;
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    Class const found = class_of(text[at]);
    if (found == plain || (!in_attribute && (found == quote || found == white)))
      continue;
    if (found < last_plane)
    {
      xml.append(text.substr(written, at - written));
      xml += reference(text[at]);
      written = at + 1;
      continue;
    }
    if (std::size_t const length = needs_reference(text, at))
    {
      xml.append(text.substr(written, at - written));
      xml += "&#" + std::to_string(character_number(text, at)) + ";";
      written = at + length;
      at = written - 1;
    }
    else if (found >= control || (found == last_plane && is_no_character(text, at)))
      return false;
  }
  xml.append(text.substr(written));
  return true;
}

// The length of the character at `at` if it is one that XML 1.1 wants a reference for, in what is XML 1.1: controls, and
// what it makes line feeds of. 0 otherwise.
std::size_t axsWriter::needs_reference(std::string_view text, std::size_t at) const
{
  if (!is_xml_1_1)
    return 0;
  switch (class_of(text[at]))
  {
  case control:
    return 1;
  case restricted:
    break;
  default:
    return 0;
  }
  auto const c = static_cast<unsigned char>(text[at]);
  if (c == 0x7F)
    return 1;
  if (c == 0xC2)
    return at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0 ? 2 : 0;
  return text.compare(at, 3, "\xE2\x80\xA8") == 0 ? 3 : 0;
}

// Hands what was written to the file, if there is more than `limit` of it.
bool axsWriter::flush(std::size_t limit)
{
  if (file == nullptr || xml.size() <= limit)
    return true;
  bool const taken = std::fwrite(xml.data(), 1, xml.size(), file) == xml.size();
  xml.clear();
  return taken;
}
