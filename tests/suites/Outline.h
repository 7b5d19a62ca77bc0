#pragma once

#include <axmDocument.h>

#include <string>
#include <vector>

/// A document as a list of lines, one for each thing that it holds, so that two of them can be compared.

/// All that a save has to give back: every node with its kind, name, value and text, attributes in their order.
std::vector<std::string> full_outline(axmDocument& document);

/// What the canonical form of the conformance suite holds: elements with their attributes in order of their names,
/// processing instructions and text. Comments and the document type are left out, neighbouring texts are one, and white
/// space in texts is left out, since a load drops some of it.
std::vector<std::string> data_outline(axmDocument& document);

/// Where the two part: the first line that differs, of both; empty when they are equal.
std::string first_difference(std::vector<std::string> const& left, std::vector<std::string> const& right);
