#include "Namespaces.h"

std::string wrong_namespace(std::string const& space)
{
  std::size_t const sign = space.find('=');
  bool const is_good = sign != std::string::npos && sign > 0 && space.find(':') >= sign;
  return is_good ? std::string() : space + " is not of the form P=URI";
}

std::map<std::string, std::string> namespaces_of(std::vector<std::string> const& spaces)
{
  std::map<std::string, std::string> all;
  for (std::string const& space : spaces)
    all[space.substr(0, space.find('='))] = space.substr(space.find('=') + 1);
  return all;
}
