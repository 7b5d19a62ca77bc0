#pragma once

#include "axsFormatOptions.h"
#include "axsMarkupScanner.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// What a layout has to know of a document beyond its text.
struct axsLayoutNotes
{
  /// What an element says of white space (XML 1.0, 2.10), itself or by a default of its type.
  struct Space
  {
    std::size_t element; // counted from 0 in the order of their start tags
    bool is_preserved;
  };

  std::vector<Space> spaces;
  bool is_xml_1_1 = false;
};

/// Writes the text of one well-formed document laid out anew; see axsFormatter.
class axsLayout
{
public:
  using Write = std::function<bool(std::string_view)>;

  /// All but `line_end`, which is a literal, must live longer. Lines of `document` end with line feeds.
  axsLayout(std::string_view document, axsLayoutNotes const& notes, axsFormatOptions const& options,
    char const* line_end, Write const& write);

  /// Whether more is wanted after the byte-order mark.
  bool write_mark();

  void run();

private:
  using Kind = axsMarkupScanner::Kind;

  // What the content of an element is made of.
  struct Content
  {
    bool has_text = false;
    bool has_space = false;
    bool has_markup = false;

    // White space alone is a text as well.
    bool is_mixed() const { return has_text || (has_space && !has_markup); }
  };

  struct Open
  {
    // Whether nothing in it may be changed, and whether that is so because of its text: then xml:space does not help.
    bool is_verbatim;
    bool is_mixed;
    bool is_preserved;
    // Whether nothing has been written of its content.
    bool is_empty;
  };

  void find_mixed();
  void piece(Kind kind, std::string_view text);
  void text_between(std::string_view text);
  void begin_line(Kind kind);
  void start_element();
  void open_element();
  void end_element();
  void write_tag(bool is_empty);
  void break_line(std::size_t levels);
  void put(std::string_view text);
  void flush(std::size_t limit);

  bool is_verbatim() const { return !open.empty() && open.back().is_verbatim; }

  std::string_view const text;
  axsLayoutNotes const& notes;
  axsFormatOptions const& options;
  bool const ends_with_carriage_return;
  Write const& write;
  axsMarkupScanner scanner;
  std::vector<bool> mixed;
  std::vector<Open> open;
  std::size_t elements = 0;
  std::size_t next_space = 0;
  // Of the white space since the last piece.
  std::size_t line_feeds = 0;
  bool has_blank = false;
  bool has_written = false;
  bool is_wanted = true;
  std::string out;
  // How many characters stand on the line.
  std::size_t column = 0;
};
