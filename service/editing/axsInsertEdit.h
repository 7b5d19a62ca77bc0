#pragma once

#include "axsEditPlace.h"

#include <cstddef>
#include <string_view>

class axsEditSession;

/// Puts a fragment of XML beside or into elements.
namespace axsInsertEdit
{
/// Those that `xpath` selects; returns how many, and throws as axsEditSession does.
std::size_t run(axsEditSession& session, std::string_view xpath, axsEditPlace where, std::string_view fragment);
}
