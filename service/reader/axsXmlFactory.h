#pragma once

#include "axsExport.h"
#include <axmIXmlFileFactory.h>
#include <axmIXmlPathFactory.h>
#include <axmLoadOptions.h>

/// Makes readers that keep to all of XML's rules; see axsXmlReader. A program that uses the factories' interfaces gets
/// them by naming this class instead of axmSimpleXmlFactory.
///
/// Of the options, those about entities count. Holds nothing else; one factory may be used by several threads at once.
class AXS_API axsXmlFactory : public axmIXmlPathFactory, public axmIXmlFileFactory
{
public:
  axsXmlFactory();
  explicit axsXmlFactory(axmLoadOptions const& options);
  ~axsXmlFactory() override;

  /// That a file cannot be opened shows when the reader reads it.
  std::unique_ptr<axmAbstractXmlReader> create_xml_reader_path(utPtrRelease release, apPath const& path) const override;

  /// The file is read on from where it is, piece by piece, while the walk goes on.
  std::unique_ptr<axmAbstractXmlReader> create_xml_reader_file(
    utPtrRelease release, apITarnFilecoPrf const& file) const override;

private:
  axmLoadOptions options;
};
