#pragma once

#include "axsExport.h"
#include <apByteArray.h>
#include <apPath.h>
#include <apString.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class axsByteStream;
class axsSchemaComponents;

/// Checks documents without loading them: that they are well-formed and, where the options name schemas, valid (XML Schema
/// 1.0, with the rules that hold for loading, see axs_register()). The schemas are compiled once, for all documents.
///
/// A document is read in one pass, whatever its size; memory grows with its depth, its IDs and its keys only. Beyond what
/// axmDocumentFactory tells, all that is wrong with a document can be had, up to a bound.
///
/// May be used in many threads at once.
class AXS_API axsValidation
{
public:
  /// As many as one works on at a time.
  static constexpr std::size_t default_max_errors = 20;

  struct Result
  {
    /// What is wrong, in the order in which it is found; empty of a good document. Where the document is not well-formed,
    /// that is the last one.
    std::vector<axmParseError> errors;
    /// False where the bound was reached, so that there may be more.
    bool is_whole = true;
    /// Whether any of the document was held against a declaration of the schemas. Where nothing of it is declared, it is
    /// good if it is well-formed.
    bool has_assessed = false;
  };

  /// Told now and then how many bytes have been read.
  using Progress = std::function<void(std::uint64_t bytes)>;

  /// Compiles the schemas of the options. What is wrong with them is in schema_errors().
  /// Throws std::bad_alloc when memory runs out.
  explicit axsValidation(axmLoadOptions const& given);
  axsValidation(axsValidation const&) = delete;
  axsValidation& operator=(axsValidation const&) = delete;
  ~axsValidation();

  /// What is wrong with the schemas, up to default_max_errors of it. Unless it is empty, each check tells of it.
  std::vector<axmParseError> const& schema_errors() const noexcept { return wrong_schemas; }

  /// Whether documents are held against schemas, and not only read.
  bool has_schemas() const noexcept { return schema != nullptr; }

  /// Checks the document in a file, in bytes, or in a stream. When memory runs out, that is an error like any other.
  Result check(apPath const& file, std::size_t max_errors = default_max_errors, Progress const& progress = {}) const;
  Result check(
    apByteArray const& data, std::size_t max_errors = default_max_errors, Progress const& progress = {}) const;
  Result check(axsByteStream& stream, std::size_t max_errors = default_max_errors, Progress const& progress = {}) const;

  /// The same of a stream that has the bytes of a file: errors name it, and what the document refers to is looked for from
  /// there.
  Result check(axsByteStream& stream, apPath const& name, std::size_t max_errors = default_max_errors,
    Progress const& progress = {}) const;

  /// What is wrong with the schema document in a file and those that it refers to, for whatever namespace it is.
  static std::vector<axmParseError> check_schema(apPath const& file, std::size_t max_errors = default_max_errors);

  /// The same together with the schemas that the options name: these are read where a document imports their namespaces,
  /// wherever it says that they lie. What is wrong with them is told, too.
  static std::vector<axmParseError> check_schema(
    apPath const& file, axmLoadOptions const& others, std::size_t max_errors = default_max_errors);

private:
  template <class Open>
  Result run(Open open, std::size_t max_errors, Progress const& progress) const;

  axmLoadOptions options;
  std::shared_ptr<axsSchemaComponents const> schema;
  std::vector<axmParseError> wrong_schemas;
};
