#include "axsXmlReader.h"

#include "axsXmlWalk.h"

#include <climits>
#include <new>
#include <ostream>
#include <utility>

namespace
{
utString to_text(std::string_view text)
{
  if (text.size() > static_cast<std::size_t>(INT_MAX))
    throw std::bad_alloc();
  return utString(text.data() == nullptr ? "" : text.data(), static_cast<int>(text.size()));
}
}

axsXmlReader::axsXmlReader(std::unique_ptr<axsXmlWalk> given) : walk(std::move(given)) {}
axsXmlReader::~axsXmlReader() = default;

bool axsXmlReader::read_file()
{
  return walk->begin();
}

utString axsXmlReader::encoding()
{
  std::string const name = walk->encoding();
  return name.empty() ? axmAbstractXmlReader::encoding() : to_text(name);
}

void axsXmlReader::up()
{
  walk->up();
}

bool axsXmlReader::down_to(utString const& name)
{
  return walk->down_to(name.view());
}

utString axsXmlReader::attribute(utString const& name, utString const& default_value)
{
  std::string_view const* const value = walk->attribute(name.view());
  return value == nullptr ? default_value : to_text(*value);
}

utString axsXmlReader::text_node()
{
  return to_text(walk->text());
}

bool axsXmlReader::has_error_occurred() const
{
  return !walk->errors.empty();
}

void axsXmlReader::dump_error(std::ostream& out) const
{
  for (axmParseError const& error : walk->errors)
  {
    out << error.url().to_utf8();
    if (error.line_number() > 0)
      out << ':' << error.line_number() << ':' << error.column_number();
    out << (error.url().empty() && error.line_number() <= 0 ? "" : ": ") << error.message().to_utf8() << '\n';
  }
}

std::vector<axmParseError> const& axsXmlReader::errors() const noexcept
{
  return walk->errors;
}
