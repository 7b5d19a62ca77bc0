#pragma once

#include "axsAttributeAssessment.h"
#include "axsContentStack.h"
#include "axsFindings.h"
#include "axsKnownNames.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsTypeDefinition.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct axsElementDecl;

/// Assesses a document against a schema (Part 1, chapter 2.1 and 5.2) while it is read: a filter between a parser and
/// whoever takes what that tells, a tree builder, a reader or nobody. Memory grows with the depth of the document, its IDs
/// and its keys only.
///
/// A root element of a namespace that the schema does not know is not assessed; below it, as wherever the schema lets
/// anything in, all that is declared is (lax assessment). What the schema gives as a default is assessed, but not passed on.
class axsAssessment final : public axsParseHandler
{
public:
  /// `next` is told what is read; null for nobody. `has_assessed` is set once anything in the document is held against a
  /// declaration. All must live longer.
  axsAssessment(
    axsSchemaComponents const& schema, axsParseHandler* next, axsValidityErrors& errors, bool& has_assessed);
  axsAssessment(axsAssessment const&) = delete;
  axsAssessment& operator=(axsAssessment const&) = delete;
  ~axsAssessment() override;

  axsName const& name(std::string_view text) override;
  void start_document(axsLocator const& locator) override;
  void declaration(std::string_view version, std::string_view encoding, std::string_view standalone) override;
  void doctype(std::shared_ptr<axsDtd const> const& type) override;
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;

private:
  enum class Content : unsigned char
  {
    skipped, // nothing within is looked at
    unknown, // what is declared within is looked at
    empty,
    simple,
    elements,
    mixed
  };

  // What becomes of the text in an element.
  enum class Text : unsigned char
  {
    ignored,
    collected, // and looked at when the element ends
    white,     // no other is allowed
    refused
  };

  struct Element
  {
    axsKnownName const* name = nullptr;
    axsElementDecl const* decl = nullptr;
    axsTypeDefinition type;
    Content content = Content::unknown;
    Text text = Text::ignored;
    bool is_nil = false;
    bool has_run = false;  // of the automaton of its content
    bool is_wrong = false; // something is wrong with what is in it, and has been said
    bool has_children = false;
  };

  // What the attributes of the namespace of schema instances say.
  struct Instance
  {
    std::string_view type;
    std::string_view nil;
    bool has_type = false;
    bool has_nil = false;
  };

  static Instance instance_of(axsStartTag const& tag);
  void find_root(Element& element, Instance const& instance);
  void find_child(Element& element, Instance const& instance);
  void find_in_content(Element& element, Element& parent, Instance const& instance);
  void take(Element& element, axsContentItem const& item, Instance const& instance);
  void refuse_child(Element const& element, Element& parent, std::string const& message);
  void find_type(Element& element, Instance const& instance);
  void read_type(Element& element, std::string_view name);
  void read_nil(Element& element, Instance const& instance);
  void open(Element& element);
  void assess_attributes(axsStartTag const& tag, Element const& element);
  Text text_of(Element const& element) const;
  Text simple_text_of(Element const& element) const;
  void refuse_text(Element& element);
  void end_content(Element& element);
  void end_simple(Element& element);
  void add_identifiers(Element const& element);
  void end_with_default(Element const& element, axsSimpleType const& type);
  void end_mixed(Element& element);
  void tell_identity(Element const& element);
  static bool has_constraint(Element const& element) noexcept;
  bool is_field() const;
  static axsSimpleType const* simple_type_of(Element const& element);

  axsFindings findings;
  axsAttributeAssessment attributes;
  axsKnownNames names;
  axsParseHandler* next;
  axsNameTable own_names; // where nobody else keeps them
  std::vector<Element> elements;
  axsContentStack contents;
  std::string value; // the text of the innermost element, where that collects it
};
