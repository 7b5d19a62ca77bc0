// XPath expressions of any bytes over a small document: each must end with a list, whose first node is the one that is
// selected alone, and, compiled for itself with prefixes and variables of its own, has the same nodes.

#include <axmEngineAccess.h>
#include <axmNodeList.h>
#include <axsCompiledXPath.h>
#include <axsRegister.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace
{
char const text[] = "<r xmlns:p='u'><a b='1'>x<c/>y</a><!--k--><p:a b='2' xml:lang='en'><c><c/></c></p:a><?go on?></r>";

std::shared_ptr<axmDocument> load()
{
  axs_register();
  axmParseError error;
  return axm::engine()->loadDocument(apByteArray(text, std::strlen(text)), axmLoadOptions(axmValidateNone), error);
}

void check(bool is_right)
{
  if (!is_right)
    std::abort();
}

bool is_same(std::shared_ptr<axmNode> const& left, std::shared_ptr<axmNode> const& right)
{
  return left == nullptr || right == nullptr ? left == right : *left == *right;
}

// Prefixes and variables that the lists do not know make more expressions right.
void check_compiled(axmElement& context, std::string_view expression, axmNodeList& list)
{
  axsXPathVariables const variables = {{"x", 1}, {"text", "en"}, {"truth", true}};
  axsCompiledXPath const compiled(expression, {{"q", "u"}}, variables);
  check(compiled.is_good() == compiled.error().message.empty());
  axsXPath::Value value;
  axsXPathError error;
  axsXPathLimits limits;
  limits.max_steps = 1000000;
  if (!compiled.evaluate(context, {{"x", 2}}, limits, value, error))
    return check(!error.message.empty());
  check(value.type == compiled.type());
  if (expression.find('$') != std::string_view::npos || expression.find("q:") != std::string_view::npos)
    return;
  list.reset();
  for (auto const& node : value.nodes)
    check(is_same(node, list.next_node()));
  check(list.next_node() == nullptr);
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  static std::shared_ptr<axmDocument> const document = load();

  std::string_view const bytes(reinterpret_cast<char const*>(data), size);
  apString const expression = apString::from_utf8(bytes);
  auto const context = document->getDocumentElement();
  auto const nodes = context->selectNodes(expression);
  check(nodes != nullptr);
  check(is_same(context->selectSingleNode(expression), nodes->next_node()));
  while (auto const node = nodes->next_node())
    node->get_text();
  check_compiled(*context, bytes, *nodes);
  return 0;
}
