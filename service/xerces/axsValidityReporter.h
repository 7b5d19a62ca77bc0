#pragma once

#include "axsContentFault.h"
#include "axsReadError.h"

#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>
#include <xercesc/validators/schema/SchemaElementDecl.hpp>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Hears the validator: stops it at the first error by throwing axsReadError, once it is known which element or attribute
/// the error is about, for the validator itself often says only what is wrong with a value, and of children only that
/// they are not right, at the end of all of them.
class axsValidityReporter final : public xercesc::XMLDocumentHandler, public xercesc::XMLErrorReporter
{
public:
  /// How deep elements may be nested: the validator takes a time that grows with the square of it.
  static constexpr std::size_t most_levels = 20000;

  /// `place` tells where the validator is.
  axsValidityReporter(
    xercesc::GrammarResolver& grammars, xercesc::MemoryManager& manager, std::function<axsReadError()> place)
    : known(grammars),
      memory(manager),
      current_place(std::move(place))
  {
  }

  /// To be called before the document is read: where the validator tells its place, and its number for names in no
  /// namespace.
  void start(xercesc::Locator const& where, unsigned int no_namespace);

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
  enum class About
  {
    value,
    children,           // those of an element that ends
    undeclared_element, // one that begins
    other
  };

  struct Found
  {
    axsReadError error;
    About about;
    unsigned int code;
    std::string text; // in the validator's words
  };

  // An element that is open, or ends at once.
  struct Element
  {
    xercesc::SchemaElementDecl const* decl; // null if it has none
    XMLCh const* name;
    bool has_own_type; // by xsi:type
    std::size_t first_child;
  };

  // A child of an element that is open.
  struct Child
  {
    xercesc::QName* name;
    XMLCh const* file; // as the validator has it, to be compared only
    XMLFileLoc line;
    XMLFileLoc column;
  };

  void open_element(Element const& element, bool is_empty);
  axsContentFault::Names children_of(Element const& element) const;
  [[noreturn]] void fail(std::string const& subject) const;
  [[noreturn]] void fail_with(std::string const& message) const;
  void explain_children(Element const& element);
  void move_to(Child const& child);
  void explain_undeclared(xercesc::XMLElementDecl const& decl) const;
  void explain_attribute(
    Element const& element, xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count) const;
  [[noreturn]] void explain_content(Element const& element) const;

  xercesc::GrammarResolver& known;
  xercesc::MemoryManager& memory;
  std::function<axsReadError()> current_place;
  xercesc::Locator const* locator = nullptr;
  unsigned int empty_namespace = 0;
  std::optional<Found> found;
  std::vector<Element> open;
  std::vector<Child> children;      // of all open elements, those of the innermost last
  std::basic_string<XMLCh> content; // the beginning of the text behind the last tag
};
