#pragma once

#include <memory>
#include <string>

/// libxml2, another validator by XML Schema 1.0, as a judge of ours. It reads nothing outside of what it is given.
class SchemaJudge
{
public:
  explicit SchemaJudge(std::string const& schema);
  SchemaJudge(SchemaJudge const&) = delete;
  SchemaJudge& operator=(SchemaJudge const&) = delete;
  ~SchemaJudge();

  /// Whether it takes the schema for right, and a document for valid. What it says otherwise is in words().
  bool takes_schema() const;
  bool takes(std::string const& document);

  std::string const& words() const noexcept { return said; }

private:
  struct Schema;

  std::string said;
  std::unique_ptr<Schema> schema;
};
