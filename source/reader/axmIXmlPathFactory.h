#pragma once

#include "axmAbstractXmlReader.h"
#include "axmExport.h"

#include <apPath.h>
#include <utPtrRelease.h>

#include <memory>

/// Makes readers for files that a path names.
///
/// Interface; the order of the virtual operations is a promise to factories built separately.
class AXM_API axmIXmlPathFactory
{
public:
  axmIXmlPathFactory();

  /// A new reader for the file at `path`; never empty, whether or not there is such a file. The first argument says that
  /// the caller owns the reader, whatever its value. Throws std::bad_alloc when memory runs out.
  virtual std::unique_ptr<axmAbstractXmlReader> create_xml_reader_path(
    utPtrRelease release, apPath const& path) const = 0;

  virtual ~axmIXmlPathFactory();
};
