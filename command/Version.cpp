#include "Version.h"

#include "BuildInfo.h"

#include <CLI/Version.hpp>

#if defined(AXM_HAS_ENGINE)
#  include <nlohmann/json.hpp>
#endif
#if defined(AXM_HAS_ZLIB)
#  include <zlib.h>
#endif
#if defined(AXM_HAS_LZMA)
#  include <lzma.h>
#endif
#if defined(AXM_HAS_ZSTD)
#  include <zstd.h>
#endif

namespace
{
std::string engine()
{
#if defined(AXM_HAS_ENGINE)
  return "axs, built in";
#else
  return "none";
#endif
}

// Of what is linked at run time, the version that is there.
std::string libraries()
{
  std::string text = "CLI11 " CLI11_VERSION;
#if defined(AXM_HAS_ENGINE)
  text += ", nlohmann-json " + std::to_string(NLOHMANN_JSON_VERSION_MAJOR) + "." +
          std::to_string(NLOHMANN_JSON_VERSION_MINOR) + "." + std::to_string(NLOHMANN_JSON_VERSION_PATCH);
#endif
#if defined(AXM_HAS_ZLIB)
  text += std::string(", zlib ") + zlibVersion();
#endif
#if defined(AXM_HAS_LZMA)
  text += std::string(", liblzma ") + lzma_version_string();
#endif
#if defined(AXM_HAS_ZSTD)
  text += std::string(", zstd ") + ZSTD_versionString();
#endif
  return text;
}
}

std::string version_text()
{
  std::string const type = AXM_BUILD_TYPE;
  return "axm " AXM_VERSION "\n"
         "compiler:  " AXM_COMPILER ", " +
         (type.empty() ? "no build type" : type) +
         "\n"
         "system:    " AXM_SYSTEM "\n"
         "engine:    " +
         engine() +
         "\n"
         "libraries: " +
         libraries();
}
