#pragma once

#include "axmExport.h"
#include "axmNode.h"

#include <apString.h>

#include <memory>

/// The attributes of an element by name (DOM Core, interface NamedNodeMap). Its items are attribute nodes.
///
/// Interface, supplied by an engine; live in both directions. Owned by whoever holds its pointer; an attribute node
/// handed out stays valid, with its value, after it was taken out of the map.
/// A name that is none finds nothing. Costs, with the default engine: as axmElement; a walk by rising indexes costs a step
/// for each attribute.
/// Threads: as the nodes in it. The order of the virtual operations, with the destructor at the end, is a promise to
/// engines built separately.
class AXM_API axmNamedNodeMap
{
public:
  axmNamedNodeMap();
  axmNamedNodeMap(axmNamedNodeMap const&) = delete;
  axmNamedNodeMap& operator=(axmNamedNodeMap const&) = delete;

  /// The number of attributes.
  virtual int getLength() = 0;

  /// The attribute at `index`, 0 <= index < getLength(), in an order of the engine's; empty elsewhere.
  virtual std::shared_ptr<axmNode> item(int index) = 0;

  /// The attribute `name`, an empty pointer if there is none.
  virtual std::shared_ptr<axmNode> getNamedItem(apString const& name) = 0;

  /// Takes the attribute `name` out and returns it; an empty pointer if there is none.
  virtual std::shared_ptr<axmNode> removeNamedItem(apString const& name) = 0;

  /// Puts the attribute node `node` in, under its own name, and returns the one it replaces, which still has its value;
  /// an empty pointer if there was none, or if `node` cannot be put in, as an empty one. One that is in another element, or
  /// of another document, may be taken from there or refused.
  virtual std::shared_ptr<axmNode> setNamedItem(std::shared_ptr<axmNode> node) = 0;

  virtual ~axmNamedNodeMap();
};
