#pragma once

#include "axsCharacterSet.h"
#include "axsPattern.h"
#include "axsPatternTree.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Reads a regular expression of XML Schema (Part 2, appendix F). Parentheses and subtractions may lie in each other as deep
/// as the text has them. For one text.
class axsPatternParser
{
public:
  axsPatternParser(std::string_view text, axsPattern::Fault& fault);

  /// The parts of the expression; false, with the fault told, if it is none.
  bool parse(axsPatternTree& tree);

private:
  using Index = axsPatternTree::Index;

  // What has been read of an expression in parentheses: whole branches, and the pieces of the current one.
  struct Group
  {
    Index first_branch = axsPatternTree::none;
    Index last_branch = axsPatternTree::none;
    Index first_piece = axsPatternTree::none;
    Index last_piece = axsPatternTree::none;
    std::size_t place = 0; // of the parenthesis
  };

  // An escape: a character, or a set of them.
  struct Escape
  {
    bool is_set = false;
    char32_t character = 0;
    axsCharacterSet set;
  };

  // A character class expression as far as it has been read, up to what is subtracted.
  struct ClassPart
  {
    bool negative = false;
    std::vector<axsCharacterSet::Range> ranges;
    std::size_t items = 0;
  };

  bool parse_piece();
  void begin_group();
  void end_branch();
  Index end_expression();
  void add_piece(Index piece);
  bool parse_atom(Index& atom);
  bool parse_quantifier(Index& atom);
  bool parse_counts(std::uint64_t& min, std::uint64_t& max);
  bool parse_count(std::string& digits);

  bool parse_class(axsCharacterSet& set);
  bool parse_class_part(ClassPart& part, bool& is_subtracted);
  bool parse_class_item(ClassPart& part);
  bool parse_range_end(char32_t& last);
  bool begins_literal_hyphen(ClassPart const& part) const noexcept;

  bool parse_escape(Escape& escape);
  bool parse_property(Escape& escape);
  bool find_set_escape(char32_t letter, axsCharacterSet& set);

  Index number_of(axsCharacterSet const& set);
  Index number_of(char32_t character);

  bool at_end() const noexcept { return at == characters.size(); }
  bool is_next(char32_t c, std::size_t ahead = 0) const noexcept
  {
    return characters.size() - at > ahead && characters[at + ahead] == c;
  }
  bool fail(std::size_t place, std::string text);

  std::u32string characters;
  std::size_t at = 0;
  axsPattern::Fault& fault;
  axsPatternTree* tree = nullptr;
  std::vector<Group> groups;
  std::map<axsCharacterSet, Index> numbers;
  std::unordered_map<char32_t, Index> numbers_of_characters;
  std::map<std::string, axsCharacterSet> properties;
};
