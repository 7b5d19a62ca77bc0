#pragma once

/// How a file is opened.
enum apTarnMode : int
{
  /// An existing file, for reading; its bytes come unchanged.
  apTarnModeRead = 0
};
