#pragma once

#include "axsXPathExpression.h"

#include <string_view>

class axsName;

/// The node test of a step, bound to a document. A plain value that belongs to one evaluation.
struct axsXPathNodeTest
{
  axsXPathExpression::NodeTest::Kind kind = axsXPathExpression::NodeTest::any_node;

  /// Of a name test without a prefix: the name in the document, null if no node ever had it.
  axsName const* name = nullptr;

  /// Of a name test with a prefix: that there is one, and the namespace it stands for.
  bool has_prefix = false;
  std::string_view uri;

  /// The name without its prefix; of an instruction test the target, with `has_target`.
  std::string_view local;
  bool has_target = false;
};
