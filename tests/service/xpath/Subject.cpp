#include "Subject.h"

#include <axmDocumentFactory.h>
#include <axsRegister.h>
#include <axsXPath.h>

#include <cstdio>
#include <cstdlib>

namespace
{
std::shared_ptr<axmDocumentFactory> engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("axs::XMLService")), resolved);
}

std::string told(axsXPathError const& error)
{
  return "error at " + std::to_string(error.position) + ": " + error.message;
}
}

std::shared_ptr<axmDocument> subject::load(std::string const& text)
{
  axmParseError error;
  apByteArray const bytes(text.data(), text.size());
  auto const document = engine()->loadDocument(bytes, axmLoadOptions(axmValidateNone), error);
  if (document == nullptr)
  {
    std::fprintf(stderr, "%s\n%s\n", utf8(error.message()).c_str(), text.c_str());
    std::abort();
  }
  return document;
}

std::shared_ptr<axmDocument> subject::create(char const* root_name)
{
  return engine()->createDocument(apString(root_name));
}

std::string subject::utf8(apString const& text)
{
  utString const narrow = text.to_utf8();
  return {narrow.c_str(), static_cast<std::size_t>(narrow.length())};
}

std::string subject::label(axmNode& node)
{
  std::string const name = utf8(node.getNodeName());
  if (auto* const element = dynamic_cast<axmElement*>(&node))
  {
    std::string const id = utf8(element->getAttribute(APSTRING("id")));
    return id.empty() ? name : name + "#" + id;
  }
  if (name == "#document")
    return "/";
  if (name == "#text" || name == "#cdata-section")
    return "'" + utf8(node.getNodeValue()) + "'";
  if (name == "#comment")
    return "<!--" + utf8(node.getNodeValue()) + "-->";
  if (node.getParentNode() == nullptr)
    return "@" + name + "=" + utf8(node.getNodeValue());
  return "<?" + name + "?>";
}

std::string subject::nodes(axmNode& context, std::string const& expression)
{
  axsXPath::Value found;
  axsXPathError error;
  if (!axsXPath::evaluate(context, apString::from_utf8(expression), found, error))
    return told(error);
  if (found.type != axsXPathType::node_set)
    return "no node-set";
  std::string text;
  for (auto const& node : found.nodes)
    text += (text.empty() ? "" : " ") + label(*node);
  return text;
}

std::string subject::value(axmNode& context, std::string const& expression)
{
  axsXPath::Value found;
  axsXPathError error;
  if (!axsXPath::evaluate(context, apString::from_utf8(expression), found, error))
    return told(error);
  char const* const types[] = {"node-set ", "boolean ", "number ", "string "};
  return types[static_cast<int>(found.type)] + utf8(found.text);
}

std::string subject::value(std::string const& expression)
{
  return value(*create("empty"), expression);
}
