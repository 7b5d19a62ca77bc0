#pragma once

#include <apPath.h>

#include <string>
#include <string_view>

/// What a schemaLocation names (Part 1, 4.3.1): local files only.
namespace axsSchemaLocation
{
/// The file that a reference in the file `base` names: the one of just that name, if there is one, otherwise the one of
/// the name with its %XX decoded; relative to the folder of `base`. The empty path for what is no local file.
apPath resolve(apPath const& base, std::string_view reference);

/// The same text for all paths by which one file can be named.
std::string identity(apPath const& path);
}
