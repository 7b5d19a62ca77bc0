#include "axsXmlFactory.h"

#include "axsTarnStream.h"
#include "axsXmlReader.h"
#include "axsXmlWalk.h"

axsXmlFactory::axsXmlFactory() = default;
axsXmlFactory::axsXmlFactory(axmLoadOptions const& given) : options(given) {}
axsXmlFactory::~axsXmlFactory() = default;

std::unique_ptr<axmAbstractXmlReader> axsXmlFactory::create_xml_reader_path(utPtrRelease, apPath const& path) const
{
  auto open = [path] { return std::make_unique<axsSource>(path); };
  return std::unique_ptr<axmAbstractXmlReader>(
    new axsXmlReader(std::make_unique<axsXmlWalk>(std::move(open), options)));
}

std::unique_ptr<axmAbstractXmlReader> axsXmlFactory::create_xml_reader_file(
  utPtrRelease, apITarnFilecoPrf const& file) const
{
  auto const stream = std::make_shared<axsTarnStream>(file);
  auto open = [stream]
  {
    stream->seek(0);
    return std::make_unique<axsSource>(*stream, apPath());
  };
  return std::unique_ptr<axmAbstractXmlReader>(
    new axsXmlReader(std::make_unique<axsXmlWalk>(std::move(open), options)));
}
