#include "axsComparison.h"

#include "axsCompared.h"
#include "axsFlatTreeBuilder.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <axmLoadOptions.h>

namespace
{
template <class Open>
bool read(Open open, axsCompared& compared, axsFlatTree& tree, axmParseError& error)
try
{
  axsFlatTreeRules rules;
  rules.leaves_out_space = compared.options.ignores_space || compared.options.ignores_layout;
  rules.joins_space = compared.options.ignores_space;
  rules.leaves_out_comments = compared.options.ignores_comments;
  std::unique_ptr<axsSource> const source = open();
  axmLoadOptions const options(axmValidateNone);
  axsFlatTreeBuilder builder(tree, compared.names, rules);
  axsParser(*source, options, builder).run();
  builder.finish();
  return true;
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return false;
}
}

axsComparison::axsComparison(axsCompareOptions const& options) : compared(std::make_unique<axsCompared>(options)) {}

axsComparison::~axsComparison() = default;

bool axsComparison::read_first(apPath const& file, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(file); }, *compared, compared->first, error);
}

bool axsComparison::read_first(axsByteStream& stream, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(stream, apPath()); }, *compared, compared->first, error);
}

bool axsComparison::read_second(apPath const& file, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(file); }, *compared, compared->second, error);
}

bool axsComparison::read_second(axsByteStream& stream, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(stream, apPath()); }, *compared, compared->second, error);
}

bool axsComparison::run(Take const& take)
{
  return compared->run(take);
}
