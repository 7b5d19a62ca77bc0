#pragma once

#include "axmExport.h"
#include "axmIXmlFileFactory.h"
#include "axmIXmlPathFactory.h"

/// Makes the streaming readers of the library:
///
///     axmSimpleXmlFactory const factory;
///     auto reader = factory.create_xml_reader_path(utPtrReleaseToCaller, apPath("books.xml"));
///     if (reader->read_file() && reader->down_to("books"))
///       for (; reader->down_to("book"); reader->up())
///         std::cout << reader->attribute("title", "?") << '\n';
///
/// Holds nothing; one factory may be used by several threads at once. A reader has read nothing when it is handed out.
class AXM_API axmSimpleXmlFactory : public axmIXmlPathFactory, public axmIXmlFileFactory
{
public:
  axmSimpleXmlFactory();
  ~axmSimpleXmlFactory() override;

  /// Opens the file, whose reader holds it open, and hands it to this object's create_xml_reader_file(). That a file
  /// cannot be opened shows when the reader reads it.
  std::unique_ptr<axmAbstractXmlReader> create_xml_reader_path(utPtrRelease release, apPath const& path) const override;

  std::unique_ptr<axmAbstractXmlReader> create_xml_reader_file(
    utPtrRelease release, apITarnFilecoPrf const& file) const override;
};
