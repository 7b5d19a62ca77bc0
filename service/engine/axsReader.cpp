#include "axsReader.h"

#include "axsHandle.h"
#include "axsParser.h"
#include "axsSource.h"
#include "axsTreeBuilder.h"
#include "axsXercesParser.h"

namespace
{
axsDomDocument& tree_of(axmDocument& document)
{
  return static_cast<axsDomDocument&>(*axsHandle::node_of(document));
}
}

std::shared_ptr<axmDocument> axsReader::read(axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  axsParser(source, options, builder).run();
  return document;
}

std::shared_ptr<axmDocument> axsReader::parse(axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  axsXercesParser::parse(source, options, builder);
  return document;
}
