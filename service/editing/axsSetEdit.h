#pragma once

#include "axsAttributeSetting.h"

#include <cstddef>
#include <string_view>
#include <vector>

class axsEditSession;

/// Sets attributes, and the values of attributes and elements. Both return how many nodes are selected and throw as
/// axsEditSession does.
namespace axsSetEdit
{
/// Of each element that `xpath` selects. A new attribute stands after the others, with the white space and quotes of the
/// last one; one that has the value already stays as it is written.
std::size_t attributes(axsEditSession& session, std::string_view xpath, std::vector<axsAttributeSetting> settings);

/// Of each attribute, and of each element that has no content but text.
std::size_t value(axsEditSession& session, std::string_view xpath, std::string_view value);
}
