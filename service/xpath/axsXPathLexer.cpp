#include "axsXPathLexer.h"

#include "axsXPathText.h"

#include <utXmlCharacter.h>

namespace
{
struct Symbol
{
  std::string_view text;
  axsXPathToken::Kind kind;
};

// The longer ones first where one begins like another.
Symbol const symbols[] = {{"..", axsXPathToken::dot_dot}, {"//", axsXPathToken::double_slash},
  {"!=", axsXPathToken::not_equal}, {"<=", axsXPathToken::less_equal}, {">=", axsXPathToken::greater_equal},
  {"(", axsXPathToken::left_parenthesis}, {")", axsXPathToken::right_parenthesis}, {"[", axsXPathToken::left_bracket},
  {"]", axsXPathToken::right_bracket}, {".", axsXPathToken::dot}, {"@", axsXPathToken::at}, {",", axsXPathToken::comma},
  {"/", axsXPathToken::slash}, {"|", axsXPathToken::bar}, {"+", axsXPathToken::plus}, {"-", axsXPathToken::minus},
  {"=", axsXPathToken::equal}, {"<", axsXPathToken::less}, {">", axsXPathToken::greater}};

Symbol const operator_names[] = {{"and", axsXPathToken::operator_and}, {"or", axsXPathToken::operator_or},
  {"mod", axsXPathToken::operator_mod}, {"div", axsXPathToken::operator_div}};

bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

bool is_node_type(std::string_view name) noexcept
{
  return name == "node" || name == "text" || name == "comment" || name == "processing-instruction";
}
}

axsXPathLexer::axsXPathLexer(std::string_view expression) noexcept : text(expression) {}

axsXPathToken axsXPathLexer::next() noexcept
{
  if (previous.kind == axsXPathToken::wrong)
    return previous;
  skip_space();
  previous = read();
  first = false;
  return previous;
}

axsXPathToken axsXPathLexer::read() noexcept
{
  if (at == text.size())
    return made(axsXPathToken::end, 0);

  bool const operator_expected = !first && !previous.expects_operand();
  char const c = text[at];
  if (c == '*' && operator_expected)
    return made(axsXPathToken::operator_multiply, 1);
  if (c == '*')
  {
    axsXPathToken star = made(axsXPathToken::name_test, 1);
    star.local = "*";
    return star;
  }
  if (c == '"' || c == '\'')
    return read_literal();
  if (is_digit(c) || (c == '.' && at + 1 < text.size() && is_digit(text[at + 1])))
    return read_number();
  if (c == '$')
    return read_variable();

  std::size_t next = at;
  if (axsXPathText::is_name_start(axsXPathText::next_character(text, next)))
    return operator_expected ? read_operator_name() : read_name();
  return read_symbol();
}

axsXPathToken axsXPathLexer::read_symbol() noexcept
{
  for (Symbol const& symbol : symbols)
    if (starts_with(symbol.text))
      return made(symbol.kind, symbol.text.size());
  return wrong(at, "this character cannot stand here");
}

axsXPathToken axsXPathLexer::read_literal() noexcept
{
  std::size_t const close = text.find(text[at], at + 1);
  if (close == std::string_view::npos)
    return wrong(at, "the literal is not closed");
  std::string_view const content = text.substr(at + 1, close - at - 1);
  axsXPathToken token = made(axsXPathToken::literal, content.size() + 2);
  token.local = content;
  return token;
}

axsXPathToken axsXPathLexer::read_number() noexcept
{
  std::size_t end = at;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  if (end < text.size() && text[end] == '.')
    ++end;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  std::string_view const digits = text.substr(at, end - at);
  axsXPathToken token = made(axsXPathToken::number, digits.size());
  token.local = digits;
  return token;
}

axsXPathToken axsXPathLexer::read_variable() noexcept
{
  axsXPathToken token = made(axsXPathToken::variable, 1);
  token.local = take_name();
  if (token.local.empty())
    return wrong(token.position, "a name is missing after '$'");
  if (!starts_with(":"))
    return token;
  ++at;
  token.prefix = token.local;
  token.local = take_name();
  return token.local.empty() ? wrong(at, "a name is missing after the prefix") : token;
}

axsXPathToken axsXPathLexer::read_name() noexcept
{
  axsXPathToken token = made(axsXPathToken::name_test, 0);
  token.local = take_name();
  if (starts_with(":") && !starts_with("::"))
  {
    ++at;
    token.prefix = token.local;
    token.local = starts_with("*") ? text.substr(at++, 1) : take_name();
    if (token.local.empty())
      return wrong(at, "a name or '*' is missing after the prefix");
  }

  std::size_t const end_of_name = at;
  skip_space();
  if (token.prefix.empty() && starts_with("::"))
  {
    at += 2;
    token.kind = axsXPathToken::axis_name;
    return token;
  }
  if (starts_with("(") && token.local != "*")
    token.kind =
      token.prefix.empty() && is_node_type(token.local) ? axsXPathToken::node_type : axsXPathToken::function_name;
  at = end_of_name;
  return token;
}

axsXPathToken axsXPathLexer::read_operator_name() noexcept
{
  std::size_t const position = at;
  std::string_view const name = take_name();
  for (Symbol const& candidate : operator_names)
  {
    if (name != candidate.text)
      continue;
    at = position;
    return made(candidate.kind, name.size());
  }
  return wrong(position, "an operator is missing before this name");
}

std::string_view axsXPathLexer::take_name() noexcept
{
  std::size_t const begin = at;
  for (std::size_t next = at; next < text.size(); at = next)
  {
    char32_t const c = axsXPathText::next_character(text, next);
    if (at == begin ? !axsXPathText::is_name_start(c) : !axsXPathText::is_name_character(c))
      break;
  }
  return text.substr(begin, at - begin);
}

void axsXPathLexer::skip_space() noexcept
{
  while (at < text.size() && utXmlCharacter::is_space(text[at]))
    ++at;
}

bool axsXPathLexer::starts_with(std::string_view wanted) const noexcept
{
  return text.substr(at, wanted.size()) == wanted;
}

axsXPathToken axsXPathLexer::made(axsXPathToken::Kind kind, std::size_t bytes) noexcept
{
  axsXPathToken token;
  token.kind = kind;
  token.position = at;
  at += bytes;
  return token;
}

axsXPathToken axsXPathLexer::wrong(std::size_t position, char const* problem) const noexcept
{
  axsXPathToken token;
  token.kind = axsXPathToken::wrong;
  token.position = position;
  token.problem = problem;
  return token;
}
