#pragma once

#include <cstddef>
#include <string_view>

class axsEditSession;

/// Gives elements and attributes another name.
namespace axsRenameEdit
{
/// Those that `xpath` selects; returns how many, and throws as axsEditSession does.
std::size_t run(axsEditSession& session, std::string_view xpath, std::string_view name);
}
