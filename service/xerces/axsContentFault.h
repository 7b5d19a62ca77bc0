#pragma once

#include <xercesc/util/QName.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>
#include <xercesc/validators/schema/SchemaElementDecl.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What is wrong with the children of an element by the content that its declaration allows, and what may stand there
/// instead: the validator itself only tells that the content is wrong, once it has seen all of it.
class axsContentFault
{
public:
  using Names = std::vector<xercesc::QName*>;

  /// `no_namespace` is the validator's number for names in no namespace.
  axsContentFault(
    xercesc::SchemaElementDecl const& element, xercesc::GrammarResolver& grammars, unsigned int no_namespace);

  /// The index of the first child that may not stand where it does, their number if further ones must follow; none if the
  /// content is right, or is not described by elements.
  std::optional<std::size_t> first_wrong(Names const& children) const;

  /// What to say of the child that is the `wrong`th, or of further ones that are missing, in the element `parent`: with
  /// what may stand there instead, where that can be told in a few words.
  std::string words(XMLCh const* parent, Names const& children, std::size_t wrong) const;

private:
  // The elements that the content has anywhere; none if wildcards let in others.
  Names candidates() const;
  Names accepted_behind(Names before) const;
  std::string shown(xercesc::QName const& name, xercesc::QName const* other) const;
  std::string expected(Names const& before, xercesc::QName const* found) const;

  xercesc::ComplexTypeInfo* const type;
  xercesc::GrammarResolver& known;
  unsigned int const empty_namespace;
};
