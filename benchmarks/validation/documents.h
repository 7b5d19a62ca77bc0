#pragma once

#include <string>

/// Documents and schemas that are made for the measurements, in the folder.
struct Made
{
  std::string name;
  std::string schema;
  std::string document;
};

/// Records of six fields and three attributes, all typed.
Made make_books(std::string const& folder, int records);
/// Records with a key and a reference to the next one each.
Made make_keys(std::string const& folder, int records);
