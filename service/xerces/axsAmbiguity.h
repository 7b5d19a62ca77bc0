#pragma once

#include "axsReadError.h"

#include <xercesc/validators/common/GrammarResolver.hpp>

#include <string>

/// The error for a type whose content is ambiguous (XML Schema Part 1, 3.8.6, Unique Particle Attribution). The validator
/// finds it once all schemas have been read, and tells the name of the type only, which types without one get from it.
namespace axsAmbiguity
{
/// `text` is what the validator says; the type is looked for in `grammars`. Without a place where it is not found.
axsReadError explained(std::string const& text, xercesc::GrammarResolver& grammars);
}
