#pragma once

#include "../Engine.h"

#include <axsValidation.h>

#include <filesystem>
#include <memory>
#include <string>

/// What a validator says; no words where all is good.
struct Verdict
{
  bool is_good = false;
  std::string words;
};

/// Whether a verdict has the words in it, or is good where there are none.
bool says(Verdict const& verdict, std::string const& words);

/// The number in a variable of the environment, by which more is asked for than usual.
int number_of(char const* variable, int otherwise);

/// A schema, and what ours says of it.
class JudgedSchema
{
public:
  explicit JudgedSchema(std::string const& schema);

  /// Of a file that has this schema.
  JudgedSchema(std::filesystem::path const& file, std::string const& schema);

  Verdict schema() const;
  Verdict document(std::string const& text) const;

private:
  std::unique_ptr<TestFile> file;
  axsValidation validation;
};
