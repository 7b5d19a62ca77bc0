#include "axsAmbiguity.h"

#include "axsErrorReporter.h"
#include "axsPlainWords.h"
#include "axsUtf16.h"

#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>
#include <xercesc/validators/schema/XSDLocator.hpp>

namespace
{
using xercesc::ComplexTypeInfo;

bool has_part(ComplexTypeInfo const& type, std::string const& name)
{
  XMLCh const* const content = type.getFormattedContentModel();
  return content != nullptr && axsUtf16::to_utf8(content).find(name) != std::string::npos;
}

// Types without a name have the same ones in several namespaces: then it is one that has both parts.
ComplexTypeInfo const* find(
  std::string const& name, std::string const& one, std::string const& other, xercesc::GrammarResolver& grammars)
{
  ComplexTypeInfo const* found = nullptr;
  auto known = grammars.getGrammarEnumerator();
  while (known.hasMoreElements())
  {
    xercesc::Grammar& grammar = known.nextElement();
    auto* const registry = grammar.getGrammarType() == xercesc::Grammar::SchemaGrammarType
                             ? static_cast<xercesc::SchemaGrammar&>(grammar).getComplexTypeRegistry()
                             : nullptr;
    if (registry == nullptr)
      continue;
    xercesc::RefHashTableOfEnumerator<ComplexTypeInfo> types(registry);
    while (types.hasMoreElements())
    {
      ComplexTypeInfo const& type = types.nextElement();
      if (axsUtf16::to_utf8(type.getTypeLocalName()) != name || type.getLocator() == nullptr)
        continue;
      if (found == nullptr || (has_part(type, one) && has_part(type, other)))
        found = &type;
    }
  }
  return found;
}
}

axsReadError axsAmbiguity::explained(std::string const& text, xercesc::GrammarResolver& grammars)
{
  std::string const name = axsPlainWords::quoted_in(text, 1);
  std::string const one = axsPlainWords::quoted_in(text, 2);
  std::string const other = axsPlainWords::quoted_in(text, 3);
  bool const has_name = name.compare(0, 2, "__") != 0;
  apString const message =
    apString::from_utf8("the content of " + (has_name ? "the type '" + name + "'" : "this type") +
                        " is ambiguous: an element in it may be meant by '" + one + "' or by '" + other +
                        "' (unique particle attribution)");
  ComplexTypeInfo const* const type = find(name, one, other, grammars);
  if (type == nullptr)
    return {message, apString()};
  xercesc::XSDLocator const& at = *type->getLocator();
  return axsErrorReporter::make(message, at.getSystemId(), at.getLineNumber(), at.getColumnNumber());
}
