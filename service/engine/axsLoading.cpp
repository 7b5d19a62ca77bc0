#include "axsLoading.h"

#include "axsFragment.h"
#include "axsHandle.h"
#include "axsLoadAttempt.h"
#include "axsLoader.h"
#include "axsReadError.h"
#include "axsXPathScopes.h"

std::shared_ptr<axmDocument> axsLoading::with_spaces(
  apPath const& path, axmLoadOptions const& options, axmParseError& error)
{
  return axsLoadAttempt::make(&axsLoader::load_with_spaces, path, options, error);
}

std::shared_ptr<axmDocument> axsLoading::with_spaces(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
{
  return axsLoadAttempt::make(&axsLoader::load_with_spaces, data, options, error);
}

std::vector<std::shared_ptr<axmNode>> axsLoading::fragment(axmNode& context, std::string_view xml, axmParseError& error)
{
  axsNode const* const parent = axsHandle::node_of(context);
  if (parent == nullptr || !(parent->is_element() || parent->is_document()) || parent->tree().is_shared())
  {
    error = axmParseError(APSTRING("The context is no element or document of this engine that can be changed"));
    return {};
  }
  try
  {
    axsXPathScopes scopes(parent->tree());
    return axsFragment::parse(*parent, scopes, {}, xml);
  }
  catch (axsReadError const& wrong)
  {
    error = wrong.record();
    return {};
  }
}
