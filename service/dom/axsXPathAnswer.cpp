#include "axsXPathAnswer.h"

axsXPath::Value axsXPathAnswer::of(axsXPathQuery::Value const& found)
{
  axsXPath::Value made;
  made.type = found.type;
  made.nodes.reserve(found.nodes.size());
  for (axsXPathNode const each : found.nodes)
    made.nodes.push_back(axsHandle::of(each.node()));
  made.boolean = found.boolean;
  made.number = found.number;
  made.text = apString::from_utf8(found.text);
  return made;
}
