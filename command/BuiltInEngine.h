#pragma once

#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmNode.h>

#include <memory>
#include <optional>
#include <string>

/// The factory of the engine that the program was built with, registered under "XMLService"; empty if it has none.
std::shared_ptr<axmDocumentFactory> built_in_engine();

/// Why that engine does not save the document, which is its own; empty where nothing but the file keeps it from that.
std::string built_in_obstacle(axmDocument const& document);

/// What there is to say of an XPath expression that selects no nodes.
struct XPathAnswer
{
  /// Why it cannot be used, with the place in it; empty if it can.
  std::string fault;
  /// Its value as a text, if it is no expression for nodes.
  std::optional<std::string> value;
};

/// The answer for the expression `xpath`, seen from `context`, a node of that engine.
XPathAnswer built_in_answer(axmNode& context, std::string const& xpath);
