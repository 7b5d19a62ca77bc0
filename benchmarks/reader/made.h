#pragma once

#include "Folder.h"

#include <cstddef>
#include <string>
#include <vector>

// Documents that the benchmark makes.

// Writes a document with that root element and returns its path.
std::string write_document(TemporaryFolder const& folder, std::string const& name, std::string const& root);

std::string repeated(std::string const& part, std::size_t times);

// Records of two kinds of fields up to a size.
std::string records(std::size_t bytes);

// The same number of bytes with the records so many levels down, a hundred in a branch.
std::string nested_records(std::size_t bytes, std::size_t depth);

// Writes one document of each kind: records, deep nesting, short and long tags with attributes, texts.
std::vector<std::string> write_documents(TemporaryFolder const& folder);
