#include "axsContentFault.h"

#include "axsUtf16.h"

#include <xercesc/framework/XMLContentModel.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/common/ContentSpecNode.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>

#include <algorithm>

namespace
{
using Spec = xercesc::ContentSpecNode;

// More names tell a reader nothing.
std::size_t const most_names = 12;

// How many children may be looked at to find out what is expected.
std::size_t const most_work = std::size_t{10} * 1000 * 1000;

// Wildcards of all kinds (processContents) have one of these in their lower bits.
bool is_wildcard(Spec const& spec)
{
  int const kind = spec.getType() & 0xF;
  return kind == Spec::Any || kind == Spec::Any_Other || kind == Spec::Any_NS;
}

std::string listed(std::vector<std::string> const& items)
{
  std::string list;
  for (std::size_t i = 0; i < items.size(); ++i)
    list += (i == 0 ? "" : i + 1 == items.size() ? " or " : ", ") + items[i];
  return list;
}
}

axsContentFault::axsContentFault(
  xercesc::SchemaElementDecl const& element, xercesc::GrammarResolver& grammars, unsigned int no_namespace)
  : type(element.getComplexTypeInfo()),
    known(grammars),
    empty_namespace(no_namespace)
{
}

std::optional<std::size_t> axsContentFault::first_wrong(Names const& children) const
{
  xercesc::XMLContentModel const* const model = type == nullptr ? nullptr : type->getContentModel();
  if (model == nullptr)
    return std::nullopt;
  XMLSize_t failing = 0;
  // It does not change the names.
  auto** const names = const_cast<xercesc::QName**>(children.data());
  bool const is_right =
    model->validateContentSpecial(names, children.size(), empty_namespace, &known, known.getStringPool(), &failing);
  return is_right ? std::nullopt : std::optional<std::size_t>(failing);
}

std::string axsContentFault::words(XMLCh const* parent, Names const& children, std::size_t wrong) const
{
  Names const before(children.begin(), children.begin() + static_cast<std::ptrdiff_t>(wrong));
  xercesc::QName const* const child = wrong < children.size() ? children[wrong] : nullptr;
  std::string const in_parent = "'" + axsUtf16::to_utf8(parent) + "'";
  std::string const list = expected(before, child);
  bool const is_named_so = list.find(" namespace") != std::string::npos;
  std::string const what = child == nullptr ? "element " + in_parent + " ends too early"
                                            : "element " + shown(*child, is_named_so ? child : nullptr) +
                                                " may not stand here in " + in_parent;
  return list.empty() ? what : what + "; expected is " + list;
}

// With its namespace if that is what it differs in from another name.
std::string axsContentFault::shown(xercesc::QName const& name, xercesc::QName const* other) const
{
  std::string local = "'" + axsUtf16::to_utf8(name.getLocalPart()) + "'";
  if (other == nullptr || !xercesc::XMLString::equals(name.getLocalPart(), other->getLocalPart()))
    return local;
  XMLCh const* const uri =
    name.getURI() == empty_namespace ? nullptr : known.getStringPool()->getValueForId(name.getURI());
  return uri == nullptr || *uri == 0 ? local + " in no namespace"
                                     : local + " of the namespace '" + axsUtf16::to_utf8(uri) + "'";
}

std::string axsContentFault::expected(Names const& before, xercesc::QName const* found) const
{
  std::vector<std::string> items;
  for (xercesc::QName const* const name : accepted_behind(before))
    items.push_back(shown(*name, found));
  if (!items.empty() && !first_wrong(before))
    items.push_back("the end of the element");
  if (items.size() > most_names)
  {
    items.resize(most_names - 1);
    items.push_back("others");
  }
  return listed(items);
}

axsContentFault::Names axsContentFault::accepted_behind(Names before) const
{
  std::size_t const place = before.size();
  Names accepted;
  Names const possible = candidates();
  if (possible.size() * (place + 1) > most_work)
    return accepted;
  before.push_back(nullptr);
  for (xercesc::QName* const name : possible)
  {
    before.back() = name;
    std::optional<std::size_t> const wrong = first_wrong(before);
    if (!wrong || *wrong > place)
      accepted.push_back(name);
  }
  return accepted;
}

axsContentFault::Names axsContentFault::candidates() const
{
  Names found;
  std::vector<Spec*> waiting;
  if (type != nullptr && type->getContentSpec() != nullptr)
    waiting.push_back(type->getContentSpec());
  for (std::size_t work = 0; !waiting.empty(); ++work)
  {
    Spec& spec = *waiting.back();
    waiting.pop_back();
    if (is_wildcard(spec) || work > most_work)
      return {};
    xercesc::QName* const name = spec.getElement();
    bool const is_element =
      spec.getType() == Spec::Leaf && name != nullptr && name->getURI() != xercesc::XMLElementDecl::fgPCDataElemId;
    if (is_element && std::none_of(found.begin(), found.end(), [&](xercesc::QName* other) { return *other == *name; }))
      found.push_back(name);
    for (Spec* const part : {spec.getSecond(), spec.getFirst()})
      if (part != nullptr)
        waiting.push_back(part);
  }
  return found;
}
