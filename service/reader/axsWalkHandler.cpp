#include "axsWalkHandler.h"

#include "axsName.h"
#include "axsStartTag.h"

void axsWalkHandler::Attributes::assign(axsStartTag const& tag)
{
  std::size_t size = 0;
  for (axsTagAttribute const& attribute : *tag.attributes)
    size += attribute.value.size();
  values.clear();
  // The views stay where they point to.
  values.reserve(size);
  attributes.clear();
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    char const* const begin = values.data() + values.size();
    values += attribute.value;
    attributes.push_back({attribute.name, {begin, attribute.value.size()}});
  }
}

std::string_view const* axsWalkHandler::Attributes::find(std::string_view name) const noexcept
{
  for (Attribute const& attribute : attributes)
    if (attribute.name->utf8() == name)
      return &attribute.value;
  return nullptr;
}

void axsWalkHandler::look_for(std::string_view const* name, Attributes& to) noexcept
{
  wanted = name;
  found = &to;
  first = nullptr;
  is_found = false;
}

std::string_view axsWalkHandler::first_name() const noexcept
{
  return first->utf8();
}

void axsWalkHandler::start_element(axsStartTag const& tag)
{
  ++open;
  if (first != nullptr || found == nullptr)
    return;
  first = tag.name;
  is_found = wanted == nullptr || tag.name->utf8() == *wanted;
  if (is_found)
    found->assign(tag);
}

void axsWalkHandler::text(std::string_view text, bool)
{
  if (texts != nullptr)
    *texts += text;
}
