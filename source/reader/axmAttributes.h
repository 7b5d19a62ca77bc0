#pragma once

#include <utString.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// The attributes of a tag, as axmPositionX::attribute() finds them. Each is read once, however many are asked for, and
// what a search has passed beyond a self-closing tag, no other has to pass again. Not installed.
class axmAttributes
{
public:
  // Of a text that `end`, its NUL, ends.
  explicit axmAttributes(char const* end) : text_end(end) {}

  // The attribute `name` of the tag that begins at `tag`, `default_value` if it has none. Throws axmEndException where the
  // text ends too early.
  utString value(char const* tag, utString const& name, utString const& default_value);

private:
  // The value of an attribute as it stands in a tag, and where the next attribute begins.
  struct Attribute
  {
    char const* value;
    char const* value_end;
    char const* next;
  };

  // The search for an attribute beyond its tag, which a self-closing tag without that attribute sends on its way. From
  // where an attribute begins, it depends on that place and the name alone: a search that comes to a place where an
  // earlier one has been ends as that one did. Of the earlier one it is enough to follow its way, once.
  struct Search
  {
    utString name;
    char const* at;    // a place on its way
    char const* end;   // the last one
    char const* value; // what it found, null if it found nothing
    char const* value_end;
  };

  void enter(char const* tag);
  bool read_next_short(utString const& name, Attribute& found) const;
  utString search(utString const& name, utString const& default_value);
  void keep(char const* at, std::uint64_t filter_bit, char const* next);
  char const* known_value(std::string_view name) const;
  char const* skip_space(char const* at) const;
  char const* value_end(char const* value) const;
  bool read_name(char const* at, utString const& name, char const*& name_end) const;
  bool read_long_name(char const* at, std::string_view name, char const*& name_end) const;
  bool read(char const* at, utString const& name, Attribute& found) const;
  Search const& search_beyond(char const* at, utString const& name);
  Search& search_of(utString const& name);

  char const* const text_end;

  // What has been read of one tag: where the attributes in front begin, and where reading goes on.
  static constexpr int max_known = 64;
  char const* tag_start = nullptr; // none yet
  char const* rest = nullptr;
  int count = 0;
  std::uint64_t name_filter = 0; // a name whose bit is not here is not among those in front
  char const* begins[max_known];

  std::vector<Search> searches;
  std::size_t next_search = 0;
};
