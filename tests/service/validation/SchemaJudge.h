#pragma once

#include <filesystem>
#include <memory>
#include <string>

struct _xmlSchemaParserCtxt;

/// libxml2, another validator by XML Schema 1.0, as a judge of ours. It reads nothing from a network.
class SchemaJudge
{
public:
  explicit SchemaJudge(std::string const& schema);
  /// Of a file, which may refer to other ones.
  explicit SchemaJudge(std::filesystem::path const& file);
  SchemaJudge(SchemaJudge const&) = delete;
  SchemaJudge& operator=(SchemaJudge const&) = delete;
  ~SchemaJudge();

  /// Whether it takes the schema for right, and a document for valid. What it says otherwise is in words().
  bool takes_schema() const;
  bool takes(std::string const& document);

  std::string const& words() const noexcept { return said; }

private:
  struct Schema;

  void parse(_xmlSchemaParserCtxt* parser);

  std::string said;
  std::unique_ptr<Schema> schema;
};
