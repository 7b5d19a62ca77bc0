#include "axsCanonicalWriter.h"

#include "axsLocator.h"
#include "axsName.h"
#include "axsPrefixScope.h"

#include <algorithm>
#include <tuple>

namespace
{
std::size_t const piece = 64 * 1024;

// 2.3 of Canonical XML: what is written as a reference in texts, and in values.
std::string_view reference_in_text(char c)
{
  switch (c)
  {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '\r':
    return "&#xD;";
  default:
    return {};
  }
}

std::string_view reference_in_value(char c)
{
  switch (c)
  {
  case '"':
    return "&quot;";
  case '\t':
    return "&#x9;";
  case '\n':
    return "&#xA;";
  case '>':
    return {};
  default:
    return reference_in_text(c);
  }
}

std::string_view reference_in_comment(char c)
{
  return c == '\r' ? reference_in_text(c) : std::string_view();
}

template <std::string_view (*reference)(char)>
void append(std::string_view text, std::string& to)
{
  std::size_t done = 0;
  for (std::size_t at = 0; at < text.size(); ++at)
    if (std::string_view const found = reference(text[at]); !found.empty())
    {
      to.append(text, done, at - done).append(found);
      done = at + 1;
    }
  to.append(text, done, text.npos);
}

// RFC 3986, 3.1
bool has_scheme(std::string_view uri)
{
  auto const is_letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  auto const is_of_scheme = [&](char c)
  { return is_letter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'; };
  std::size_t const colon = uri.find(':');
  return colon != uri.npos && colon > 0 && is_letter(uri[0]) &&
         std::all_of(uri.begin(), uri.begin() + static_cast<std::ptrdiff_t>(colon), is_of_scheme);
}

// Of a declaration; empty of that of the default namespace.
std::string_view declared_prefix(axsName const& name)
{
  return name.prefix().empty() ? std::string_view() : name.local();
}
}

axsCanonicalWriter::axsCanonicalWriter(axsCanonicalOptions const& wanted, axsCanonicalForm::Write const& target)
  : options(wanted),
    write(target)
{
}

void axsCanonicalWriter::declaration(std::string_view version, std::string_view, std::string_view)
{
  if (version == "1.1")
    fail("A document of XML 1.1 has no canonical form");
}

void axsCanonicalWriter::start_element(axsStartTag const& tag)
{
  has_root = true;
  open.push_back(tag.name);
  pending.append("<").append(tag.name->utf8());
  declare(tag);
  write_attributes(tag);
  pending += '>';
  flush(piece);
}

// Which of the declarations that are in force the tag may have to have.
axsCanonicalWriter::Declarations axsCanonicalWriter::declarations_of(axsStartTag const& tag) const
{
  Declarations all;
  auto const use = [&](std::string_view prefix)
  {
    if (prefix != "xml")
      all[prefix] = tag.prefixes->namespace_of(prefix);
  };
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    std::string_view const declared = declared_prefix(*attribute.name);
    if (attribute.is_declaration)
      check(attribute);
    if (attribute.is_declaration && (!options.is_exclusive || is_inclusive(declared)))
      use(declared);
    else if (!attribute.is_declaration && options.is_exclusive && !attribute.name->prefix().empty())
      use(attribute.name->prefix());
  }
  if (options.is_exclusive)
    use(tag.name->prefix());
  return all;
}

// 2.3, namespace axis: what the tags around it have declared the same way is superfluous.
void axsCanonicalWriter::declare(axsStartTag const& tag)
{
  for (auto const& [prefix, uri] : declarations_of(tag))
  {
    auto& values = written.try_emplace(std::string(prefix)).first->second;
    std::string_view const known = values.empty() ? std::string_view() : values.back();
    if (known == uri)
      continue;
    values.emplace_back(uri);
    in_force.emplace_back(open.size(), &values);
    pending.append(prefix.empty() ? " xmlns" : " xmlns:").append(prefix).append("=\"");
    append<reference_in_value>(uri, pending);
    pending += '"';
  }
}

void axsCanonicalWriter::check(axsTagAttribute const& declaration) const
{
  if (!declaration.value.empty() && !has_scheme(declaration.value))
    fail("A relative URI names a namespace, so that the document has no canonical form");
}

// By namespace and local name.
void axsCanonicalWriter::write_attributes(axsStartTag const& tag)
{
  std::vector<axsTagAttribute const*> sorted;
  for (axsTagAttribute const& attribute : *tag.attributes)
    if (!attribute.is_declaration)
      sorted.push_back(&attribute);
  std::sort(sorted.begin(), sorted.end(),
    [](axsTagAttribute const* one, axsTagAttribute const* other)
    {
      return std::forward_as_tuple(one->name_space, one->name->local()) <
             std::forward_as_tuple(other->name_space, other->name->local());
    });
  for (axsTagAttribute const* const attribute : sorted)
  {
    pending.append(" ").append(attribute->name->utf8()).append("=\"");
    append<reference_in_value>(attribute->value, pending);
    pending += '"';
  }
}

void axsCanonicalWriter::end_element()
{
  pending.append("</").append(open.back()->utf8()).append(">");
  for (; !in_force.empty() && in_force.back().first == open.size(); in_force.pop_back())
    in_force.back().second->pop_back();
  open.pop_back();
  flush(piece);
}

void axsCanonicalWriter::text(std::string_view text, bool)
{
  append<reference_in_text>(text, pending);
  flush(piece);
}

void axsCanonicalWriter::comment(std::string_view data)
{
  if (!options.has_comments)
    return;
  begin_outside();
  pending += "<!--";
  append<reference_in_comment>(data, pending);
  pending += "-->";
  end_outside();
}

void axsCanonicalWriter::processing_instruction(std::string_view target, std::string_view data)
{
  begin_outside();
  pending.append("<?").append(target).append(data.empty() ? "" : " ");
  append<reference_in_comment>(data, pending);
  pending += "?>";
  end_outside();
}

// What stands outside of the root element has a line end towards it.
void axsCanonicalWriter::begin_outside()
{
  if (open.empty() && has_root)
    pending += '\n';
}

void axsCanonicalWriter::end_outside()
{
  if (open.empty() && !has_root)
    pending += '\n';
  flush(piece);
}

bool axsCanonicalWriter::is_inclusive(std::string_view prefix) const
{
  return options.inclusive_prefixes.count(prefix.empty() ? "#default" : std::string(prefix)) > 0;
}

void axsCanonicalWriter::flush(std::size_t limit)
{
  if (pending.size() <= limit)
    return;
  if (!write(pending))
    fail("The canonical form cannot be written");
  pending.clear();
}

void axsCanonicalWriter::fail(char const* message) const
{
  throw locator->error(apString(message), locator->begin());
}
