#include "apStringFormatter.h"

#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <string>

namespace
{
// One directive of a pattern, taken apart.
struct Directive
{
  std::string flags;
  int width = -1;     // -1: none
  int precision = -1; // -1: none
  std::string length;
  wchar_t conversion = 0;
};

// Whether the conversion is known, and goes with this length.
bool is_known(Directive const& directive)
{
  std::string const& length = directive.length;
  switch (directive.conversion)
  {
  case L'd':
  case L'i':
  case L'u':
  case L'x':
  case L'X':
  case L'o':
    return length.size() < 2 || length == "hh" || length == "ll";
  case L'e':
  case L'E':
  case L'f':
  case L'F':
  case L'g':
  case L'G':
  case L'c':
    return length.empty() || length == "l";
  case L's':
    return length.empty() || length == "l" || length == "h";
  case L'p':
  case L'%':
    return length.empty();
  default:
    return false;
  }
}

bool contains(char const* set, wchar_t c)
{
  for (; *set != '\0'; ++set)
    if (static_cast<wchar_t>(*set) == c)
      return true;
  return false;
}

// Holds the arguments, so that they can be handed on by reference.
struct Arguments
{
  std::va_list list;
};

int read_number(wchar_t const*& at, Arguments& arguments)
{
  if (*at == L'*')
  {
    ++at;
    return va_arg(arguments.list, int);
  }
  int number = 0;
  for (; *at >= L'0' && *at <= L'9'; ++at)
    if (number < 100000000)
      number = number * 10 + static_cast<int>(*at - L'0');
  return number;
}

// Reads the directive after a percent sign and moves `at` to its end.
Directive read_directive(wchar_t const*& at, Arguments& arguments)
{
  Directive directive;
  while (*at != 0 && contains("-+ #0", *at))
    directive.flags += static_cast<char>(*at++);

  if (*at == L'*' || (*at >= L'0' && *at <= L'9'))
  {
    directive.width = read_number(at, arguments);
    if (directive.width < 0)
    {
      directive.flags += '-';
      directive.width = directive.width == INT_MIN ? INT_MAX : -directive.width;
    }
  }
  if (*at == L'.')
  {
    ++at;
    directive.precision = read_number(at, arguments);
  }
  while (*at != 0 && contains("hljzt", *at) && directive.length.size() < 2)
    directive.length += static_cast<char>(*at++);
  directive.conversion = *at;
  return directive;
}

template <class T>
std::wstring formatted(Directive const& directive, char const* length, T value)
{
  std::string pattern = "%" + directive.flags;
  if (directive.width >= 0)
    pattern += std::to_string(directive.width);
  if (directive.precision >= 0)
    pattern += "." + std::to_string(directive.precision);
  pattern += length;
  pattern += static_cast<char>(directive.conversion);

  int const size = std::snprintf(nullptr, 0, pattern.c_str(), value);
  if (size < 0)
    return {};
  std::string narrow(static_cast<std::size_t>(size) + 1, '\0');
  std::snprintf(narrow.data(), narrow.size(), pattern.c_str(), value);
  narrow.pop_back();
  return std::wstring(narrow.begin(), narrow.end());
}

// A number as the C library writes it in the current locale, with '.' in the place of the locale's decimal point: that
// is the one run of characters that no other part of a number can hold.
std::wstring with_point(std::wstring const& number)
{
  std::wstring result;
  bool in_point = false;
  for (wchar_t const c : number)
  {
    bool const plain = (c >= L'0' && c <= L'9') || (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'+' ||
                       c == L'-' || c == L' ';
    if (plain)
      result += c;
    else if (!in_point)
      result += L'.';
    in_point = !plain;
  }
  return result;
}

std::wstring padded(Directive const& directive, std::wstring text)
{
  auto const width = static_cast<std::size_t>(directive.width < 0 ? 0 : directive.width);
  if (text.size() >= width)
    return text;
  bool const left = directive.flags.find('-') != std::string::npos;
  text.insert(left ? text.size() : 0, width - text.size(), L' ');
  return text;
}

std::wstring signed_number(Directive const& directive, Arguments& arguments)
{
  std::string const& length = directive.length;
  std::intmax_t value = 0;
  if (length == "ll")
    value = va_arg(arguments.list, long long);
  else if (length == "l")
    value = va_arg(arguments.list, long);
  else if (length == "j")
    value = va_arg(arguments.list, std::intmax_t);
  else if (length == "z" || length == "t")
    value = va_arg(arguments.list, std::ptrdiff_t);
  else if (length == "h")
    value = static_cast<short>(va_arg(arguments.list, int));
  else if (length == "hh")
    value = static_cast<signed char>(va_arg(arguments.list, int)); // NOLINT(bugprone-signed-char-misuse): a number
  else
    value = va_arg(arguments.list, int);
  return formatted(directive, "j", value);
}

std::wstring unsigned_number(Directive const& directive, Arguments& arguments)
{
  std::string const& length = directive.length;
  std::uintmax_t value = 0;
  if (length == "ll")
    value = va_arg(arguments.list, unsigned long long);
  else if (length == "l")
    value = va_arg(arguments.list, unsigned long);
  else if (length == "j")
    value = va_arg(arguments.list, std::uintmax_t);
  else if (length == "z" || length == "t")
    value = va_arg(arguments.list, std::size_t);
  else if (length == "h")
    value = static_cast<unsigned short>(va_arg(arguments.list, unsigned int));
  else if (length == "hh")
    value = static_cast<unsigned char>(va_arg(arguments.list, unsigned int));
  else
    value = va_arg(arguments.list, unsigned int);
  return formatted(directive, "j", value);
}

std::wstring text(Directive const& directive, Arguments& arguments)
{
  std::wstring whole;
  if (directive.length == "h")
  {
    char const* const narrow = va_arg(arguments.list, char const*);
    whole = apString(narrow == nullptr ? "(null)" : narrow).c_str();
  }
  else
  {
    wchar_t const* const wide = va_arg(arguments.list, wchar_t const*);
    if (wide == nullptr)
      whole = L"(null)";
    else if (directive.precision >= 0)
      // With a precision the text need not be closed by a NUL.
      for (int i = 0; i < directive.precision && wide[i] != 0; ++i)
        whole += wide[i];
    else
      whole = wide;
  }
  if (directive.precision >= 0 && whole.size() > static_cast<std::size_t>(directive.precision))
    whole.resize(static_cast<std::size_t>(directive.precision));
  return padded(directive, whole);
}

std::wstring character(Directive const& directive, Arguments& arguments)
{
  // Narrower than int, wide characters are passed as int.
  if constexpr (sizeof(wchar_t) < sizeof(int))
    return padded(directive, std::wstring(1, static_cast<wchar_t>(va_arg(arguments.list, int))));
  else
    return padded(directive, std::wstring(1, static_cast<wchar_t>(va_arg(arguments.list, std::wint_t))));
}

// What a known directive makes of its argument.
std::wstring converted(Directive const& directive, Arguments& arguments)
{
  switch (directive.conversion)
  {
  case L'd':
  case L'i':
    return signed_number(directive, arguments);
  case L'u':
  case L'x':
  case L'X':
  case L'o':
    return unsigned_number(directive, arguments);
  case L'p':
    return formatted(directive, "", va_arg(arguments.list, void*));
  case L'c':
    return character(directive, arguments);
  case L's':
    return text(directive, arguments);
  case L'%':
    return L"%";
  default:
    return with_point(formatted(directive, "", va_arg(arguments.list, double)));
  }
}

std::wstring filled_in(wchar_t const* pattern, Arguments& arguments)
{
  std::wstring result;
  for (wchar_t const* at = pattern; *at != 0;)
  {
    if (*at != L'%')
    {
      result += *at++;
      continue;
    }
    wchar_t const* const start = at++;
    Directive const directive = read_directive(at, arguments);
    if (!is_known(directive))
      return result + start;
    result += converted(directive, arguments);
    ++at;
  }
  return result;
}
}

apString apStringFormatter::format(wchar_t const* format, ...)
{
  Arguments arguments;
  va_start(arguments.list, format);
  try
  {
    apString made(std::wstring_view(filled_in(format, arguments)));
    va_end(arguments.list);
    return made;
  }
  catch (...)
  {
    va_end(arguments.list);
    throw;
  }
}
