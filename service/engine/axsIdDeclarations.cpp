#include "axsIdDeclarations.h"

#include "axsTree.h"

#include <utXmlCharacter.h>

namespace
{
// Reads a declaration from its front to its end.
class Reader
{
public:
  explicit Reader(std::string_view declaration) noexcept : rest(declaration) {}

  bool is_at_end() const noexcept { return rest.empty(); }

  bool take(std::string_view wanted) noexcept
  {
    if (rest.substr(0, wanted.size()) != wanted)
      return false;
    rest.remove_prefix(wanted.size());
    return true;
  }

  void skip_after(std::string_view wanted) noexcept
  {
    std::size_t const found = rest.find(wanted);
    rest.remove_prefix(found == std::string_view::npos ? rest.size() : found + wanted.size());
  }

  // A word, a group in parentheses or a literal in quotes, each without the white space before it.
  std::string_view take_word() noexcept
  {
    while (!rest.empty() && utXmlCharacter::is_space(rest.front()))
      rest.remove_prefix(1);
    if (rest.empty())
      return {};
    char const first = rest.front();
    std::size_t end = first == '(' ? rest.find(')') : rest.find_first_of(" \t\r\n(\"'");
    if (first == '"' || first == '\'')
      end = rest.find(first, 1);
    if (end != std::string_view::npos && (first == '(' || first == '"' || first == '\''))
      ++end;
    std::string_view const word = rest.substr(0, end);
    rest.remove_prefix(word.size());
    return word;
  }

  // What stands before the next '>' that is not in quotes, passed over.
  std::string_view take_declaration() noexcept
  {
    std::string_view const begin = rest;
    while (!rest.empty() && rest.front() != '>')
    {
      char const c = rest.front();
      rest.remove_prefix(1);
      if (c == '"' || c == '\'')
        skip_after(std::string_view(&c, 1));
    }
    return begin.substr(0, begin.size() - rest.size());
  }

  void skip_character() noexcept { rest.remove_prefix(1); }

private:
  std::string_view rest;
};

void read_attribute_list(std::string_view declaration, axsTree& tree)
{
  Reader reader(declaration);
  axsName const* element = nullptr;
  std::string_view const element_name = reader.take_word();
  for (;;)
  {
    std::string_view const attribute = reader.take_word();
    std::string_view const type = reader.take_word();
    if (type.empty())
      return;
    if (type == "NOTATION")
      reader.take_word();
    if (reader.take_word() == "#FIXED")
      reader.take_word();
    if (type != "ID")
      continue;
    if (element == nullptr)
      element = &tree.names().intern(element_name);
    tree.id_attributes().declare(*element, tree.names().intern(attribute));
  }
}
}

void axsIdDeclarations::read(std::string_view doctype, axsTree& tree)
{
  Reader reader(doctype);
  reader.skip_after("<!DOCTYPE");
  while (!reader.is_at_end())
  {
    if (reader.take("<!--"))
      reader.skip_after("-->");
    else if (reader.take("<?"))
      reader.skip_after("?>");
    else if (reader.take("<!ATTLIST"))
      read_attribute_list(reader.take_declaration(), tree);
    else if (reader.take("<!"))
      reader.take_declaration();
    else if (reader.take("\""))
      reader.skip_after("\"");
    else if (reader.take("'"))
      reader.skip_after("'");
    else
      reader.skip_character();
  }
}
