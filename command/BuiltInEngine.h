#pragma once

#include <apByteArray.h>
#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmNode.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The factory of the engine that the program was built with, registered under "XMLService"; empty if it has none.
std::shared_ptr<axmDocumentFactory> built_in_engine();

/// Why that engine does not save the document, which is its own; empty where nothing but the file keeps it from that.
std::string built_in_obstacle(axmDocument const& document);

/// All bytes of a document, where it has to be read by ourselves: of standard input, which is named "-", and of what is
/// compressed; of any other file only if `is_wanted`.
struct InputBytes
{
  /// Whether they were read. If not, and nothing is wrong, the engine may as well read the file.
  bool is_read = false;
  apByteArray bytes;
  /// Why they cannot be read; empty if they can.
  std::string fault;
};
InputBytes built_in_bytes(std::string const& file, bool is_wanted);

/// The prefixes of an expression with their namespaces, beside those that the document binds.
using Namespaces = std::map<std::string, std::string>;

/// What there is to say of an XPath expression.
struct XPathAnswer
{
  /// Why it cannot be used, with the place in it; empty if it can.
  std::string fault;
  /// Its value as a text, if it is no expression for nodes.
  std::optional<std::string> value;
  /// Otherwise the nodes, in document order.
  std::vector<std::shared_ptr<axmNode>> nodes;
};

/// The answer for the expression `xpath`, seen from `context`, a node of that engine.
XPathAnswer built_in_answer(axmNode& context, std::string const& xpath, Namespaces const& namespaces = {});

/// The lines of nodes of a document that was loaded from `bytes` and not changed, counted from 1; 0 of one that has none.
std::vector<int> built_in_lines(
  axmDocument const& document, apByteArray const& bytes, std::vector<std::shared_ptr<axmNode>> const& nodes);
