#include "axmUtestFile.h"

axmUtestFile::axmUtestFile(apPath const& given) : path(given) {}

axmUtestFile::~axmUtestFile()
{
  path.delete_file();
}
