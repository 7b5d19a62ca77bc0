#pragma once

#include "axsAttributeList.h"
#include "axsDeclarationReader.h"
#include "axsDtd.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <vector>

class axsEntities;
class axsNameCache;
struct axsEntity;

/// Reads the document type declaration of one document (2.8, [28] doctypedecl) with its internal subset and, where
/// external entities are read and it is a local file, its external one, and makes the model of it.
///
/// It reads a declaration at a time, and can be asked again for one of which not all is in memory yet.
class axsDtdParser
{
public:
  /// Of a document whose names are in `names` and whose entities are to be in `entities`; all must live longer.
  axsDtdParser(axsInputStack& input, axsNameCache& names, axsEntities& entities);

  /// Reads on from "<!DOCTYPE", one step. Whether that was the last one. The names of elements know from then on what is
  /// declared of their attributes. Throws as the input does; where that needs more, the step can be made again.
  bool read_on();

  /// When the last step was made.
  std::shared_ptr<axsDtd const> type() const { return model; }

private:
  enum class State
  {
    begin,
    internal_subset,
    end,
    external_subset
  };

  // A conditional section that is open: how many entities were where it begins and at its '['.
  struct Section
  {
    std::size_t begin;
    std::size_t bracket;
  };

  bool step();
  void read_begin();
  axsEntity* read_subset();
  void read_declaration();
  void read_bracket();
  bool end_input();
  bool open_external_subset();
  void read_condition();
  void skip_ignored();
  void read_element();
  void read_attribute_list();
  void read_attribute(axsDtd::Element& element, axsQName& element_name);
  axsAttributeType read_type(std::vector<std::string>& tokens);
  void read_group(std::vector<std::string>& tokens, bool are_names);
  void read_default(axsDtd::Attribute& attribute);
  void read_entity();
  void read_notation();
  axsAttributeList& list_of(axsQName& element);

  axsInputStack& in;
  axsNameCache& all_names;
  axsEntities& all_entities;
  axsDeclarationReader reader;
  State state = State::begin;
  std::shared_ptr<axsDtd> model = std::make_shared<axsDtd>();
  std::deque<axsAttributeList> lists;
  // What was read last in the subset.
  char const* item = nullptr;
  std::vector<Section> sections;
  std::string ignored;
};
