#pragma once

#include "axsXPathPrefixes.h"

#include <memory>
#include <string_view>
#include <vector>

class axmNode;
class axsNode;
class axsXPathScopes;

/// A piece of XML by itself: what may stand in an element.
namespace axsFragment
{
/// The nodes that `fragment`, in UTF-8, is, detached and of the document of `parent`, with the namespaces that are bound in
/// that, an element or the document; `scopes` is of the same document. All white space is kept. Throws axsReadError, with a
/// place in the fragment, where it is not well-formed or has a prefix that is not bound, or bound to something else than in
/// `expected`; std::bad_alloc when memory runs out.
std::vector<std::shared_ptr<axmNode>> parse(
  axsNode const& parent, axsXPathScopes& scopes, axsXPathPrefixes const& expected, std::string_view fragment);
}
