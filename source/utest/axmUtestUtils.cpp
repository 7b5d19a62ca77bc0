#include "axmUtestUtils.h"

#include "axmUtestGroup.h"

#include <apProcessControl.h>
#include <apStringFormatter.h>
#include <utUnitTest.h>

#include <cstdio>
#include <cstring>

apPath axmUtestUtils::uniquify_filename(apString const& base, apString const& extension)
{
  return apStringFormatter::format(L"%s_%d.%s", base.c_str(), apProcessControl::getpid(), extension.c_str());
}

void axmUtestUtils::write_data(apPath const& path, char const* text)
{
  axmUtestGroup const group(utUnitTest::get_tester(), "source/utest/axmUtestUtils", "axmUtestUtils::write_data");
  group.prerequisite(path.delete_file(), "path.delete_file()", __LINE__, "Prerequisite: delete existing file");
  std::FILE* const fp = path.file_open(apPath::write_mode());
  if (!group.prerequisite(fp != nullptr, "fp", __LINE__, "Prerequisite: unable to open file"))
    return;
  std::fwrite(text, 1, std::strlen(text), fp);
  std::fclose(fp);
}
