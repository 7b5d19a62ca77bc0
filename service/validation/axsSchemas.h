#pragma once

#include <apPath.h>
#include <axmLoadOptions.h>

#include <cstddef>
#include <memory>
#include <vector>

struct axsReadError;
class axsSchemaComponents;

/// The schemas that load options name.
namespace axsSchemas
{
/// Whether the options ask for validation and name a schema.
bool are_wanted(axmLoadOptions const& options);

/// The schemas that they name, together; null, with what is wrong with them, when they cannot be used. Throws
/// std::bad_alloc when memory runs out.
std::shared_ptr<axsSchemaComponents const> compile(axmLoadOptions const& options, std::vector<axsReadError>& errors);

/// What is wrong with the schema document in the file and those that it refers to, up to that number. Where it imports a
/// namespace that the options name a schema for, that one is read.
std::vector<axsReadError> check(apPath const& file, axmLoadOptions const& others, std::size_t max_errors);

/// As compile(); throws axsReadError, with the first thing that is wrong with them, when they
/// cannot be used, std::bad_alloc when memory runs out.
std::shared_ptr<axsSchemaComponents const> of(axmLoadOptions const& options);
}
