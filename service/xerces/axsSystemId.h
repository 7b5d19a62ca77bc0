#pragma once

#include <apPath.h>
#include <apString.h>

#include <xercesc/util/XercesDefs.hpp>

#include <string>
#include <string_view>

/// What the parser knows files by: "axs:" and the path as it was given, each byte that a URL could mean otherwise as %XX.
/// Whatever the name, the parser passes it on unchanged, and nobody but us opens it.
namespace axsSystemId
{
std::basic_string<XMLCh> of(apPath const& path);

/// The path back; empty for what is none of ours.
apPath path(XMLCh const* system_id);

/// Whether a reference names something by itself: it has a scheme or begins at a root.
bool is_absolute(std::string_view reference) noexcept;

/// The file that a relative reference in the file `base` names: the one of just that name, if there is one, otherwise
/// the one of the name with its %XX decoded. Without a base, relative to the working directory.
apPath resolve(apPath const& base, std::string_view reference);

/// The file of a "file:///" URL; the empty path for anything else.
apPath file_url_path(std::string_view url);

/// `text` with its %XX decoded.
std::string decode(std::string_view text);
}
