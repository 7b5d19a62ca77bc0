#include "axsPatternParser.h"

#include "axsCodePoint.h"
#include "axsUnicode.h"

#include <utUtf8.h>

#include <algorithm>
#include <utility>

using Tree = axsPatternTree;

namespace
{
// What a backslash makes stand for itself (F.1.1, [24] SingleCharEsc), and what cannot do without.
std::u32string_view const escapable = U"\\|.?*+(){}-[]^";
std::u32string_view const metacharacters = U"?*+{}()|[]";

std::string utf8(char32_t c)
{
  std::string text;
  utUtf8::append(c, text);
  return text;
}

std::string quoted(char32_t c)
{
  return "'" + utf8(c) + "'";
}

bool is_digit(char32_t c) noexcept
{
  return c >= '0' && c <= '9';
}

void append(std::vector<axsCharacterSet::Range>& ranges, axsCharacterSet const& set)
{
  ranges.insert(ranges.end(), set.get().begin(), set.get().end());
}

// [\n\r] and the like
axsCharacterSet line_ends()
{
  return axsCharacterSet::of({{'\n', '\n'}, {'\r', '\r'}});
}

axsCharacterSet spaces()
{
  return axsCharacterSet::of({{'\t', '\n'}, {'\r', '\r'}, {' ', ' '}});
}

axsCharacterSet categories(std::initializer_list<char const*> names)
{
  std::vector<axsCharacterSet::Range> ranges;
  for (char const* const name : names)
  {
    axsCharacterSet set;
    if (axsUnicode::find_category(name, set))
      append(ranges, set);
  }
  return axsCharacterSet::of(std::move(ranges));
}

// The number, or the largest one if it is larger: no text is so long.
std::uint64_t number_of_digits(std::string_view digits) noexcept
{
  std::uint64_t number = 0;
  for (char const c : digits)
  {
    auto const digit = static_cast<std::uint64_t>(c - '0');
    if (number > (Tree::unbounded - 1 - digit) / 10)
      return Tree::unbounded - 1;
    number = number * 10 + digit;
  }
  return number;
}
}

axsPatternParser::axsPatternParser(std::string_view text, axsPattern::Fault& out) : fault(out)
{
  characters.reserve(text.size());
  for (std::size_t i = 0; i < text.size();)
    characters += axsCodePoint::next(text, i);
}

bool axsPatternParser::parse(axsPatternTree& into)
{
  tree = &into;
  groups.emplace_back();
  while (!at_end())
    if (!parse_piece())
      return false;
  if (groups.size() > 1)
    return fail(groups.back().place, "there is no ')' for this '('");
  tree->set_root(end_expression());
  return true;
}

// A parenthesis, a '|', or an atom with its quantifier.
bool axsPatternParser::parse_piece()
{
  if (is_next('('))
  {
    begin_group();
    return true;
  }
  if (is_next('|'))
  {
    ++at;
    end_branch();
    return true;
  }
  Index atom = Tree::none;
  if (is_next(')'))
  {
    if (groups.size() == 1)
      return fail(at, "there is no '(' for this ')'");
    ++at;
    atom = end_expression();
    groups.pop_back();
  }
  else if (!parse_atom(atom))
    return false;
  if (!parse_quantifier(atom))
    return false;
  add_piece(atom);
  return true;
}

void axsPatternParser::begin_group()
{
  groups.emplace_back();
  groups.back().place = at++;
}

void axsPatternParser::add_piece(Index piece)
{
  Group& group = groups.back();
  if (group.first_piece == Tree::none)
    group.first_piece = piece;
  else
    tree->link(group.last_piece, piece);
  group.last_piece = piece;
}

void axsPatternParser::end_branch()
{
  Group& group = groups.back();
  Index branch = group.first_piece;
  if (branch == Tree::none)
    branch = tree->add_empty();
  else if (branch != group.last_piece)
    branch = tree->add_sequence(branch);
  group.first_piece = group.last_piece = Tree::none;
  if (group.first_branch == Tree::none)
    group.first_branch = branch;
  else
    tree->link(group.last_branch, branch);
  group.last_branch = branch;
}

axsPatternParser::Index axsPatternParser::end_expression()
{
  end_branch();
  Group const& group = groups.back();
  return group.first_branch == group.last_branch ? group.first_branch : tree->add_choice(group.first_branch);
}

bool axsPatternParser::parse_atom(Index& atom)
{
  char32_t const c = characters[at];
  if (c == '[')
  {
    axsCharacterSet set;
    if (!parse_class(set))
      return false;
    atom = tree->add_set(number_of(set));
    return true;
  }
  if (c == '\\')
  {
    Escape escape;
    if (!parse_escape(escape))
      return false;
    atom = tree->add_set(escape.is_set ? number_of(escape.set) : number_of(escape.character));
    return true;
  }
  if (c == '?' || c == '*' || c == '+' || c == '{')
    return fail(at, "there is nothing before this " + quoted(c) + " that it could repeat; the character itself is '\\" +
                      utf8(c) + "'");
  if (metacharacters.find(c) != std::u32string_view::npos)
    return fail(at, "the character " + quoted(c) + " must be written '\\" + utf8(c) + "'");
  ++at;
  atom = tree->add_set(c == '.' ? number_of(line_ends().complement()) : number_of(c));
  return true;
}

bool axsPatternParser::parse_quantifier(Index& atom)
{
  if (at_end())
    return true;
  std::uint64_t min = 0;
  std::uint64_t max = Tree::unbounded;
  switch (characters[at])
  {
  case '?':
    max = 1;
    ++at;
    break;
  case '*':
    ++at;
    break;
  case '+':
    min = 1;
    ++at;
    break;
  case '{':
    if (!parse_counts(min, max))
      return false;
    break;
  default:
    return true;
  }
  atom = tree->add_repeat(atom, min, max);
  if (is_next('?') || is_next('*') || is_next('+') || is_next('{'))
    return fail(at, "a quantifier follows another one; what is to be repeated twice must stand in parentheses");
  return true;
}

// {n}, {n,} or {n,m}
bool axsPatternParser::parse_counts(std::uint64_t& min, std::uint64_t& max)
{
  std::size_t const place = at++;
  std::string least;
  std::string most;
  if (!parse_count(least))
    return fail(place, "a number must follow '{', as in {2}, {2,} or {2,5}; the character itself is '\\{'");
  min = number_of_digits(least);
  max = min;
  if (is_next(','))
  {
    ++at;
    max = parse_count(most) ? number_of_digits(most) : Tree::unbounded;
  }
  if (!is_next('}'))
    return fail(place, "there is no '}' for this '{'");
  ++at;
  bool const is_backwards = !most.empty() && (most.size() != least.size() ? most.size() < least.size() : most < least);
  return !is_backwards || fail(place, "the first number is greater than the second one");
}

// Digits, without the zeros before them. Whether there are any.
bool axsPatternParser::parse_count(std::string& digits)
{
  std::size_t const begin = at;
  for (; !at_end() && is_digit(characters[at]); ++at)
    if (!digits.empty() || characters[at] != '0')
      digits += static_cast<char>(characters[at]);
  if (at > begin && digits.empty())
    digits = "0";
  return at > begin;
}

// [13] charClassExpr: from what the first brackets have, all is taken that the ones in them have, and so on.
bool axsPatternParser::parse_class(axsCharacterSet& set)
{
  std::vector<axsCharacterSet> parts;
  std::size_t const place = at;
  bool is_subtracted = true;
  while (is_subtracted)
  {
    ++at;
    ClassPart part;
    if (!parse_class_part(part, is_subtracted))
      return false;
    axsCharacterSet const positive = axsCharacterSet::of(std::move(part.ranges));
    parts.push_back(part.negative ? positive.complement() : positive);
  }
  for (std::size_t i = 0; i < parts.size(); ++i, ++at)
    if (!is_next(']'))
      return fail(place, "there is no ']' for this '['");
  set = std::move(parts.back());
  for (parts.pop_back(); !parts.empty(); parts.pop_back())
    set = parts.back().without(set);
  return true;
}

// Up to the ']', or to the '[' of what is subtracted.
bool axsPatternParser::parse_class_part(ClassPart& part, bool& is_subtracted)
{
  std::size_t const place = at - 1;
  part.negative = is_next('^');
  at += part.negative ? 1 : 0;
  while (!at_end() && !is_next(']'))
  {
    is_subtracted = is_next('-') && is_next('[', 1);
    if (is_subtracted)
    {
      ++at;
      return part.items > 0 || fail(place, "there is nothing in the brackets from which something could be taken");
    }
    if (!parse_class_item(part))
      return false;
  }
  is_subtracted = false;
  if (at_end())
    return fail(place, "there is no ']' for this '['");
  return part.items > 0 || fail(place, "there is nothing in the brackets");
}

// A '-' stands for itself at the beginning and at the end only (F.1, [17] charRange).
bool axsPatternParser::begins_literal_hyphen(ClassPart const& part) const noexcept
{
  return part.items == 0 || is_next(']', 1) || (is_next('-', 1) && is_next('[', 2));
}

bool axsPatternParser::parse_class_item(ClassPart& part)
{
  std::size_t const place = at;
  char32_t const c = characters[at];
  if (c == '[')
    return fail(place, "the character '[' must be written '\\[' in brackets");
  if (c == '-' && !begins_literal_hyphen(part))
    return fail(place, "the character '-' must be written '\\-' in brackets, but for their beginning and end");
  ++part.items;
  char32_t first = c;
  if (c == '\\')
  {
    Escape escape;
    if (!parse_escape(escape))
      return false;
    if (escape.is_set)
    {
      append(part.ranges, escape.set);
      return true;
    }
    first = escape.character;
  }
  else
    ++at;
  char32_t last = first;
  bool const is_range =
    c != '-' && is_next('-') && !is_next(']', 1) && !is_next('[', 1) && !(is_next('-', 1) && is_next('[', 2));
  if (is_range && !parse_range_end(last))
    return false;
  if (last < first)
    return fail(place, "the range from " + quoted(first) + " to " + quoted(last) + " goes backwards");
  part.ranges.push_back({first, last});
  return true;
}

bool axsPatternParser::parse_range_end(char32_t& last)
{
  std::size_t const place = ++at;
  if (at_end())
    return true;
  if (is_next('-'))
    return fail(place, "the character '-' must be written '\\-' as the end of a range");
  if (!is_next('\\'))
  {
    last = characters[at++];
    return true;
  }
  Escape escape;
  if (!parse_escape(escape))
    return false;
  last = escape.character;
  return !escape.is_set || fail(place, "a range must end with one character");
}

bool axsPatternParser::parse_escape(Escape& escape)
{
  std::size_t const place = at++;
  if (at_end())
    return fail(place, "nothing follows the '\\'");
  char32_t const letter = characters[at++];
  if (letter == 'p' || letter == 'P')
  {
    if (!parse_property(escape))
      return false;
    if (letter == 'P')
      escape.set = escape.set.complement();
    return true;
  }
  if (find_set_escape(letter, escape.set))
  {
    escape.is_set = true;
    return true;
  }
  escape.character = letter == 'n' ? U'\n' : letter == 'r' ? U'\r' : letter == 't' ? U'\t' : letter;
  return escape.character != letter || escapable.find(letter) != std::u32string_view::npos ||
         fail(place, "there is no '\\" + utf8(letter) + "'");
}

// [26] charProp: a category, or "Is" and a block.
bool axsPatternParser::parse_property(Escape& escape)
{
  std::size_t const place = at - 2;
  std::size_t const end = characters.find(U'}', at);
  if (!is_next('{') || end == std::u32string::npos)
    return fail(place, "a name in braces must follow, as in \\p{Lu} or \\p{IsBasicLatin}");
  std::string name;
  for (++at; at < end; ++at)
    utUtf8::append(characters[at], name);
  ++at;
  escape.is_set = true;
  auto const known = properties.find(name);
  if (known != properties.end())
  {
    escape.set = known->second;
    return true;
  }
  bool const is_block = name.compare(0, 2, "Is") == 0;
  bool const found = is_block ? axsUnicode::find_block(std::string_view(name).substr(2), escape.set)
                              : axsUnicode::find_category(name, escape.set);
  if (!found)
    return fail(
      place, (is_block ? "there is no block of characters '" : "there is no category of characters '") + name + "'");
  properties.emplace(std::move(name), escape.set);
  return true;
}

// [37] MultiCharEsc
bool axsPatternParser::find_set_escape(char32_t letter, axsCharacterSet& set)
{
  bool const is_capital = letter >= 'A' && letter <= 'Z';
  std::string const name(1, static_cast<char>(letter | 0x20));
  if (letter >= 0x80 || std::string_view("sicdw").find(name.front()) == std::string_view::npos)
    return false;
  auto known = properties.find("\\" + name);
  if (known == properties.end())
  {
    axsCharacterSet found;
    switch (name.front())
    {
    case 's':
      found = spaces();
      break;
    case 'i':
      found = axsUnicode::name_starts();
      break;
    case 'c':
      found = axsUnicode::name_parts();
      break;
    case 'd':
      found = categories({"Nd"});
      break;
    default:
      found = categories({"P", "Z", "C"}).complement();
      break;
    }
    known = properties.emplace("\\" + name, std::move(found)).first;
  }
  set = is_capital ? known->second.complement() : known->second;
  return true;
}

axsPatternParser::Index axsPatternParser::number_of(axsCharacterSet const& set)
{
  auto const [place, is_new] = numbers.emplace(set, Tree::none);
  if (is_new)
    place->second = tree->add_characters(set);
  return place->second;
}

axsPatternParser::Index axsPatternParser::number_of(char32_t character)
{
  auto const [place, is_new] = numbers_of_characters.emplace(character, 0);
  if (is_new)
    place->second = number_of(axsCharacterSet(character));
  return place->second;
}

bool axsPatternParser::fail(std::size_t place, std::string text)
{
  fault.character = place + 1;
  fault.text = std::move(text);
  return false;
}
