#pragma once

#include "axsExport.h"
#include "axsXPathError.h"
#include "axsXPathLimits.h"
#include "axsXPathPrefixes.h"
#include "axsXPathType.h"
#include <apString.h>
#include <axmNode.h>

#include <memory>
#include <vector>

/// XPath 1.0 (W3C Recommendation of 16 November 1999) over the engine's documents: the whole language with its core
/// function library. What axmElement::selectNodes() gives comes from here, too; beyond it, this class evaluates
/// expressions of every type and tells what is wrong with one.
///
/// What the recommendation leaves to the host: the context node is any node of a document of this engine, context
/// position and size are 1. There are no functions but those of the core library, and no variables but in expressions that
/// are compiled with them (axsCompiledXPath). Prefixes are taken from the scope of the context node; for what is outside of
/// the root element, the document itself too, from that of the root element.
///
/// How a document is seen:
/// - An absolute path leads through the tree that the context is in: from the document or, in a tree that is not part of
///   its document, from a root above the topmost node, as though that was the content of a document already. Such a root
///   cannot be handed out and is left out of results.
/// - Texts that stand beside each other, CDATA sections among them, are one text node; the first one is handed out for
///   it. Texts without a character are no nodes.
/// - Attributes that declare namespaces are no attributes. A namespace node is handed out as the attribute that declares
///   it, once; that of the prefix xml, which need not be declared, is left out.
/// - An element whose prefix is not declared is in no namespace and matches no name test but '*'.
/// - The document type declaration is no node. Its internal subset says which attributes are IDs; besides, xml:id is one.
///
/// Limits: parentheses, brackets and calls may lie 100 deep in each other, for which 128 KB of the thread's stack are
/// enough. Time grows with a power of the size of the document that does not depend on the expression; a path without
/// positions in its predicates takes time linear in it, but for sorting. The steps of an evaluation are bounded
/// (axsXPathLimits); what selectNodes() gives where that ends it is an empty list.
class AXS_API axsXPath
{
public:
  struct Value
  {
    axsXPathType type = axsXPathType::node_set;
    /// The nodes of a node-set, in document order, each once.
    std::vector<std::shared_ptr<axmNode>> nodes;
    bool boolean = false;
    double number = 0;
    /// The value as a string, whatever its type, as the function string() has it.
    apString text;
  };

  /// The value of `expression` for `context`. False, with `value` as it was and the reason in `error`, where the
  /// expression is wrong or the context is no node of this engine; `error` is without a message otherwise.
  /// Throws std::bad_alloc when memory runs out. One document belongs to one thread at a time.
  static bool evaluate(axmNode& context, apString const& expression, Value& value, axsXPathError& error);

  /// The same with prefixes of the caller's, in UTF-8, which count before those in scope: so that what is in a default
  /// namespace, which XPath has no name for, can be named. "xml" stays what it is, and a prefix that is given as bound to
  /// nothing is not declared.
  static bool evaluate(
    axmNode& context, apString const& expression, axsXPathPrefixes const& prefixes, Value& value, axsXPathError& error);

  /// The same within limits of the caller's. That they end an evaluation is an error like others, at its first character.
  static bool evaluate(axmNode& context, apString const& expression, axsXPathPrefixes const& prefixes,
    axsXPathLimits const& limits, Value& value, axsXPathError& error);
};
