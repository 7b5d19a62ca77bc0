#pragma once

#include <apPath.h>

#include <xercesc/util/XercesDefs.hpp>

#include <string>

/// What the parser knows files by: "axs:" and the path as it was given, each byte that a URL could mean otherwise as %XX.
/// Whatever the name, the parser passes it on unchanged, and nobody but us opens it.
namespace axsXercesId
{
std::basic_string<XMLCh> of(apPath const& path);

/// The path back; empty for what is none of ours.
apPath path(XMLCh const* system_id);
}
