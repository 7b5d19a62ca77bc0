#pragma once

#include <string_view>
#include <vector>

// A well-formed document taken to pieces: the benchmark's own view of it, which no contender has a part in.
struct Tag
{
  enum Kind
  {
    opening,
    closing,
    self_closing,
    text,
    section, // CDATA
    comment,
    instruction,
    document_type
  };

  struct Attribute
  {
    std::string_view space; // in front of it
    std::string_view name;
    char quote;
    std::string_view value;
  };

  Kind kind = text;
  std::string_view whole;
  std::string_view content; // the name of a tag; of all else what stands between the marks
  std::vector<Attribute> attributes;
};

// Takes the pieces of a document one after the other.
class Tags
{
public:
  explicit Tags(std::string_view document) : left(document) {}

  // False at the end; throws std::runtime_error where the document is not well-formed enough to be taken to pieces.
  bool next(Tag& tag);

private:
  void take(Tag& tag, Tag::Kind kind, std::size_t size, std::size_t before, std::size_t behind);
  void take_until(Tag& tag, Tag::Kind kind, std::string_view mark, std::string_view end);
  void take_document_type(Tag& tag);
  void take_tag(Tag& tag);

  std::string_view left;
};
