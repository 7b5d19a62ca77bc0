#pragma once

#include "axmAbstractXmlReader.h"
#include "axmExport.h"

#include <apITarnFilecoPrf.h>
#include <utPtrRelease.h>

#include <memory>

/// Makes readers for files that are open.
///
/// Interface; the order of the virtual operations is a promise to factories built separately.
class AXM_API axmIXmlFileFactory
{
public:
  axmIXmlFileFactory();

  /// A new reader, which shares `file`; never empty. The first argument says that the caller owns the reader, whatever
  /// its value. Throws std::bad_alloc when memory runs out.
  virtual std::unique_ptr<axmAbstractXmlReader> create_xml_reader_file(
    utPtrRelease release, apITarnFilecoPrf const& file) const = 0;

  virtual ~axmIXmlFileFactory();
};
