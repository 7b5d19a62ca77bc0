#pragma once

#include <axmLoadOptions.h>

#include <memory>

class axsSchemaComponents;

/// The schemas that load options name.
namespace axsSchemas
{
/// Whether the options ask for validation and name a schema.
bool are_wanted(axmLoadOptions const& options);

/// The schemas that they name, together. Throws axsReadError, with the first thing that is wrong with them, when they
/// cannot be used, std::bad_alloc when memory runs out.
std::shared_ptr<axsSchemaComponents const> of(axmLoadOptions const& options);
}
