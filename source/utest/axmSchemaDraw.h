#pragma once

#include "axmSchemaTables.h"

#include <vector>

// Rules of schemas that are not written by hand: every case there is of a few things together. Not installed.
namespace axmSchemaDraw
{
// Contents of sequences and choices in each other, drawn, with every short row of their elements.
std::vector<axmSchemaTables::Rule> contents();

// Groups of all, whose elements come in any order.
std::vector<axmSchemaTables::Rule> groups_of_all();

// What xsi:nil says, of elements that may be nil or not, with every kind of content (XML Schema Part 1, 3.3.4).
axmSchemaTables::Rule nils();

// Names of local elements and attributes in the namespace urn:o or in none, as each of the four attributes says that tell.
struct Forms
{
  std::string schema;
  bool is_element_qualified;
  bool is_attribute_qualified;
};
std::vector<Forms> forms();
}
