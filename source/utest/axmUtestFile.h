#pragma once

#include <apPath.h>

// A file that a group of checks writes or has written, which is gone when the group is over. Not installed.
class axmUtestFile
{
public:
  explicit axmUtestFile(apPath const& path);
  axmUtestFile(axmUtestFile const&) = delete;
  axmUtestFile& operator=(axmUtestFile const&) = delete;
  ~axmUtestFile();

private:
  apPath path;
};
