#include "axsSaving.h"

#include "axsHandle.h"
#include "axsSaver.h"

apString axsSaving::obstacle(axmDocument const& document)
{
  axsNode const* const node = axsHandle::node_of(document);
  if (node == nullptr || !node->is_document())
    return APSTRING("the document is of another engine");
  return apString::from_utf8(axsSaver::obstacle(static_cast<axsTree const&>(*node)));
}
