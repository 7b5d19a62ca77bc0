#include "axsExternalId.h"

#include "axsCharacters.h"

#include <algorithm>
#include <string_view>

namespace
{
using namespace axsCharacters;

// 2.3, [13] PubidChar
bool is_public_id_character(char c)
{
  return is(c, name) || std::string_view(" '()+,/=?;!*#@$%").find(c) != std::string_view::npos;
}

bool skip_public_id(char const*& at)
{
  std::string_view id;
  return skip_spaces(at) && read_literal(at, id) && std::all_of(id.begin(), id.end(), is_public_id_character);
}

bool skip_system_id(char const*& at)
{
  std::string_view id;
  return skip_spaces(at) && read_literal(at, id);
}
}

bool axsExternalId::skip(char const*& at)
{
  if (axsCharacters::skip(at, "PUBLIC"))
    return skip_public_id(at) && skip_system_id(at);
  return axsCharacters::skip(at, "SYSTEM") && skip_system_id(at);
}

bool axsExternalId::skip_of_notation(char const*& at)
{
  if (!axsCharacters::skip(at, "PUBLIC"))
    return skip(at);
  if (!skip_public_id(at))
    return false;
  skip_spaces(at);
  std::string_view id;
  return *at == '>' || (is(at[-1], space) && read_literal(at, id));
}
