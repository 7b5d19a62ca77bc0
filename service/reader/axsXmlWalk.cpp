#include "axsXmlWalk.h"

#include "axsReadError.h"

#include <utility>

axsXmlWalk::axsXmlWalk(Open open, axmLoadOptions const& given) : open_source(std::move(open)), options(given) {}

bool axsXmlWalk::begin()
try
{
  source = nullptr;
  start();
  return true;
}
catch (axsReadError const& error)
{
  fail(error);
  return false;
}

// From the beginning of the document up to its root element.
void axsXmlWalk::start()
{
  parser = nullptr;
  depth = 0;
  is_over = false;
  has_missed = false;
  text_here.reset();
  if (source == nullptr)
  {
    source = open_source();
    source->keep_what_is_read();
  }
  else
    source->seek(0);
  handler = std::make_unique<axsWalkHandler>();
  parser = std::make_unique<axsParser>(*source, options, *handler);
  read_to_root();
}

void axsXmlWalk::read_to_root()
{
  Level& root = level_at(0);
  handler->look_for(nullptr, root.attributes);
  while (!handler->has_begun() && parser->step())
  {
  }
  root.is_empty = handler->depth() == 0;
  if (!root.is_empty)
    root.content = parser->mark();
}

bool axsXmlWalk::down_to(std::string_view name)
try
{
  if (!errors.empty())
    return false;
  if (parser == nullptr)
    return fail("no document has been read"), false;
  text_here.reset();
  go_back();
  return depth == 0 ? enter_root(name) : enter_child(name);
}
catch (axsReadError const& error)
{
  fail(error);
  return false;
}

// Only when it is needed: most often the element is left then, and a pipe could not go back far.
void axsXmlWalk::go_back()
{
  if (!has_missed)
    return;
  has_missed = false;
  if (depth == 0)
    start();
  else
    parser->return_to(level_at(depth - 1).content);
}

// Once the root has been left, there is nothing more; then the walk is at the beginning again.
bool axsXmlWalk::enter_root(std::string_view name)
{
  if (is_over)
  {
    has_missed = true;
    return false;
  }
  if (handler->first_name() != name)
    return false;
  depth = 1;
  return true;
}

bool axsXmlWalk::enter_child(std::string_view name)
{
  Level const& current = level_at(depth - 1);
  if (current.is_empty)
    return false;
  while (true)
    switch (parser->next())
    {
    case axsParser::Next::start_tag:
    {
      Level& child = level_at(depth);
      std::uint64_t const before = handler->depth();
      handler->look_for(&name, child.attributes);
      while (!handler->has_begun())
        parser->advance();
      if (handler->has_found())
      {
        child.is_empty = handler->depth() == before;
        if (!child.is_empty)
          child.content = parser->mark();
        ++depth;
        return true;
      }
      pass_to(before);
      break;
    }
    case axsParser::Next::end_tag:
      has_missed = true;
      return false;
    default:
      parser->advance();
    }
}

void axsXmlWalk::pass_to(std::uint64_t open)
{
  while (handler->depth() > open)
    parser->step();
}

void axsXmlWalk::up()
try
{
  if (!errors.empty())
    return;
  if (depth == 0)
    return fail("Incorrect xml nesting");
  text_here.reset();
  has_missed = false;
  --depth;
  if (!level_at(depth).is_empty)
    pass_to(depth);
  if (depth > 0)
    return;
  parser->run();
  is_over = true;
}
catch (axsReadError const& error)
{
  fail(error);
}

std::string_view const* axsXmlWalk::attribute(std::string_view name)
{
  if (!errors.empty())
    return nullptr;
  if (depth > 0)
    return level_at(depth - 1).attributes.find(name);
  fail("Incorrect xml nesting");
  return nullptr;
}

std::string_view axsXmlWalk::text()
try
{
  if (!errors.empty())
    return {};
  if (depth == 0)
    return fail("Incorrect xml nesting"), std::string_view();
  if (text_here)
    return *text_here;
  go_back();
  text_here.emplace();
  if (level_at(depth - 1).is_empty)
    return *text_here;
  handler->gather(&*text_here);
  while (parser->next() == axsParser::Next::other)
    parser->advance();
  handler->gather(nullptr);
  return *text_here;
}
catch (axsReadError const& error)
{
  handler->gather(nullptr);
  fail(error);
  return {};
}

std::string axsXmlWalk::encoding() const
{
  if (parser == nullptr)
    return {};
  return handler->declared_encoding().empty() ? parser->encoding() : handler->declared_encoding();
}

void axsXmlWalk::fail(axsReadError const& error)
{
  errors.push_back(error.record());
}

void axsXmlWalk::fail(char const* message)
{
  axmParseError error{apString(message)};
  if (source != nullptr)
    error.set_url(source->url());
  errors.push_back(error);
}

axsXmlWalk::Level& axsXmlWalk::level_at(std::size_t number)
{
  if (number == levels.size())
    levels.push_back(std::make_unique<Level>());
  return *levels[number];
}
