#include "axsReader.h"

#include "axsHandle.h"
#include "axsScanner.h"
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
  std::shared_ptr<axmDocument> document = source.can_rewind() ? scan(source, options, uri) : nullptr;
  return document != nullptr ? document : parse(source, options, uri);
}

std::shared_ptr<axmDocument> axsReader::scan(axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  if (axsScanner::scan(source, options, builder))
    return document;
  source.rewind();
  return nullptr;
}

std::shared_ptr<axmDocument> axsReader::parse(axsSource& source, axmLoadOptions const& options, apString const& uri)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(uri);
  axsTreeBuilder builder(tree_of(*document));
  axsXercesParser::parse(source, options, builder);
  return document;
}
