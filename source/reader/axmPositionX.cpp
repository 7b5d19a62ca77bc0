#include "axmPositionX.h"

#include "axmCharException.h"
#include "axmCursor.h"
#include "axmEndException.h"
#include "axmOpenTags.h"
#include "axmTagException.h"
#include "axmTagName.h"

#include <utXmlCharacter.h>

#include <memory>
#include <utility>

namespace
{
char const closing_mark[] = {'<', '/'};
char const comment_mark[] = {'<', '!', '-', '-'};
char const cdata_mark[] = {'<', '!', '[', 'C', 'D', 'A', 'T', 'A', '['};

void skip_by_steps(axmPositionX& cursor)
{
  cursor.skip_object();
}

// Whether `pattern` stands at `at`; throws where the comparison comes to the last character of the document.
bool stands_at(char const* at, char const* pattern, int length)
{
  for (int i = 0; i < length; ++i)
  {
    if (at[i] == '\0' || at[i + 1] == '\0')
      throw axmEndException();
    if (at[i] != pattern[i])
      return false;
  }
  return true;
}
}

axmPositionX::axmPositionX(char* buffer) : current_pos(buffer), object_start(buffer) {}
axmPositionX::axmPositionX(axmPositionX const& other) = default;
axmPositionX& axmPositionX::operator=(axmPositionX const& other) = default;
axmPositionX::~axmPositionX() = default;

utString axmPositionX::attribute(utString const& name, utString const& default_value) const
{
  return axmPositionX(object_start).find_attribute(name, default_value);
}

void axmPositionX::end_object()
{
  utString const name = ut_lit("Invalid");
  while (find_sub_tag(name))
    ;
}

axmPositionX* axmPositionX::go_to_sub_tag(utPtrRelease, utString const& name)
{
  if (!find_sub_tag(name))
    return nullptr;
  auto child = std::make_unique<axmPositionX>(current_pos);
  child->object_setup();
  return child.release();
}

utString axmPositionX::initial_tag() const
{
  axmPositionX ahead(object_start);
  while (ahead.is_comment())
    ahead.skip_comment();
  if (!ahead.is_opening_tag())
    throw_tag_error_x(ut_lit("Initial tag"));
  ahead.skip_tag();
  ahead.skip_whitespace();
  return ahead.read_tag();
}

void axmPositionX::object_setup()
{
  while (is_comment())
  {
    skip_comment();
    object_start = current_pos;
  }
  if (!is_opening_tag())
    throw_tag_error_x(ut_lit("Initial tag"));
  skip_tag();
  skip_whitespace();
}

utString axmPositionX::read_text()
{
  return axmCursor::move(*this, [](axmCursor& cursor) { return cursor.take_text(); });
}

void axmPositionX::skip_object()
{
  axmOpenTags open;
  open_object(open);
  while (!open.empty())
  {
    skip_whitespace();
    if (is_comment())
      skip_comment();
    else if (is_cdata())
      skip_cdata();
    else if (is_opening_tag())
      open_object(open);
    else if (is_closing_tag())
      close_object(open);
    else
      skip_to('<');
  }
}

utString axmPositionX::text_node()
{
  utString text = ut_lit("");
  if (!axmCursor::move(*this, [&](axmCursor& cursor) { return cursor.take_text_node(skip_by_steps, text); }))
    return_to_start();
  return text;
}

char* axmPositionX::current() const
{
  return current_pos;
}

char axmPositionX::read_char()
{
  char const c = *current_pos;
  move_on();
  return c;
}

void axmPositionX::move_on()
{
  if (*current_pos == '\0' || *++current_pos == '\0')
    throw_end_error_x();
}

bool axmPositionX::is_char(char c) const
{
  return *current_pos == c;
}

bool axmPositionX::is_whitespace() const
{
  return utXmlCharacter::is_space(*current_pos);
}

bool axmPositionX::is_string(utString const& s) const
{
  return begins_with(s.c_str(), s.length());
}

bool axmPositionX::is_closing_tag() const
{
  return begins_with(closing_mark, sizeof closing_mark);
}

bool axmPositionX::is_comment() const
{
  return begins_with(comment_mark, sizeof comment_mark);
}

bool axmPositionX::is_cdata() const
{
  return begins_with(cdata_mark, sizeof cdata_mark);
}

bool axmPositionX::is_tag() const
{
  return !is_comment() && !is_cdata() && is_char('<');
}

bool axmPositionX::is_opening_tag() const
{
  return is_char('<') && !is_closing_tag() && !is_comment() && !is_cdata();
}

bool axmPositionX::self_closing_tag() const
{
  char before = ' ';
  for (char const* at = current_pos; *at != '>'; ++at)
  {
    if (*at == '\0')
      throw_end_error_x();
    before = *at;
  }
  return before == '/';
}

bool axmPositionX::is_tag_name(utString const& name) const
{
  return is_tag_named(axmTagName::of(name));
}

void axmPositionX::skip_char(char c)
{
  if (!is_char(c))
    throw_char_error_x(c);
  move_on();
}

void axmPositionX::skip_whitespace()
{
  while (is_whitespace())
    move_on();
}

void axmPositionX::skip_string(utString const& s)
{
  skip_pattern(s.c_str(), s.length());
}

void axmPositionX::skip_tag()
{
  skip_to('>');
  move_on();
}

void axmPositionX::skip_comment()
{
  skip_pattern(comment_mark, sizeof comment_mark);
  skip_marked('-');
}

utString axmPositionX::read_string_to_char(char c)
{
  char const* const from = current_pos;
  skip_to(c);
  return make_string_from(from);
}

utString axmPositionX::read_tag() const
{
  return tag_name().text();
}

utString axmPositionX::read_cdata()
{
  return skip_cdata().text();
}

utString axmPositionX::find_attribute(utString const& name, utString const& default_value)
{
  axmTagName const wanted = axmTagName::of(name);
  while (!is_char(' ') && !is_char('>'))
    move_on();
  skip_whitespace();
  while (!is_char('>'))
  {
    axmTagName found{current_pos, nullptr};
    skip_to('=');
    found.end = current_pos;
    skip_char('=');

    char const quote = read_char();
    char const* const value = current_pos;
    skip_to(quote);
    char const* const value_end = current_pos;
    skip_char(quote);
    if (found == wanted)
      return utString(value, static_cast<int>(value_end - value));
    skip_whitespace();
  }
  return default_value;
}

bool axmPositionX::find_sub_tag(utString const& name)
{
  if (axmCursor::move(*this, [&](axmCursor& cursor) { return cursor.pass_to_child(name, skip_by_steps); }))
    return true;
  return_to_start();
  return false;
}

utString axmPositionX::make_string_from(char const* from)
{
  return std::as_const(*this).make_string_from(from);
}

void axmPositionX::throw_char_error_x(char c)
{
  std::as_const(*this).throw_char_error_x(c);
}

void axmPositionX::throw_end_error_x()
{
  std::as_const(*this).throw_end_error_x();
}

void axmPositionX::throw_tag_error_x(utString const& text)
{
  std::as_const(*this).throw_tag_error_x(text);
}

utString axmPositionX::make_string_from(char const* from) const
{
  return utString(from, static_cast<int>(current_pos - from));
}

void axmPositionX::throw_char_error_x(char c) const
{
  throw axmCharException(c);
}

void axmPositionX::throw_end_error_x() const
{
  throw axmEndException();
}

void axmPositionX::throw_tag_error_x(utString const& text) const
{
  throw axmTagException(text);
}

// The name of the tag that stands here, in place.
axmTagName axmPositionX::tag_name() const
{
  axmPositionX ahead(*this);
  ahead.skip_char('<');
  if (ahead.is_char('/'))
    ahead.move_on();
  axmTagName name{ahead.current_pos, nullptr};
  while (!ahead.is_char(' ') && !ahead.is_char('>'))
    ahead.move_on();
  name.end = ahead.current_pos;
  return name;
}

bool axmPositionX::begins_with(char const* pattern, int length) const
{
  return stands_at(current_pos, pattern, length);
}

bool axmPositionX::is_tag_named(axmTagName name) const
{
  int const closing_length = sizeof closing_mark;
  return (begins_with(closing_mark, 1) && stands_at(current_pos + 1, name.begin, name.length())) ||
         (begins_with(closing_mark, closing_length) &&
           stands_at(current_pos + closing_length, name.begin, name.length()));
}

void axmPositionX::skip_pattern(char const* pattern, int length)
{
  for (int i = 0; i < length; ++i)
    skip_char(pattern[i]);
}

// Moves to the next `c`, which may be here.
void axmPositionX::skip_to(char c)
{
  while (!is_char(c))
    move_on();
}

// Passes the rest of a comment or CDATA section, which ends with two marks and a `>`. What follows a lone mark is passed
// without being looked at.
void axmPositionX::skip_marked(char mark)
{
  while (read_char() != mark || read_char() != mark)
    ;
  skip_char('>');
}

// Passes a CDATA section and tells where its content is.
axmTagName axmPositionX::skip_cdata()
{
  skip_pattern(cdata_mark, sizeof cdata_mark);
  char const* const content = current_pos;
  skip_marked(']');
  return {content, current_pos - 3};
}

// Passes an opening tag and remembers it if something has to close it.
void axmPositionX::open_object(axmOpenTags& open)
{
  axmTagName const name = tag_name();
  bool const closed = self_closing_tag();
  skip_tag();
  if (!closed)
    open.push(name);
}

// Passes the closing tag of the innermost element that is open.
void axmPositionX::close_object(axmOpenTags& open)
{
  if (tag_name() != open.last())
    throw_tag_error_x(open.last().text());
  skip_tag();
  open.pop();
}

// From the closing tag of the element back to the end of its opening tag.
void axmPositionX::return_to_start()
{
  axmTagName const name = tag_name();
  current_pos = object_start;
  if (!is_tag_named(name))
    throw_tag_error_x(name.text());
  skip_tag();
}
