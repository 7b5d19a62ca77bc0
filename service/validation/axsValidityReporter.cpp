#include "axsValidityReporter.h"

#include "axsErrorReporter.h"
#include "axsUtf16.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaElementDecl.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

namespace
{
std::string quoted(std::string const& name)
{
  return "'" + name + "'";
}

std::string element_subject(XMLCh const* name)
{
  return "element " + quoted(axsUtf16::to_utf8(name));
}

// The value as its type sees it.
std::basic_string<XMLCh> normalised(XMLCh const* value, xercesc::DatatypeValidator const& type)
{
  std::basic_string<XMLCh> text(value);
  if (type.getWSFacet() == xercesc::DatatypeValidator::COLLAPSE)
    xercesc::XMLString::collapseWS(text.data());
  else if (type.getWSFacet() == xercesc::DatatypeValidator::REPLACE)
    xercesc::XMLString::replaceWS(text.data());
  return text.c_str();
}

bool is_of(xercesc::DatatypeValidator& type, XMLCh const* value)
try
{
  type.validate(normalised(value, type).c_str());
  return true;
}
catch (xercesc::XMLException const&)
{
  return false;
}

// The type of an attribute, as its element declares it or, where that lets any in, as it is declared by itself.
xercesc::DatatypeValidator* type_of(
  xercesc::XMLAttr const& attribute, xercesc::XMLElementDecl const& element, xercesc::GrammarResolver& grammars)
{
  auto const& decl = static_cast<xercesc::SchemaElementDecl const&>(element);
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
}

void axsValidityReporter::error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text,
  XMLCh const* system_id, XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type == ErrType_Warning || found)
    return;
  axsReadError const made = axsErrorReporter::make(axsUtf16::to_string(text), system_id, line, column);
  if (type == ErrType_Fatal)
    throw made;
  bool const is_about_text =
    code == xercesc::XMLValid::NoCharDataInCM && xercesc::XMLString::equals(domain, xercesc::XMLUni::fgValidityDomain);
  found = Found{made, xercesc::XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain)};
  // Of such a text nothing more is told.
  if (is_about_text && !open.empty())
    fail(element_subject(open.back().c_str()));
}

void axsValidityReporter::finish() const
{
  if (found)
    throw found->error;
}

void axsValidityReporter::fail(std::string const& subject) const
{
  axsReadError error = found->error;
  std::string const name = subject.substr(subject.rfind(' ') + 1);
  if (error.message.find(apString::from_utf8(name)) < 0)
    error.message = apString::from_utf8(subject + ": ") + error.message;
  throw error;
}

void axsValidityReporter::docCharacters(XMLCh const*, XMLSize_t, bool)
{
  if (found && !open.empty())
    fail(element_subject(open.back().c_str()));
}

void axsValidityReporter::ignorableWhitespace(XMLCh const* text, XMLSize_t length, bool cdata)
{
  docCharacters(text, length, cdata);
}

void axsValidityReporter::startElement(xercesc::XMLElementDecl const& decl, unsigned int, XMLCh const*,
  xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count, bool is_empty, bool)
{
  if (!found)
  {
    if (open.size() == most_levels)
    {
      axsReadError error = current_place();
      error.message = APSTRING("Elements are nested more than 20000 levels deep, which is not validated");
      throw error;
    }
    if (!is_empty)
      open.emplace_back(decl.getBaseName());
    return;
  }
  std::string const element = element_subject(decl.getBaseName());
  bool const is_schema_decl = decl.getObjectType() == xercesc::XMLElementDecl::Schema;
  for (XMLSize_t i = 0; found->is_about_value && is_schema_decl && i < count; ++i)
  {
    xercesc::XMLAttr const& attribute = *attributes.elementAt(i);
    xercesc::DatatypeValidator* const type = type_of(attribute, decl, known);
    if (type == nullptr || is_of(*type, attribute.getValue()))
      continue;
    found->error.message += APSTRING(", in \"") + axsUtf16::to_string(attribute.getValue()) + APSTRING("\"");
    found->error.message =
      apString::from_utf8("attribute " + quoted(axsUtf16::to_utf8(attribute.getQName())) + " of " + element + ": ") +
      found->error.message;
    throw found->error;
  }
  fail(element);
}

void axsValidityReporter::endElement(xercesc::XMLElementDecl const& decl, unsigned int, bool, XMLCh const*)
{
  if (found)
    fail(element_subject(decl.getBaseName()));
  open.pop_back();
}
