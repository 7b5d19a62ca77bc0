#include "axsSchemaCompiler.h"

#include "axsSchemaBuilder.h"
#include "axsSchemaLoader.h"

axsSchemaCompiler::axsSchemaCompiler(std::size_t limit) : found(limit), loader(std::make_unique<axsSchemaLoader>(found))
{
}

axsSchemaCompiler::~axsSchemaCompiler() = default;

void axsSchemaCompiler::add(std::string_view name_space, apPath const& path)
{
  loader->add(name_space, path);
}

void axsSchemaCompiler::add(apPath const& path)
{
  loader->add(path);
}

void axsSchemaCompiler::add_text(std::string_view name, std::string_view text)
{
  loader->add_text(name, text);
}

std::shared_ptr<axsSchemaComponents const> axsSchemaCompiler::compile()
{
  loader->read_all();
  return found.any() ? nullptr : axsSchemaBuilder(*loader, found).build();
}

std::vector<std::string> const& axsSchemaCompiler::files() const noexcept
{
  return loader->files();
}

std::vector<axsFileStamp> const& axsSchemaCompiler::stamps() const noexcept
{
  return loader->stamps();
}
