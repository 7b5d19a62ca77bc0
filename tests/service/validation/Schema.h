#pragma once

#include "../Engine.h"

#include <axsValidation.h>

#include <string>

/// A schema in a file, with which documents are checked.
class Schema
{
public:
  /// `content` is what stands in its root element, which binds xs and has the `attributes`.
  explicit Schema(std::string const& content, std::string const& attributes = {});

  /// What is wrong with the schema itself: its messages, each ended by a line break.
  std::string fault() const;

  /// What is wrong with a document: "line: message" of each, ended by a line break.
  std::string wrong(std::string const& document, std::size_t max_errors = axsValidation::default_max_errors) const;

  axsValidation const& validation() const { return checking; }

private:
  static axmLoadOptions options(apPath const& path);

  TestFile file;
  axsValidation checking;
};
