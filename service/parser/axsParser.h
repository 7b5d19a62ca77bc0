#pragma once

#include "axsAttributeValue.h"
#include "axsDtdParser.h"
#include "axsEntities.h"
#include "axsInputStack.h"
#include "axsLocator.h"
#include "axsNameCache.h"
#include "axsNamespaceScope.h"
#include "axsReadAttributes.h"

#include <axmLoadOptions.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class axsParseHandler;
class axsSource;

/// The XML processor: XML 1.0 (fifth edition), XML 1.1, Namespaces in XML 1.0 and 1.1. Bytes go in, events come out.
///
/// It checks that the document is well-formed and keeps to its namespaces, and uses what the document type declares:
/// entities, defaults, types of attributes; it does not validate. Nothing outside the document is read, except where the
/// options enable the resolution of entities: then the external subset and the entities that are local files, named
/// relative to what names them. An entity that is declared nowhere in what is read is an error. How much a document may
/// become is bounded; see axsBounds. The time is linear in what is read and told; elements and entities may be nested as
/// deep as memory lasts.
/// One object belongs to one thread at a time.
class axsParser final : private axsLocator
{
public:
  /// Reads the document in `source` on from where it is and tells `handler`, both of which must live longer.
  /// This and what follows throw axsReadError when the document is wrong or cannot be read or the handler throws that,
  /// std::bad_alloc when memory runs out. After that there is nothing more to ask for.
  axsParser(axsSource& source, axmLoadOptions const& options, axsParseHandler& handler);
  ~axsParser() override;

  /// Reads on until there was something to tell. False when the document has ended.
  bool step();

  /// Reads on by the smallest piece, of which there may be nothing to tell.
  void advance();

  /// Reads all of the document.
  void run();

  /// What comes next in the content of the root element, before advance() reads it.
  enum class Next
  {
    start_tag,
    end_tag,
    other,
    end // the root element has ended
  };
  Next next();

  /// The encoding of the document, as it is declared or found out.
  std::string const& encoding() const noexcept { return in.encoding(); }

  /// A place in the content of the innermost open element.
  using Mark = axsInputStack::Mark;
  Mark mark() const { return in.mark(); }

  /// Goes on from `mark` again, which was made in the element that is the innermost open one now, and in whose content
  /// reading stands outside of all entities that its content refers to: before a tag of its own. Throws axsReadError
  /// where what was read cannot be read again; see axsSource::seek().
  void return_to(Mark const& mark);

private:
  enum class State
  {
    begin,
    prolog,
    document_type,
    content,
    epilog,
    end
  };

  struct OpenElement
  {
    // Made where it stays: a copy would wait until all that was written before has come to the memory.
    OpenElement(axsQName const& its_name, char const* begin, std::size_t inputs) noexcept
      : name(&its_name),
        at(begin),
        depth(inputs)
    {
    }

    axsQName const* name;
    // Where it begins; null once its line is known.
    char const* at;
    std::uint64_t line = 0;
    std::size_t depth;
  };

  apString url() const override { return in.url(); }
  axsPlace begin() const override;
  std::optional<std::uint64_t> begin_position() const override;
  std::optional<std::uint64_t> end_position() const override;
  axsPlace attribute(std::size_t index) const override;
  axsPlace end() const override { return in.place(event_end); }

  void read_on();
  void count_lines();
  void piece();
  void read_begin();
  void outside();
  void end_or_fail();
  void document_type();
  void content();
  void start_tag();
  // Null where there is none.
  axsQName* read_name(char const*& p)
  {
    axsQName* const expected = names.expected(p);
    return expected != nullptr ? expected : find_name(p);
  }
  axsQName* find_name(char const*& p);
  void read_attributes(char const*& p, axsQName const& element);
  void read_attribute(char const*& p, axsQName const& element);
  std::string_view typed(std::string_view value, axsAttributeType type);
  void place_made_values();
  void end_tag();
  void end_element();
  [[noreturn]] void fail_start_tag(char const* p, axsQName const& name) const;
  [[noreturn]] void fail_end_tag(char const* p) const;
  void comment();
  void exclamation();
  void cdata();
  void processing_instruction();
  void text();
  void parted_text();
  bool reference(char const*& p);
  void keep_text();
  void end_text(char const* from, char const* to);
  void end_input();
  void told(char const* to) noexcept;
  std::string since(OpenElement const& element) const;

  axsInputStack in;
  axsParseHandler& events;
  axsNameCache names;
  axsNamespaceScope namespaces;
  axsEntities entities;
  axsAttributeValue values;
  std::unique_ptr<axsDtdParser> dtd;
  State state = State::begin;
  std::vector<OpenElement> open;
  axsReadAttributes attributes;
  // The attributes whose values were made, and where those begin among what was made.
  std::vector<std::pair<std::size_t, std::size_t>> made;
  // What does not stand in the input as it is: of a text that entities part, what came before.
  std::string normal;
  std::size_t kept = 0;
  bool is_in_text = false;
  // Of an event whose beginning may have been let go.
  std::optional<axsPlace> early_begin;
  char const* event_begin = nullptr;
  char const* event_end = nullptr;
  std::uint64_t elements = 0;
  bool has_told = false;
};
