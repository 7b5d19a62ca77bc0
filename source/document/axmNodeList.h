#pragma once

#include "axmElement.h"
#include "axmExport.h"

#include <memory>

/// A list of nodes with a cursor to walk it: children, or what a search found (DOM Core, interface NodeList).
///
/// An engine supplies access and length; the cursor is implemented here on top of them and reads the length afresh at
/// every step, so a list that changes meanwhile is followed as it stands. Owned by whoever holds its pointer. Nodes that
/// are not elements are handed out as elements too, which answer as the nodes they stand for.
/// Costs, with the default engine: length() of children O(n) once, otherwise a constant time; at() a step for each item
/// between the last place and the next one, and on average of many no more than O(log n); a result of a search has them
/// at hand.
/// Threads: as the nodes in it. The order of the virtual operations is a promise to engines built separately.
class AXM_API axmNodeList
{
public:
  /// The cursor stands before the first item.
  axmNodeList();
  axmNodeList(axmNodeList const&) = delete;
  axmNodeList& operator=(axmNodeList const&) = delete;
  virtual ~axmNodeList();

  /// The item at `index`, 0 <= index < length(), in document order; empty elsewhere.
  virtual std::shared_ptr<axmElement> at(int index) = 0;

  /// The number of items.
  virtual int length() const = 0;

  /// The item that the cursor stands on; to be called only while invalid() is false.
  virtual std::shared_ptr<axmElement> operator()();

  /// Whether there are no items.
  virtual bool isEmpty() const;

  /// Moves the cursor to the next item and tells whether there is one. Behind the last item the cursor stands past the
  /// end for one step, and the step after that is at the first item again.
  virtual bool operator++();

  /// Puts the cursor before the first item.
  virtual void reset();

  /// Moves the cursor as operator++ does and hands out the item it comes to, an empty pointer if there is none.
  virtual std::shared_ptr<axmElement> next_node();

  /// Whether the cursor stands on no item.
  virtual bool invalid() const;

private:
  int cursor;
};
