#include "axsLoader.h"

#include "axsAssessment.h"
#include "axsHandle.h"
#include "axsParser.h"
#include "axsSchemas.h"
#include "axsSource.h"
#include "axsTreeBuilder.h"
#include "axsValidityErrors.h"

namespace
{
axsDomDocument& tree_of(axmDocument& document)
{
  return static_cast<axsDomDocument&>(*axsHandle::node_of(document));
}

// The first thing that is not valid ends it.
void read_valid(axsSource& source, axmLoadOptions const& options, axsTreeBuilder& builder)
{
  std::shared_ptr<axsSchemaComponents const> const schema = axsSchemas::of(options);
  axsValidityErrors errors(1);
  bool has_assessed = false;
  axsAssessment assessment(*schema, &builder, errors, has_assessed);
  axsParser(source, options, assessment).run();
}

void read(axsSource& source, axmLoadOptions const& options, axsTreeBuilder& builder)
{
  if (axsSchemas::are_wanted(options))
    read_valid(source, options, builder);
  else
    axsParser(source, options, builder).run();
}
}

std::shared_ptr<axmDocument> axsLoader::load(axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  read(source, options, builder);
  return document;
}

std::shared_ptr<axmDocument> axsLoader::load_with_spaces(
  axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  builder.keep_all_spaces();
  read(source, options, builder);
  return document;
}
