#include "axsIdentityPathReader.h"

#include "axsSchemaText.h"

#include <algorithm>
#include <string>
#include <utility>

namespace
{
using Kind = axsIdentityPath::Step::Kind;
using axsSchemaText::quoted;

// A byte that may stand in a name, or be a part of a character that may.
bool is_name_byte(char c)
{
  auto const byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-' || c == '.';
}
}

axsIdentityPathReader::axsIdentityPathReader(axsSchemaContext& shared, axsSchemaElement const& read)
  : context(shared),
    element(read),
    is_field(read.tag == axsSchemaTag::field),
    text(read.value(axsSchemaField::xpath))
{
}

axsIdentityPath axsIdentityPathReader::read()
{
  axsIdentityPath path;
  path.place = element.place;
  do
  {
    if (!alternative(path.alternatives.emplace_back()))
      return path;
    skip_space();
  } while (skip("|"));
  if (at != text.size())
    fail("this is not understood");
  return path;
}

bool axsIdentityPathReader::alternative(axsIdentityPath::Alternative& made)
{
  skip_space();
  std::size_t const begin = at;
  if (skip("."))
  {
    skip_space();
    made.from_descendants = skip("//");
  }
  if (!made.from_descendants)
    at = begin;
  do
  {
    if (!made.steps.empty() && made.steps.back().kind == Kind::attribute)
      return fail("an attribute is the last step");
    if (!step(made))
      return false;
    skip_space();
  } while (text.substr(at, 2) != "//" && skip("/"));
  return true;
}

bool axsIdentityPathReader::step(axsIdentityPath::Alternative& made)
{
  axsIdentityPath::Step& step = made.steps.emplace_back();
  skip_space();
  if (skip("."))
  {
    step.kind = Kind::self;
    return true;
  }
  std::size_t const begin = at;
  std::string_view const axis = ncname();
  skip_space();
  bool const has_axis = !axis.empty() && skip("::");
  if (!has_axis)
    at = begin;
  bool const is_attribute = has_axis ? axis == "attribute" : skip("@");
  if (has_axis && !is_attribute && axis != "child")
    return fail("only the axes child and attribute may be used");
  if (is_attribute && !is_field)
    return fail("a selector selects elements only");
  step.kind = is_attribute ? Kind::attribute : Kind::child;
  return name_test(step);
}

bool axsIdentityPathReader::name_test(axsIdentityPath::Step& step)
{
  skip_space();
  if (skip("*"))
  {
    step.any_local = step.any_name_space = true;
    return true;
  }
  std::string_view const first = ncname();
  if (first.empty())
    return fail("a name is expected");
  // Between the parts of a name there is no white space.
  bool const has_prefix = text.substr(at, 2) != "::" && skip(":");
  if (!has_prefix)
  {
    step.name.local = first;
    return true;
  }
  std::optional<std::string_view> const bound = element.scope->find(first);
  if (!bound.has_value())
    return fail("a prefix is not declared");
  step.name.name_space = *bound;
  step.any_local = skip("*");
  std::string_view const local = step.any_local ? std::string_view() : ncname();
  step.name.local = local;
  return step.any_local || !local.empty() || fail("a name is expected");
}

bool axsIdentityPathReader::fail(char const* message)
{
  context.errors.add(element.place_of(axsSchemaField::xpath),
    "the path " + quoted(text) + " of " + quoted(element.name()) + " is not allowed: " + message);
  return false;
}

bool axsIdentityPathReader::skip(std::string_view token)
{
  bool const is_there = text.substr(at, token.size()) == token;
  at += is_there ? token.size() : 0;
  return is_there;
}

// The name at the place, after which it goes on; empty if there is none.
std::string_view axsIdentityPathReader::ncname()
{
  std::size_t end = at;
  while (end < text.size() && is_name_byte(text[end]))
    ++end;
  std::string_view const name = text.substr(at, end - at);
  if (!axsSchemaText::is_ncname(name))
    return {};
  at = end;
  return name;
}

void axsIdentityPathReader::skip_space()
{
  at = std::min(text.find_first_not_of(' ', at), text.size());
}
