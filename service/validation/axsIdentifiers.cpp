#include "axsIdentifiers.h"

#include "axsShownText.h"

std::string axsIdentifiers::add(axsValue const& value, axsPlace place)
{
  std::string wrong;
  for (axsValue::Identifier const& identifier : value.identifiers())
  {
    bool const is_id = identifier.kind == axsValue::Reference::id;
    std::size_t const number = (is_id ? ids : references).insert(identifier.name);
    std::vector<axsPlace>& known = is_id ? places : places_of_references;
    if (number == known.size())
      known.push_back(place);
    else if (is_id && wrong.empty())
      wrong = "ID value '" + axsShownText::shortened(identifier.name) + "' is not unique; first at line " +
              std::to_string(known[number].line);
  }
  return wrong;
}

void axsIdentifiers::check_references(
  std::function<void(std::string const& message, axsPlace place)> const& report) const
{
  for (std::size_t i = 0; i < references.size(); ++i)
    if (ids.find(references[i]) == axsValueSet::none)
      report("there is no ID '" + axsShownText::shortened(references[i]) + "', to which an IDREF refers",
        places_of_references[i]);
}
