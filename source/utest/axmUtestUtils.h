#pragma once

#include "axmExport.h"

#include <apPath.h>
#include <apString.h>

/// What the check classes do with files.
class AXM_API axmUtestUtils
{
public:
  /// The path "BASE_PROCESS.EXTENSION", so that suites which run at once in one folder do not share files.
  static apPath uniquify_filename(apString const& base, apString const& extension);

  /// Writes `text` to a new file at `path`, in the place of any old one. A failure is reported as a failed prerequisite.
  static void write_data(apPath const& path, char const* text);
};
