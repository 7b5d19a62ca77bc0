#include "axsComparison.h"

#include "axsCompared.h"
#include "axsComparedDocuments.h"
#include "axsFlatTreeBuilder.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <axmLoadOptions.h>

namespace
{
template <class Open>
bool read(Open open, axsComparedDocuments& documents, axsFlatTree& tree, axmParseError& error)
try
{
  axsFlatTreeRules rules;
  rules.leaves_out_space = documents.options.ignores_space || documents.options.ignores_layout;
  rules.joins_space = documents.options.ignores_space;
  rules.leaves_out_comments = documents.options.ignores_comments;
  std::unique_ptr<axsSource> const source = open();
  axmLoadOptions const options(axmValidateNone);
  axsFlatTreeBuilder builder(tree, documents.names, rules);
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

axsComparison::axsComparison(axsCompareOptions const& options) : documents(std::make_unique<axsComparedDocuments>())
{
  documents->options = options;
}

axsComparison::~axsComparison() = default;

bool axsComparison::read_first(apPath const& file, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(file); }, *documents, documents->first, error);
}

bool axsComparison::read_first(axsByteStream& stream, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(stream, apPath()); }, *documents, documents->first, error);
}

bool axsComparison::read_second(apPath const& file, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(file); }, *documents, documents->second, error);
}

bool axsComparison::read_second(axsByteStream& stream, axmParseError& error)
{
  return read([&] { return std::make_unique<axsSource>(stream, apPath()); }, *documents, documents->second, error);
}

bool axsComparison::run(Take const& take)
{
  return axsCompared(documents->first, documents->second).run(take);
}
