#pragma once

#include <memory>
#include <string_view>
#include <vector>

class axmNode;
class axsEditSession;
class axsNode;

/// A piece of XML by itself: what may stand in an element.
namespace axsFragment
{
/// The nodes that `fragment`, in UTF-8, is, detached, with the namespaces that are bound in `parent`, an element or the
/// document. Throws axsEditFault where it is not well-formed, where it has a prefix that is not bound, or not to what the
/// session's prefixes say; std::bad_alloc when memory runs out.
std::vector<std::shared_ptr<axmNode>> parse(axsEditSession& session, axsNode const& parent, std::string_view fragment);
}
