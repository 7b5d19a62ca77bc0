#pragma once

#include "axsReadError.h"

#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Hears the validator: stops it at the first error by throwing axsReadError, once it is known which element or attribute
/// the error is about, for the validator itself often says only what is wrong with a value.
class axsValidityReporter final : public xercesc::XMLDocumentHandler, public xercesc::XMLErrorReporter
{
public:
  /// How deep elements may be nested: the validator takes a time that grows with the square of it.
  static constexpr std::size_t most_levels = 20000;

  /// `place` tells where the validator is.
  axsValidityReporter(xercesc::GrammarResolver& grammars, std::function<axsReadError()> place)
    : known(grammars),
      current_place(std::move(place))
  {
  }

  /// The document is over: throws what has not been thrown yet.
  void finish() const;

  void error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text, XMLCh const* system_id,
    XMLCh const* public_id, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}

  void docCharacters(XMLCh const* text, XMLSize_t length, bool cdata) override;
  void docComment(XMLCh const*) override {}
  void docPI(XMLCh const*, XMLCh const*) override {}
  void endDocument() override {}
  void endElement(xercesc::XMLElementDecl const& decl, unsigned int uri, bool is_root, XMLCh const* prefix) override;
  void endEntityReference(xercesc::XMLEntityDecl const&) override {}
  void ignorableWhitespace(XMLCh const* text, XMLSize_t length, bool cdata) override;
  void resetDocument() override {}
  void startDocument() override {}
  void startElement(xercesc::XMLElementDecl const& decl, unsigned int uri, XMLCh const* prefix,
    xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count, bool is_empty, bool is_root) override;
  void startEntityReference(xercesc::XMLEntityDecl const&) override {}
  void XMLDecl(XMLCh const*, XMLCh const*, XMLCh const*, XMLCh const*) override {}

private:
  struct Found
  {
    axsReadError error;
    // It is about a value, not about what stands where.
    bool is_about_value;
  };

  [[noreturn]] void fail(std::string const& subject) const;

  xercesc::GrammarResolver& known;
  std::function<axsReadError()> current_place;
  std::optional<Found> found;
  std::vector<std::basic_string<XMLCh>> open;
};
