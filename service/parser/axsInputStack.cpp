#include "axsInputStack.h"

#include "axsCharacters.h"
#include "axsEntity.h"
#include "axsLocalFile.h"
#include "axsMessages.h"
#include "axsSource.h"
#include "axsSystemId.h"
#include "axsXmlDeclaration.h"

#include <utUtf8.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{
using namespace axsCharacters;

std::string quoted(std::string_view text)
{
  return '"' + std::string(text) + '"';
}

// XML 1.1, 2.11: what ends a line besides the ends of XML 1.0.
std::size_t length_of_other_line_end(char const* p)
{
  return begins(p, "\xC2\x85") ? 2 : begins(p, "\xE2\x80\xA8") ? 3 : 0;
}

// XML 1.1, 2.2, [2a] RestrictedChar, of those beyond ASCII
bool is_restricted(char const* p)
{
  return *p == '\xC2' && static_cast<unsigned char>(p[1]) < 0xA0 && p[1] != '\x85';
}

std::string hex(char32_t number)
{
  std::string digits;
  for (; number != 0; number >>= 4)
    digits.insert(digits.begin(), "0123456789ABCDEF"[number & 0xF]);
  return "0x" + digits;
}
}

axsInputStack::axsInputStack(axsSource& given, axmLoadOptions const& options)
  : document(given),
    resolves(!options.disable_entity_resolution()),
    all_bounds(static_cast<std::size_t>(std::max(options.entity_expansion_limit(), 0)))
{
  Input input;
  input.buffer = std::make_unique<axsInputBuffer>(given);
  input.file = given.file();
  enter(std::move(input));
}

axsInputStack::~axsInputStack() = default;

void axsInputStack::enter(Input&& input)
{
  inputs.push_back(std::move(input));
  if (Input const& entered = inputs.back(); entered.buffer != nullptr)
    at = entered.buffer->begin();
  innermost();
}

void axsInputStack::innermost()
{
  Input const& input = inputs.back();
  internal = input.buffer == nullptr;
  limit = internal ? input.entity->parsed.get() + input.entity->declared->replacement.size() : input.buffer->end();
  last = internal || input.buffer->is_last();
  more = !last && !input.buffer->is_stopped();
  all_are_looked_at = all_are_looked_at || (!internal && input.buffer->has_excluded());
}

void axsInputStack::read_on()
{
  at = inputs.back().buffer->advance(at);
  innermost();
}

axsInputStack::Mark axsInputStack::mark() const
{
  Input const& input = inputs.back();
  if (internal)
    return {{}, static_cast<std::size_t>(at - input.entity->parsed.get()), all_bounds.count()};
  return {input.buffer->mark(at), 0, all_bounds.count()};
}

void axsInputStack::return_to(Mark const& mark)
{
  Input const& input = inputs.back();
  at = internal ? input.entity->parsed.get() + mark.in_text : input.buffer->return_to(mark.in_file);
  all_bounds.reset(mark.count);
  innermost();
}

void axsInputStack::open(axsEntity& entity, char const* reference)
{
  std::string const name = axsMessages::quoted(entity.name);
  // WFC: No Recursion (4.1)
  if (entity.is_open)
    fail(at, "the entity " + name + " contains itself");
  count_expansion(entity, reference);
  inputs.back().at = at;
  inputs.back().reference = reference;
  if (entity.declared->is_internal)
    return open_text(entity);

  std::string const& id = entity.declared->external.system_id;
  if (!resolves)
    fail(at, "The document needs the external entity " + quoted(id) + ", but external entities are not resolved");
  apPath const file = axsSystemId::resolve(entity.base, id);
  if (file.empty())
    fail(at, "The external entity " + quoted(id) + " is not a local file");
  open_file(&entity, file, entity.is_parameter);
}

void axsInputStack::open_text(axsEntity& entity)
{
  std::string const& text = entity.declared->replacement;
  if (entity.parsed == nullptr)
  {
    entity.parsed = std::make_unique<char[]>(text.size() + 1 + axsTextScan::overreach);
    std::memcpy(entity.parsed.get(), text.data(), text.size());
  }
  Input input;
  input.entity = &entity;
  at = entity.parsed.get();
  enter(std::move(input));
  entity.is_open = true;
}

void axsInputStack::open_file(axsEntity* entity, apPath const& file, bool is_whole)
{
  Input input;
  input.entity = entity;
  input.file = file;
  try
  {
    input.source = axsLocalFile::open(file);
    input.buffer = std::make_unique<axsInputBuffer>(*input.source);
    while (is_whole && !input.buffer->is_last())
      input.buffer->advance(input.buffer->begin());
  }
  catch (axsReadError const& unreadable)
  {
    // What is wrong in the file has its place there.
    if (unreadable.line > 0)
      throw;
    fail(at, unreadable.message.to_utf8().c_str());
  }
  if (xml_1_1)
    input.buffer->take_xml_1_1_line_ends();
  enter(std::move(input));
  ++files;
  if (entity != nullptr)
    entity->is_open = true;
  skip_text_declaration();
}

// 4.3.1. No declaration is longer than what is read at first.
void axsInputStack::skip_text_declaration()
{
  if (!axsXmlDeclaration::begins(at))
    return;
  axsXmlDeclaration const declared(*this, axsXmlDeclaration::Kind::text);
  if (declared.version() == "1.1" && !xml_1_1)
    fail(at, axsMessages::entity_version);
}

bool axsInputStack::open_subset(std::string const& system_id)
{
  apPath const file = resolves && !system_id.empty() ? axsSystemId::resolve(inputs.back().file, system_id) : apPath();
  if (file.empty())
    return false;
  inputs.back().at = at;
  inputs.back().reference = at;
  open_file(nullptr, file, true);
  return true;
}

void axsInputStack::close()
{
  Input& closed = inputs.back();
  if (closed.entity != nullptr)
    closed.entity->is_open = false;
  if (closed.buffer != nullptr)
  {
    --files;
    bytes_of_closed += closed.buffer->position(closed.buffer->end());
  }
  inputs.pop_back();
  at = inputs.back().at;
  innermost();
}

void axsInputStack::count_expansion(axsEntity const& entity, char const* reference)
{
  if (!all_bounds.expand())
    fail(reference,
      "entities are expanded more than " + std::to_string(all_bounds.max_expansions()) + " times, which is the limit");
  count_growth(entity.declared->replacement.size(), reference);
}

void axsInputStack::count_growth(std::uint64_t bytes, char const* p)
{
  if (!all_bounds.grow(bytes) && all_bounds.is_too_large(bytes_read()))
    fail(p, axsMessages::too_large);
}

// All of the document counts, if that is known; of entities what was read.
std::uint64_t axsInputStack::bytes_read() const
{
  std::uint64_t sum = bytes_of_closed;
  for (Input const& input : inputs)
    if (input.buffer != nullptr)
      sum += input.buffer->position(input.buffer->end());
  return std::max<std::uint64_t>(sum, document.head().size());
}

// XML 1.1, 2.11: such line ends are white space, which they are in no text of an entity.
void axsInputStack::skip_other_spaces(char const*& p) const
{
  while (!internal)
  {
    std::size_t const length = length_of_other_line_end(p);
    if (length == 0)
      return;
    p = end_of_spaces(p + length);
  }
}

axsInputStack::Special axsInputStack::pass_special(char const*& p)
{
  if (internal && is_ascii(*p) && p != limit)
  {
    ++p;
    return Special::characters;
  }
  if (*p == '\r')
  {
    pass_return(p);
    return Special::line_end;
  }
  if (is_ascii(*p))
    unexpected(p, "");
  return pass_multibyte(p);
}

void axsInputStack::pass_return(char const*& p) const
{
  if (more && limit - p < look_ahead)
    throw NeedsMore();
  p += begins(p, "\r\n") ? 2 : 1;
  if (xml_1_1 && p[-1] == '\r' && begins(p, "\xC2\x85"))
    p += 2;
}

axsInputStack::Special axsInputStack::pass_multibyte(char const*& p) const
{
  bool const has_other_rules = xml_1_1 && !internal;
  char const* const begin = p;
  do
  {
    std::size_t const line_end = has_other_rules ? length_of_other_line_end(p) : 0;
    if (line_end > 0 && p != begin)
      return Special::characters;
    if (line_end > 0)
    {
      p += line_end;
      return Special::line_end;
    }
    std::size_t const length = character(p).length;
    if (length == 0 || (has_other_rules && is_restricted(p)))
      unexpected(p, "");
    p += length;
  } while (!is_ascii(*p));
  return Special::characters;
}

void axsInputStack::look_for_controls(char const* from, char const* to) const
{
  if (void const* const found = std::memchr(from, 0x7F, static_cast<std::size_t>(to - from)))
    fail(static_cast<char const*>(found) + 1, "invalid character 0x7F");
}

void axsInputStack::take_xml_1_1() noexcept
{
  xml_1_1 = true;
  all_are_looked_at = true;
  inputs.front().buffer->take_xml_1_1_line_ends();
}

void axsInputStack::unexpected(char const* p, std::string const& message) const
{
  // Before bytes that are no text, a mark of two characters may be cut off.
  if (limit - p < (more ? look_ahead : 2) && !last)
    throw NeedsMore();
  if (internal || p == limit)
    fail(p, message);
  Character const found = character(p);
  if (found.length > 0 && !(xml_1_1 && is_restricted(p)))
    fail(p, message);
  utCodePoint const wrong = utUtf8::decode(p, limit);
  fail(p + wrong.length, "invalid character " + hex(wrong.code));
}

void axsInputStack::fail(char const* p, std::string const& message) const
{
  throw axsReadError::at(apString::from_utf8(message), url(), place(p));
}

axsInputStack::Input const& axsInputStack::file_input() const
{
  return *std::find_if(inputs.rbegin(), inputs.rend(), [](Input const& input) { return input.buffer != nullptr; });
}

axsPlace axsInputStack::place(char const* p, std::size_t depth) const
{
  if (inputs[depth].buffer != nullptr)
    return inputs[depth].buffer->place(p);
  while (inputs[depth].buffer == nullptr)
    --depth;
  return inputs[depth].buffer->place(inputs[depth].reference);
}

apString axsInputStack::url() const
{
  return apString(file().path());
}

apPath const& axsInputStack::file() const
{
  return file_input().file;
}
