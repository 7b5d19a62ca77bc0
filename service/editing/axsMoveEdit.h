#pragma once

#include "axsEditPlace.h"

#include <cstddef>
#include <string_view>

class axsEditSession;

/// Moves nodes, with all that is in them, within a document.
namespace axsMoveEdit
{
/// The elements, comments and instructions that `xpath` selects, in their order, to the one that `target` selects; returns
/// how many, and throws as axsEditSession does.
std::size_t run(axsEditSession& session, std::string_view xpath, axsEditPlace where, std::string_view target);
}
