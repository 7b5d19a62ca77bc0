#include "NamespaceHint.h"

#include "BuiltInEngine.h"

namespace
{
bool is_name_character(char c)
{
  return c == '_' || c == '-' || c == '.' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
         (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

bool is_name_start(char c)
{
  return is_name_character(c) && c != '-' && c != '.' && (c < '0' || c > '9');
}

// What decides whether the name that ends at `end` is that of elements.
bool is_element_name(std::string const& xpath, std::size_t begin, std::size_t end)
{
  char const before = begin == 0 ? ' ' : xpath[begin - 1];
  std::size_t const next = xpath.find_first_not_of(" \t\r\n", end);
  char const after = next == std::string::npos ? ' ' : xpath[next];
  return before != '$' && before != '@' && before != ':' && after != '(' && after != ':';
}

std::string text_of(axmNode& root, std::string const& xpath)
{
  return built_in_answer(root, xpath).value.value_or(std::string());
}
}

std::vector<std::string> NamespaceHint::names_in(std::string const& xpath)
{
  std::vector<std::string> names;
  for (std::size_t at = 0; at < xpath.size();)
  {
    char const c = xpath[at];
    std::size_t end = at + 1;
    if (c == '"' || c == '\'')
      end = xpath.find(c, at + 1) + 1; // of what is an expression, every literal ends
    else if (is_name_character(c))
    {
      while (end < xpath.size() && is_name_character(xpath[end]))
        ++end;
      if (is_name_start(c) && is_element_name(xpath, at, end))
        names.push_back(xpath.substr(at, end - at));
    }
    if (end <= at)
      break;
    at = end;
  }
  return names;
}

std::string NamespaceHint::of(axmNode& root, std::string const& xpath)
{
  for (std::string const& name : names_in(xpath))
  {
    std::string const space = text_of(root, "namespace-uri(//*[local-name()='" + name + "'])");
    bool const is_without = text_of(root, "boolean(//*[local-name()='" + name + "' and namespace-uri()=''])") == "true";
    if (!space.empty() && !is_without)
      return "; the element " + name + " is in the namespace " + space + ": give --ns p=" + space +
             " and ask for p:" + name;
  }
  return std::string();
}
