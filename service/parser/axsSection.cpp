#include "axsSection.h"

#include "axsCharacters.h"
#include "axsInputStack.h"
#include "axsMessages.h"

namespace
{
using namespace axsCharacters;

std::string_view between(char const* from, char const* to)
{
  return {from, static_cast<std::size_t>(to - from)};
}

// The hyphens at `p` end no comment.
void check_hyphens(axsInputStack const& in, char const* p)
{
  if (!begins(p, "--"))
    return;
  if (in.is_end(p + 2))
    in.unexpected(p + 2, axsMessages::comment_end);
  in.fail(p + 2, axsMessages::comment_hyphens);
}

// Up to `closing`, which begins with `first`.
template <char first>
std::string_view read(
  axsInputStack& in, char const*& p, std::string_view closing, char const* unended, std::string& normal)
{
  normal.clear();
  char const* const begin = p;
  char const* from = begin;
  while (true)
  {
    p = in.end_of_text<first>(p);
    if (*p == first)
    {
      if (begins(p, closing))
        break;
      if (first == '-')
        check_hyphens(in, p);
      ++p;
      continue;
    }
    if (in.is_end(p))
      in.unexpected(p, unended);
    char const* const special = p;
    if (in.pass_special(p) == axsInputStack::Special::characters)
      continue;
    in.check_controls(from, special);
    normal += between(from, special);
    normal += '\n';
    from = p;
  }
  in.check_controls(from, p);
  std::string_view data = between(begin, p);
  if (from != begin)
  {
    normal += between(from, p);
    data = normal;
  }
  p += closing.size();
  return data;
}

void check_target(axsInputStack const& in, char const* p, std::string_view target, bool is_before_root)
{
  if (is_equal_in_any_case(target, "xml"))
    in.fail(p, is_before_root && target == "xml" ? axsMessages::declaration_first : axsMessages::target_xml);
  // Namespaces in XML 1.0, 7
  if (target.find(':') != std::string_view::npos)
    in.fail(p, axsMessages::target_colon);
}
}

std::string_view axsSection::read_comment(axsInputStack& input, char const*& p, std::string& normal)
{
  return read<'-'>(input, p, "-->", axsMessages::comment_end, normal);
}

std::string_view axsSection::read_cdata(axsInputStack& input, char const*& p, std::string& normal)
{
  return read<']'>(input, p, "]]>", axsMessages::cdata_end, normal);
}

axsSection::Instruction axsSection::read_instruction(
  axsInputStack& input, char const*& p, std::string& normal, bool is_before_root)
{
  char const* const begin = p;
  if (!skip_name(p))
    input.unexpected(p, axsMessages::instruction_target);
  input.need(p);
  std::string_view const target = between(begin, p);
  check_target(input, p, target, is_before_root);
  if (!input.skip_spaces(p) && !begins(p, "?>"))
    input.unexpected(p, input.is_end(p) ? axsMessages::instruction_end : axsMessages::instruction_space);
  return {target, read<'?'>(input, p, "?>", axsMessages::instruction_end, normal)};
}
