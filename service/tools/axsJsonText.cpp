#include "axsJsonText.h"

#include "axsByteStream.h"
#include "axsFlatTreeBuilder.h"
#include "axsFlatTreeNames.h"
#include "axsJsonTree.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <axmLoadOptions.h>

#include <memory>

namespace
{
template <class Open>
bool convert_from(Open open, unsigned indent, axmParseError& error, axsJsonText::Write const& write)
try
{
  axsFlatTreeRules rules;
  rules.leaves_out_space = true;
  axsFlatTreeNames names;
  axsFlatTree tree;
  std::unique_ptr<axsSource> const source = open();
  axmLoadOptions const options(axmValidateNone);
  axsFlatTreeBuilder builder(tree, names, rules);
  axsParser(*source, options, builder).run();
  builder.finish();
  axsJsonTree(tree, indent, write).run();
  return true;
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return false;
}
}

bool axsJsonText::convert(apPath const& file, unsigned indent, axmParseError& error, Write const& write)
{
  return convert_from([&] { return std::make_unique<axsSource>(file); }, indent, error, write);
}

bool axsJsonText::convert(axsByteStream& stream, unsigned indent, axmParseError& error, Write const& write)
{
  return convert_from([&] { return std::make_unique<axsSource>(stream, apPath()); }, indent, error, write);
}
