#include "axsValidation.h"

#include "axsAssessment.h"
#include "axsByteStream.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSchemas.h"
#include "axsSource.h"
#include "axsValidityErrors.h"

#include <new>

namespace
{
// Between two calls of a progress function.
int const max_steps = 1024;

// Takes a document that is only to be read.
class Silent final : public axsParseHandler
{
public:
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const&) override {}
  void end_element() override {}
  void text(std::string_view, bool) override {}
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

private:
  axsNameTable names;
};

void read(
  axsSource& source, axmLoadOptions const& options, axsParseHandler& handler, axsValidation::Progress const& progress)
{
  axsParser parser(source, options, handler);
  if (!progress)
    return parser.run();
  for (int steps = 0; parser.step(); ++steps)
    if (steps % max_steps == 0)
      progress(source.consumed());
}
}

axsValidation::axsValidation(axmLoadOptions const& given) : options(given)
{
  if (!axsSchemas::are_wanted(options))
    return;
  std::vector<axsReadError> errors;
  schema = axsSchemas::compile(options, errors);
  for (axsReadError const& error : errors)
    wrong_schemas.push_back(error.record());
}

axsValidation::~axsValidation() = default;

std::vector<axmParseError> axsValidation::check_schema(apPath const& file, std::size_t max_errors)
{
  return check_schema(file, axmLoadOptions(), max_errors);
}

std::vector<axmParseError> axsValidation::check_schema(
  apPath const& file, axmLoadOptions const& others, std::size_t max_errors)
{
  std::vector<axmParseError> wrong;
  for (axsReadError const& error : axsSchemas::check(file, others, max_errors))
    wrong.push_back(error.record());
  return wrong;
}

axsValidation::Result axsValidation::check(apPath const& file, std::size_t max_errors, Progress const& progress) const
{
  return run([&] { return std::make_unique<axsSource>(file); }, max_errors, progress);
}

axsValidation::Result axsValidation::check(
  apByteArray const& data, std::size_t max_errors, Progress const& progress) const
{
  return run([&] { return std::make_unique<axsSource>(data); }, max_errors, progress);
}

axsValidation::Result axsValidation::check(
  axsByteStream& stream, std::size_t max_errors, Progress const& progress) const
{
  return check(stream, apPath(), max_errors, progress);
}

axsValidation::Result axsValidation::check(
  axsByteStream& stream, apPath const& name, std::size_t max_errors, Progress const& progress) const
{
  return run([&] { return std::make_unique<axsSource>(stream, name); }, max_errors, progress);
}

template <class Open>
axsValidation::Result axsValidation::run(Open open, std::size_t max_errors, Progress const& progress) const
{
  Result result;
  result.errors = wrong_schemas;
  if (!wrong_schemas.empty())
    return result;
  axsValidityErrors errors(max_errors);
  try
  {
    auto const source = open();
    if (schema == nullptr)
    {
      Silent silent;
      read(*source, options, silent, progress);
      return result;
    }
    axsAssessment assessment(*schema, nullptr, errors, result.has_assessed);
    read(*source, options, assessment, progress);
  }
  catch (axsReadError const& error)
  {
    // The last one that there may be of those that are kept is thrown, too.
    if (!errors.is_full())
      errors.append(error);
    else
      result.is_whole = false;
  }
  catch (std::bad_alloc const&)
  {
    errors.append({APSTRING("Memory ran out"), apString()});
  }
  for (axsReadError const& error : errors.all())
    result.errors.push_back(error.record());
  return result;
}
