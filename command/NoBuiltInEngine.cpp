#include "BuiltInEngine.h"

std::shared_ptr<axmDocumentFactory> built_in_engine()
{
  return nullptr;
}

std::string built_in_obstacle(axmDocument const&)
{
  return {};
}

InputBytes built_in_bytes(std::string const&, bool)
{
  return {};
}

XPathAnswer built_in_answer(axmNode&, std::string const&, Namespaces const&)
{
  return {};
}

std::vector<int> built_in_lines(axmDocument const&, apByteArray const&, std::vector<std::shared_ptr<axmNode>> const&)
{
  return {};
}
