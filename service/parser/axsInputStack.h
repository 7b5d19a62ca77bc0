#pragma once

#include "axsBounds.h"
#include "axsCharacters.h"
#include "axsInputBuffer.h"
#include "axsPlace.h"
#include "axsReadError.h"
#include "axsTextScan.h"

#include <axmLoadOptions.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class axsSource;
struct axsEntity;

/// What a parser reads: the document and, on top of it, the entities that are open, one in the other. Reading goes on in
/// the innermost one; what it needs is in memory as axsCharacters wants it.
///
/// Who meets the end of what is in memory gives up with `axsNeedsMore`, and what was begun is begun again when there is
/// more of it. That can happen in the document and in general entities in files only.
class axsInputStack
{
public:
  /// Thrown where a piece of markup is not whole in memory.
  struct NeedsMore
  {
  };

  /// Nothing looks further ahead than this without looking at every byte up to there.
  static constexpr std::ptrdiff_t look_ahead = 16;

  /// The source must live longer. Throws axsReadError when it cannot be read.
  axsInputStack(axsSource& document, axmLoadOptions const& options);
  ~axsInputStack();

  /// Where reading goes on, in the innermost input.
  char const* at = nullptr;

  char const* end() const noexcept { return limit; }

  /// Whether `p` is after the last byte that is in memory.
  bool is_end(char const* p) const noexcept { return p == limit; }

  /// Whether there are fewer bytes ahead, of more that are to come.
  bool has_fewer(std::ptrdiff_t bytes) const noexcept { return limit - at < bytes && more; }

  /// Whether the innermost input is the text of an entity in the document type: its line ends are what they are, and it
  /// may have every character.
  bool is_internal() const noexcept { return internal; }

  /// How many bytes of the document stand before `p`, in UTF-8 with its byte-order mark. Only outside of entities.
  std::uint64_t position(char const* p) const noexcept
  {
    axsInputBuffer const& buffer = *inputs.front().buffer;
    return buffer.position(p) + buffer.encoding().mark_size;
  }

  /// The encoding of the document.
  std::string const& encoding() const noexcept { return inputs.front().buffer->encoding().name; }

  /// How many entities are open.
  std::size_t depth() const noexcept { return inputs.size() - 1; }

  /// The innermost open entity, null in the document and in the external subset.
  axsEntity* entity() const noexcept { return inputs.back().entity; }

  /// Whether an input is a file other than the document: the external subset or an external entity.
  bool is_outside_document() const noexcept { return files > 1; }

  /// Reads on, keeping what stands from `at` on. Throws axsReadError where what comes is not in its encoding.
  void read_on();

  /// A place in the innermost input to which return_to() can go back, as long as that is open.
  struct Mark
  {
    axsInputBuffer::Mark in_file;
    std::size_t in_text;
    axsBounds::Count count;
  };
  Mark mark() const;
  void return_to(Mark const& mark);

  /// Opens the entity to which the reference at `reference` refers, which ends at `at` in the innermost input: reading
  /// goes on in it. Counts it. Throws axsReadError where the entity is open already (4.1, WFC: No Recursion), cannot be
  /// read or is one too many. A parameter entity is in memory as a whole from then on.
  void open(axsEntity& entity, char const* reference);

  /// Opens the external subset in the same way, if it is a local file. Whether it is.
  bool open_subset(std::string const& system_id);

  /// Counts an expansion of the entity that does not take the way over open().
  void count_expansion(axsEntity const& entity, char const* reference);

  /// Counts what defaults of attributes add.
  void count_growth(std::uint64_t bytes, char const* p);

  /// The innermost input has been read: goes on in the one around it, after the reference.
  void close();

  /// Moves after white space at `p` (2.3, [3] S). Whether there is some.
  bool skip_spaces(char const*& p) const
  {
    char const* const before = p;
    p = axsCharacters::end_of_spaces(p);
    if (xml_1_1 && !axsCharacters::is_ascii(*p))
      skip_other_spaces(p);
    return p != before;
  }

  /// The first byte at or after `p` that is one of `stops` or one for pass_special(): a control character other than tab
  /// and line feed, or where characters begin of which some are not what they seem.
  template <char... stops>
  char const* end_of_text(char const* p) const
  {
    return all_are_looked_at ? axsCharacters::end_of_text<apByteBlock, stops...>(p)
                             : axsCharacters::end_of_utf8_text<apByteBlock, stops...>(p);
  }

  /// The same for text between tags, which is the longest there is.
  char const* end_of_character_data(char const* p) const
  {
    return all_are_looked_at ? axsCharacters::end_of_text<apByteBlock, '<', '&', ']'>(p) : axsTextScan::end(p);
  }

  /// The same in a value in quotes, which ends at `quote`, '<' and '&', too.
  char const* end_of_value(char const* p, char quote) const
  {
    return all_are_looked_at ? axsCharacters::end_of_value(p, quote) : axsCharacters::end_of_utf8_value(p, quote);
  }

  /// As many characters as there are at `p` that a scan for ASCII text stops at: beyond ASCII, control characters, line
  /// ends. Moves after them.
  enum class Special
  {
    characters,
    line_end // one, which becomes a line feed (2.11)
  };
  Special pass_special(char const*& p);

  /// 2.2, in XML 1.1: a text that was passed in blocks may still have the one control character of ASCII beyond the first.
  void check_controls(char const* from, char const* to) const
  {
    if (xml_1_1 && !internal)
      look_for_controls(from, to);
  }

  /// From now on the rules of XML 1.1 hold, for the document and all its entities.
  void take_xml_1_1() noexcept;
  bool is_xml_1_1() const noexcept { return xml_1_1; }

  /// Stops with an error at `p`, where something else is expected; a character there that no document may have is what is
  /// wrong. Where there may be more than is in memory, throws NeedsMore.
  [[noreturn]] void unexpected(char const* p, std::string const& message) const;

  /// Stops with an error at `p`, about something that is in memory as a whole.
  [[noreturn]] void fail(char const* p, std::string const& message) const;

  /// Throws NeedsMore where `p` is the end of what is in memory, and not of the input.
  void need(char const* p) const
  {
    if (p == limit && !last)
      throw NeedsMore();
  }

  /// Of a character of the innermost input, or of the one in that depth; see axsLocator.
  axsPlace place(char const* p) const { return place(p, depth()); }
  axsPlace place(char const* p, std::size_t depth) const;
  apString url() const;

  /// The file in which reading goes on, or to whose entities the innermost input belongs.
  apPath const& file() const;

  axsBounds& bounds() noexcept { return all_bounds; }

private:
  struct Input
  {
    axsEntity* entity = nullptr;
    // Of one in the document type, none.
    std::unique_ptr<axsSource> source;
    std::unique_ptr<axsInputBuffer> buffer;
    apPath file;
    // Where reading goes on, and where the reference to the entity in it stands, when it is not the innermost one.
    char const* at = nullptr;
    char const* reference = nullptr;
  };

  void open_text(axsEntity& entity);
  void open_file(axsEntity* entity, apPath const& file, bool is_whole);
  void skip_text_declaration();
  void enter(Input&& input);
  void innermost();
  void skip_other_spaces(char const*& p) const;
  void pass_return(char const*& p) const;
  Special pass_multibyte(char const*& p) const;
  void look_for_controls(char const* from, char const* to) const;
  Input const& file_input() const;
  std::uint64_t bytes_read() const;

  std::vector<Input> inputs;
  axsSource& document;
  char const* limit = nullptr;
  // Whether nothing of the innermost input comes after what is in memory, and whether text comes.
  bool last = false;
  bool more = false;
  bool internal = false;
  bool xml_1_1 = false;
  // Whether there are characters beyond ASCII that may be no text or line ends.
  bool all_are_looked_at = false;
  bool const resolves;
  std::size_t files = 1;
  std::uint64_t bytes_of_closed = 0;
  axsBounds all_bounds;
};
