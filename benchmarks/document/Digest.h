#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What a library found in a document, in the order of the document, so short that it can be compared: two libraries that
/// found the same have the same sum. All texts are UTF-8.
///
/// Libraries may differ in what is left out here: texts of white space alone, whether texts that follow each other (CDATA
/// sections among them) are one node, the order of attributes, and whether namespace declarations are attributes.
class Digest
{
public:
  struct Sum
  {
    std::uint64_t hash;
    std::uint64_t strings;

    bool operator==(Sum const& other) const { return hash == other.hash && strings == other.strings; }
    bool operator!=(Sum const& other) const { return !(*this == other); }
  };

  void element(std::string_view name);
  void attribute(std::string name, std::string value);
  void text(std::string_view data);
  void comment(std::string_view data);

  /// All text of the last element together. It is compared without white space, for the texts left out are in it.
  void value(std::string_view text);

  Sum sum();

private:
  void close();
  void add(char kind, std::string_view text);
  void mix(std::string_view bytes);

  std::vector<std::pair<std::string, std::string>> attributes; // of the last element
  std::string pending;                                         // the text that may go on
  std::uint64_t hash = 0xCBF29CE484222325;
  std::uint64_t strings = 0;
};
