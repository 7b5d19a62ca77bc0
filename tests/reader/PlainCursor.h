#pragma once

#include <cstddef>
#include <string>

// A second cursor, a second declaration cursor, as plain as can be: every operation is its contract, word for word, one
// character at a time. It knows nothing of the library and shares nothing with it. What the library makes faster is held
// against this.

struct PlainEnd
{
};

struct PlainChar
{
  char expected;
};

struct PlainTag
{
  std::string text;
};

// Where an operation would go on for ever.
struct PlainNeverEnds
{
};

class PlainCursor
{
public:
  PlainCursor(std::string const& document, std::size_t at) : text(&document), pos(at), start(at) {}

  std::size_t pos_() const { return pos; }
  std::size_t start_() const { return start; }

  char now() const { return at(pos); }

  char read_char()
  {
    if (now() == '\0')
      throw PlainEnd();
    char const c = now();
    ++pos;
    if (now() == '\0')
      throw PlainEnd();
    return c;
  }

  bool is_whitespace() const { return now() == ' ' || now() == '\t' || now() == '\n' || now() == '\r'; }

  bool is_string(std::string const& s) const
  {
    for (std::size_t i = 0; i < s.size(); ++i)
    {
      if (at(pos + i) == '\0')
        throw PlainEnd();
      if (at(pos + i + 1) == '\0')
        throw PlainEnd();
      if (at(pos + i) != s[i])
        return false;
    }
    return true;
  }

  bool is_closing_tag() const { return is_string("</"); }
  bool is_comment() const { return is_string("<!--"); }
  bool is_cdata() const { return is_string("<![CDATA["); }

  bool is_tag() const
  {
    if (is_comment())
      return false;
    if (is_cdata())
      return false;
    return now() == '<';
  }

  bool is_opening_tag() const
  {
    if (now() != '<')
      return false;
    if (is_closing_tag())
      return false;
    if (is_comment())
      return false;
    return !is_cdata();
  }

  bool self_closing_tag() const
  {
    PlainCursor scan = *this;
    char before = ' ';
    while (scan.now() != '>')
    {
      if (scan.now() == '\0')
        throw PlainEnd();
      before = scan.now();
      ++scan.pos;
    }
    return before == '/';
  }

  bool is_tag_name(std::string const& name) const { return is_string("<" + name) || is_string("</" + name); }

  void skip_char(char c)
  {
    if (now() != c)
      throw PlainChar{c};
    read_char();
  }

  void skip_whitespace()
  {
    while (is_whitespace())
      read_char();
  }

  void skip_string(std::string const& s)
  {
    for (char const c : s)
      skip_char(c);
  }

  void skip_tag()
  {
    while (now() != '>')
      read_char();
    read_char();
  }

  void skip_comment()
  {
    skip_string("<!--");
    for (;;)
    {
      char const one = read_char();
      if (one != '-')
        continue;
      char const two = read_char();
      if (two == '-')
        break;
    }
    if (now() != '>')
      throw PlainChar{'>'};
    read_char();
  }

  std::string read_string_to_char(char c)
  {
    std::string result;
    while (now() != c)
      result += read_char();
    return result;
  }

  std::string read_tag() const
  {
    PlainCursor scan = *this;
    if (scan.now() != '<')
      throw PlainChar{'<'};
    scan.read_char();
    if (scan.now() == '/')
      scan.read_char();
    std::string name;
    while (scan.now() != ' ' && scan.now() != '>')
      name += scan.read_char();
    return name;
  }

  std::string read_cdata()
  {
    skip_string("<![CDATA[");
    std::string content;
    for (;;)
    {
      char const one = read_char();
      if (one != ']')
      {
        content += one;
        continue;
      }
      char const two = read_char();
      if (two == ']')
        break;
      content += one;
      content += two;
    }
    if (now() != '>')
      throw PlainChar{'>'};
    read_char();
    return content;
  }

  std::string read_text()
  {
    std::string result;
    std::string segment;
    for (;;)
    {
      if (is_cdata())
      {
        result += read_cdata();
        segment.clear();
      }
      else if (is_comment())
      {
        result += segment;
        skip_comment();
        segment.clear();
      }
      else if (now() == '<')
        return result + segment;
      else
        segment += read_char();
    }
  }

  std::string text_node()
  {
    std::string result;
    for (;;)
    {
      while (is_whitespace())
        result += read_char();
      if (is_opening_tag())
        skip_object();
      else if (is_comment())
        skip_comment();
      else if (is_closing_tag())
      {
        back_to_start();
        return "";
      }
      else
        return result + read_text();
    }
  }

  void skip_object()
  {
    std::string const name = read_tag();
    bool const empty = self_closing_tag();
    skip_tag();
    if (empty)
      return;
    for (;;)
    {
      skip_whitespace();
      if (is_comment())
        skip_comment();
      else if (is_cdata())
        read_cdata();
      else if (is_opening_tag())
        skip_object();
      else if (is_closing_tag())
        break;
      else
        while (now() != '<')
          read_char();
    }
    if (read_tag() != name)
      throw PlainTag{name};
    skip_tag();
  }

  bool find_sub_tag(std::string const& name)
  {
    for (;;)
    {
      skip_whitespace();
      if (is_opening_tag())
      {
        if (is_tag_name(name))
          return true;
        skip_object();
      }
      else if (is_comment())
        skip_comment();
      else if (is_closing_tag())
      {
        back_to_start();
        return false;
      }
      else
      {
        read_char(); // a CDATA section begins with the '<' that is looked for
        while (now() != '<')
          read_char();
      }
    }
  }

  // The child that go_to_sub_tag hands out, in `child`.
  bool go_to_sub_tag(std::string const& name, PlainCursor& child)
  {
    if (!find_sub_tag(name))
      return false;
    child = PlainCursor(*text, pos);
    child.object_setup();
    return true;
  }

  void end_object()
  {
    if (find_sub_tag("Invalid"))
      throw PlainNeverEnds();
  }

  // The same without a name that is found.
  void skip_all_children() { find_sub_tag(std::string(1, '\0')); }

  void object_setup()
  {
    while (is_comment())
    {
      skip_comment();
      start = pos;
    }
    if (!is_opening_tag())
      throw PlainTag{"Initial tag"};
    skip_tag();
    skip_whitespace();
  }

  std::string initial_tag() const
  {
    PlainCursor scan(*text, start);
    while (scan.is_comment())
      scan.skip_comment();
    if (!scan.is_opening_tag())
      throw PlainTag{"Initial tag"};
    scan.skip_tag();
    scan.skip_whitespace();
    return scan.read_tag();
  }

  std::string find_attribute(std::string const& name, std::string const& default_value)
  {
    while (now() != ' ' && now() != '>')
      read_char();
    skip_whitespace();
    for (;;)
    {
      if (now() == '>')
        return default_value;
      std::string const found = read_string_to_char('=');
      skip_char('=');
      char const quote = read_char();
      std::string const value = read_string_to_char(quote);
      skip_char(quote);
      if (found == name)
        return value;
      skip_whitespace();
    }
  }

  std::string attribute(std::string const& name, std::string const& default_value) const
  {
    return PlainCursor(*text, start).find_attribute(name, default_value);
  }

  // The declaration cursor.

  std::string pseudo_attribute(std::string const& name)
  {
    skip_string(name);
    skip_char('=');
    char const quote = read_char();
    std::string const value = read_string_to_char(quote);
    skip_char(quote);
    return value;
  }

  std::string version()
  {
    pos = start;
    skip_string("<?xml");
    skip_whitespace();
    return pseudo_attribute("version");
  }

  std::string encoding()
  {
    version();
    skip_whitespace();
    std::string result;
    if (now() == 'e')
      result = pseudo_attribute("encoding");
    return result.empty() ? "utf-8" : result;
  }

  std::string standalone()
  {
    encoding();
    skip_whitespace();
    if (now() == 's')
      return pseudo_attribute("standalone");
    return "no";
  }

  std::size_t end_point()
  {
    pos = start;
    read_string_to_char('>');
    skip_char('>');
    skip_whitespace();
    while (is_comment())
    {
      skip_comment();
      skip_whitespace();
    }
    return pos;
  }

private:
  char at(std::size_t i) const { return text->c_str()[i]; }

  void back_to_start()
  {
    std::string const name = read_tag();
    pos = start;
    if (!is_tag_name(name))
      throw PlainTag{name};
    skip_tag();
  }

  std::string const* text;
  std::size_t pos;
  std::size_t start;
};
