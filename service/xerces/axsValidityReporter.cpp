#include "axsValidityReporter.h"

#include "axsErrorReporter.h"
#include "axsPlainWords.h"
#include "axsUtf16.h"
#include "axsValueFault.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>

#include <algorithm>

namespace
{
using Codes = xercesc::XMLValid::Codes;

// As much of a text as is needed to say what is wrong with it.
std::size_t const longest_content = 4096;

std::string quoted(std::string const& name)
{
  return "'" + name + "'";
}

std::string element_subject(XMLCh const* name)
{
  return "element " + quoted(axsUtf16::to_utf8(name));
}

xercesc::SchemaElementDecl const* schema_decl(xercesc::XMLElementDecl const& decl)
{
  return decl.getObjectType() == xercesc::XMLElementDecl::Schema ? static_cast<xercesc::SchemaElementDecl const*>(&decl)
                                                                 : nullptr;
}

xercesc::DatatypeValidator* type_of_content(xercesc::SchemaElementDecl const& decl)
{
  xercesc::ComplexTypeInfo const* const complex = decl.getComplexTypeInfo();
  return complex == nullptr ? decl.getDatatypeValidator() : complex->getDatatypeValidator();
}

// The type of an attribute, as its element declares it or, where that lets any in, as it is declared by itself.
xercesc::DatatypeValidator* type_of(
  xercesc::XMLAttr const& attribute, xercesc::SchemaElementDecl const& decl, xercesc::GrammarResolver& grammars)
{
  xercesc::SchemaAttDef const* declared = decl.getAttDef(attribute.getName(), static_cast<int>(attribute.getURIId()));
  if (declared == nullptr)
  {
    XMLCh const* const name_space = grammars.getStringPool()->getValueForId(attribute.getURIId());
    xercesc::Grammar* const grammar = name_space == nullptr ? nullptr : grammars.getGrammar(name_space);
    if (grammar == nullptr || grammar->getGrammarType() != xercesc::Grammar::SchemaGrammarType)
      return nullptr;
    auto* const declarations = static_cast<xercesc::SchemaGrammar*>(grammar)->getAttributeDeclRegistry();
    declared = declarations == nullptr
                 ? nullptr
                 : static_cast<xercesc::SchemaAttDef const*>(declarations->get(attribute.getName()));
  }
  return declared == nullptr ? nullptr : declared->getDatatypeValidator();
}

bool names_type(xercesc::XMLAttr const& attribute, xercesc::GrammarResolver& grammars)
{
  return xercesc::XMLString::equals(attribute.getName(), xercesc::SchemaSymbols::fgATT_TYPE) &&
         xercesc::XMLString::equals(
           grammars.getStringPool()->getValueForId(attribute.getURIId()), xercesc::SchemaSymbols::fgURI_XSI);
}
}

void axsValidityReporter::start(xercesc::Locator const& where, unsigned int no_namespace)
{
  locator = &where;
  empty_namespace = no_namespace;
}

void axsValidityReporter::error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text,
  XMLCh const* system_id, XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type == ErrType_Warning || found)
    return;
  bool const is_value = xercesc::XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain);
  bool const is_validity = xercesc::XMLString::equals(domain, xercesc::XMLUni::fgValidityDomain);
  std::string const said = axsUtf16::to_utf8(text);
  axsReadError made = axsErrorReporter::make(
    apString::from_utf8(is_validity ? axsPlainWords::of_validity(code, said) : said), system_id, line, column);
  if (type == ErrType_Fatal)
    throw made;

  About about = is_value ? About::value : About::other;
  if (is_validity && (code == Codes::ElementNotValidForContent || code == Codes::NotEnoughElemsForCM ||
                       code == Codes::EmptyNotValidForContent))
    about = About::children;
  else if (is_validity && code == Codes::ElementNotDefined)
    about = About::undeclared_element;
  found = Found{made, about, code, said};
  // Of such a text nothing more is told.
  if (is_validity && code == Codes::NoCharDataInCM && !open.empty())
    fail(element_subject(open.back().name));
}

void axsValidityReporter::finish() const
{
  if (found)
    throw found->error;
}

void axsValidityReporter::fail(std::string const& subject) const
{
  std::string const name = subject.substr(subject.rfind(' ') + 1);
  std::string const message = found->error.message.to_utf8().c_str();
  fail_with(message.find(name) == std::string::npos ? subject + ": " + message : message);
}

void axsValidityReporter::fail_with(std::string const& message) const
{
  axsReadError error = found->error;
  error.message = apString::from_utf8(message);
  throw error;
}

void axsValidityReporter::docCharacters(XMLCh const* text, XMLSize_t length, bool)
{
  if (found && !open.empty())
    fail(element_subject(open.back().name));
  if (content.size() < longest_content)
    content.append(text, std::min<std::size_t>(length, longest_content));
}

void axsValidityReporter::ignorableWhitespace(XMLCh const* text, XMLSize_t length, bool cdata)
{
  docCharacters(text, length, cdata);
}

void axsValidityReporter::startElement(xercesc::XMLElementDecl const& decl, unsigned int, XMLCh const*,
  xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count, bool is_empty, bool)
{
  content.clear();
  Element element{schema_decl(decl), decl.getBaseName(), false, children.size()};
  for (XMLSize_t i = 0; i < count; ++i)
    element.has_own_type = element.has_own_type || names_type(*attributes.elementAt(i), known);
  if (!found)
    return open_element(element, is_empty);

  if (found->about == About::undeclared_element)
    explain_undeclared(decl);
  if (found->about == About::children)
    explain_children(element);
  if (found->about == About::value)
    explain_attribute(element, attributes, count);
  if (found->about == About::value && is_empty)
    explain_content(element);
  fail(element_subject(element.name));
}

void axsValidityReporter::open_element(Element const& element, bool is_empty)
{
  if (open.size() == most_levels)
  {
    axsReadError error = current_place();
    error.message = APSTRING("Elements are nested more than 20000 levels deep, which is not validated");
    throw error;
  }
  if (element.decl != nullptr && !open.empty())
    children.push_back({const_cast<xercesc::QName*>(element.decl->getElementName()), locator->getSystemId(),
      locator->getLineNumber(), locator->getColumnNumber()});
  if (is_empty)
    return;
  open.push_back(element);
  open.back().first_child = children.size();
}

void axsValidityReporter::endElement(xercesc::XMLElementDecl const& decl, unsigned int, bool, XMLCh const*)
{
  Element const& element = open.back();
  if (found)
  {
    if (found->about == About::children)
      explain_children(element);
    if (found->about == About::value)
      explain_content(element);
    fail(element_subject(decl.getBaseName()));
  }
  children.resize(element.first_child);
  open.pop_back();
  content.clear();
}

axsContentFault::Names axsValidityReporter::children_of(Element const& element) const
{
  axsContentFault::Names names;
  for (std::size_t i = element.first_child; i < children.size(); ++i)
    names.push_back(children[i].name);
  return names;
}

// Nothing is told where the element is not of the type that it is declared with.
void axsValidityReporter::explain_children(Element const& element)
{
  if (element.decl == nullptr || element.has_own_type)
    return;
  axsContentFault const fault(*element.decl, known, empty_namespace);
  axsContentFault::Names const names = children_of(element);
  std::optional<std::size_t> const wrong = fault.first_wrong(names);
  if (!wrong || *wrong > names.size())
    return;
  if (*wrong < names.size())
    move_to(children[element.first_child + *wrong]);
  fail_with(fault.words(element.name, names, *wrong));
}

// The validator itself tells the place where the parent ends.
void axsValidityReporter::move_to(Child const& child)
{
  if (child.file != locator->getSystemId())
    return;
  axsReadError const place = axsErrorReporter::make(apString(), child.file, child.line, child.column);
  found->error.line = place.line;
  found->error.column = place.column;
}

// An element that is not declared mostly is one that stands where others are expected.
void axsValidityReporter::explain_undeclared(xercesc::XMLElementDecl const& decl) const
{
  if (open.empty() || open.back().decl == nullptr || open.back().has_own_type)
    return;
  Element const& parent = open.back();
  axsContentFault const fault(*parent.decl, known, empty_namespace);
  axsContentFault::Names names = children_of(parent);
  std::size_t const place = names.size();
  names.push_back(const_cast<xercesc::QName*>(decl.getElementName()));
  if (fault.first_wrong(names) == place)
    fail_with(fault.words(parent.name, names, place));
}

void axsValidityReporter::explain_attribute(
  Element const& element, xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count) const
{
  for (XMLSize_t i = 0; element.decl != nullptr && i < count; ++i)
  {
    xercesc::XMLAttr const& attribute = *attributes.elementAt(i);
    xercesc::DatatypeValidator* const type = type_of(attribute, *element.decl, known);
    if (type != nullptr && !axsValueFault::is_of(*type, attribute.getValue(), memory))
      fail_with("attribute " + quoted(axsUtf16::to_utf8(attribute.getQName())) + " of " +
                element_subject(element.name) + ": " +
                axsValueFault::words(*type, attribute.getValue(), found->code, found->text, memory));
  }
}

void axsValidityReporter::explain_content(Element const& element) const
{
  xercesc::DatatypeValidator* const type = element.decl == nullptr ? nullptr : type_of_content(*element.decl);
  bool const is_whole = content.size() < longest_content;
  if (type != nullptr && is_whole && !element.has_own_type && !axsValueFault::is_of(*type, content.c_str(), memory))
    fail_with(element_subject(element.name) + ": " +
              axsValueFault::words(*type, content.c_str(), found->code, found->text, memory));
  fail_with(
    element_subject(element.name) + ": " +
    (is_whole ? axsValueFault::with_value(found->text, content.c_str()) : axsValueFault::shortened(found->text)));
}
