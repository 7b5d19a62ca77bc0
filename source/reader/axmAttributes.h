#pragma once

#include "axmTagName.h"

#include <utString.h>

#include <cstddef>
#include <cstdint>
#include <vector>

// The attributes of a tag, as axmPositionX::attribute() finds them. Each is read once, however many are asked for, and
// what a search has passed behind a self-closing tag, no other has to pass again. Not installed.
class axmAttributes
{
public:
  // Of a text that `end`, its NUL, ends.
  explicit axmAttributes(char const* end) : text_end(end) {}

  // The attribute `name` of the tag that begins at `tag`, `default_value` if it has none. Throws axmEndException where the
  // text ends too early.
  utString value(char const* tag, utString const& name, utString const& default_value);

private:
  utString any_value(utString const& name, std::uint64_t trace, utString const& default_value);

  // The value of an attribute as it stands in a tag, and the place behind it.
  struct Attribute
  {
    char const* value;
    char const* value_end;
    char const* behind;
  };

  // The search for an attribute beyond its tag, which a self-closing tag without that attribute sends on its way. From
  // the place behind an attribute on, it depends on that place and the name alone: a search that comes to a place where
  // an earlier one has been ends as that one did. Of the earlier one it is enough to follow its way, once.
  struct Search
  {
    utString name;
    char const* at;    // a place on its way
    char const* end;   // the last one
    char const* value; // what it found, null if it found nothing
    char const* value_end;
  };

  void enter(char const* tag);
  char const* known_value(axmTagName wanted) const;
  utString text_of(Attribute const& attribute) const;
  char const* skip_space(char const* at) const;
  char const* value_end(char const* value) const;
  bool is_named(char const* at, axmTagName wanted) const;
  bool read_name(char const* at, axmTagName wanted, char const*& name_end) const;
  bool read_long_name(char const* at, axmTagName wanted, char const*& name_end) const;
  bool read(char const* at, axmTagName wanted, Attribute& found) const;
  Search const& search_beyond(char const* at, utString const& name);
  Search& search_of(utString const& name);

  static std::uint64_t trace_of(axmTagName name);

  char const* const text_end;

  // What has been read of one tag: where the attributes in front begin, and where reading goes on.
  static constexpr int most = 64;
  char const* tag_start = nullptr; // none yet
  char const* rest = nullptr;
  int count = 0;
  std::uint64_t traces = 0; // a name of which no trace is here is not among those in front
  char const* begins[most];

  std::vector<Search> searches;
  std::size_t next_search = 0;
};
