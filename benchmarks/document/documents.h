#pragma once

#include <cstddef>
#include <string>

/// The documents that are made when none are given, about `bytes` long.
void make_records(std::string const& file, std::size_t bytes);
void make_attributes(std::string const& file, std::size_t bytes);
void make_text(std::string const& file, std::size_t bytes);
/// Sentences of random letters of these scripts, with the punctuation that is usual there.
void make_russian(std::string const& file, std::size_t bytes);
void make_chinese(std::string const& file, std::size_t bytes);

/// The name of the first element below the root, by a look at the beginning.
std::string first_name(std::string const& file);

/// What stands in the way of a library that knows no document types and no namespaces.
struct Traits
{
  bool declares_entities_or_attributes;
  bool has_default_namespace;
};

/// By a look at the beginning.
Traits traits_of(std::string const& file);
