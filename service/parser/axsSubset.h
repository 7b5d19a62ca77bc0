#pragma once

#include "axsAttributeList.h"

#include <deque>
#include <string>
#include <vector>

class axsEntities;
class axsNameCache;

/// The internal subset of the document type declaration of one document (2.8, [28b] intSubset), as far as it is usual:
/// declarations of elements, attributes, notations and entities in it, comments and processing instructions. Left to
/// others are parameter entities, entities outside the document, a second declaration of one attribute, a default in which
/// entities are used, and all that is wrong.
class axsSubset
{
public:
  /// Of a document whose names are in `names` and whose entities are to be in `entities`; both must live longer.
  axsSubset(axsNameCache& names, axsEntities& entities) : all_names(names), all_entities(entities) {}

  /// Reads from behind the '[' at which it begins and moves behind the ']' at its end; from then on the names of
  /// elements know what is declared of their attributes, and the entities what they stand for. The memory is as
  /// axsCharacters wants it. False where something is left to others; `at` is then where that shows. Can be called
  /// again, with the same subset when there is more of it.
  bool read(char const*& at);

private:
  bool declaration(char const*& at);
  bool entity(char const*& at);
  bool attribute_list(char const*& at);
  bool attribute(char const*& at, axsReadName& element);
  bool default_value(char const*& at, axsAttributeList& list, axsAttributeList::Type type);
  axsAttributeList& list_of(axsReadName& element);
  void forget();

  axsNameCache& all_names;
  axsEntities& all_entities;
  // Of the elements in `declared`, one each.
  std::deque<axsAttributeList> lists;
  std::vector<axsReadName*> declared;
  std::string normal;
};
