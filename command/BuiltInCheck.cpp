#include "BuiltInCheck.h"

#include "InputStream.h"

#include <axsValidation.h>

#include <utility>

namespace
{
class Check final : public BuiltInCheck
{
public:
  explicit Check(axmLoadOptions const& options) : validation(options) {}

  std::vector<axmParseError> const& schema_errors() const override { return validation.schema_errors(); }

  Result run(std::string const& file, std::size_t max_errors,
    std::function<void(std::uint64_t bytes)> const& progress) const override
  {
    InputStream input(file);
    apPath const path(file == "-" ? "" : file.c_str());
    // What cannot be opened is left to the engine, which says why.
    axsValidation::Result result = input.is_open() ? validation.check(input, path, max_errors, progress)
                                                   : validation.check(path, max_errors, progress);
    bool const has_lines = result.errors.empty() || input.is_plain_file();
    return {std::move(result.errors), result.is_whole, result.has_assessed, has_lines};
  }

private:
  axsValidation validation;
};
}

std::vector<axmParseError> built_in_schema_check(
  std::string const& file, axmLoadOptions const& options, std::size_t max_errors)
{
  return axsValidation::check_schema(apPath(file.c_str()), options, max_errors);
}

std::unique_ptr<BuiltInCheck> built_in_check(axmLoadOptions const& options)
{
  return std::make_unique<Check>(options);
}
