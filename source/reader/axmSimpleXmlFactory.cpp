#include "axmSimpleXmlFactory.h"

#include "axmSimpleXmlReader.h"

#include <apTarnFileStdio.h>

axmSimpleXmlFactory::axmSimpleXmlFactory() = default;
axmSimpleXmlFactory::~axmSimpleXmlFactory() = default;

std::unique_ptr<axmAbstractXmlReader> axmSimpleXmlFactory::create_xml_reader_path(
  utPtrRelease, apPath const& path) const
{
  return create_xml_reader_file(
    utPtrReleaseToCaller, apITarnFilecoPrf(new apTarnFileStdio(path.path(), apTarnModeRead)));
}

std::unique_ptr<axmAbstractXmlReader> axmSimpleXmlFactory::create_xml_reader_file(
  utPtrRelease, apITarnFilecoPrf const& file) const
{
  return std::unique_ptr<axmAbstractXmlReader>(new axmSimpleXmlReader(file));
}
