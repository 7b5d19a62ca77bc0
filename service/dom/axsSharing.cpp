#include "axsSharing.h"

#include "axsHandle.h"

bool axsSharing::share(std::shared_ptr<axmDocument>& document)
{
  axsNode* const node = document == nullptr ? nullptr : axsHandle::node_of(*document);
  if (node == nullptr)
    return false;
  auto& shared = static_cast<axsDomDocument&>(*node);
  if (shared.is_shared())
    return true;
  if (document.use_count() != 1 || !shared.is_held_by_one())
    return false;
  document = shared.prepare_sharing();
  shared.begin_sharing();
  return true;
}

bool axsSharing::is_shared(axmNode const& node) noexcept
{
  axsNode const* const record = axsHandle::node_of(node);
  return record != nullptr && record->tree().is_shared();
}
