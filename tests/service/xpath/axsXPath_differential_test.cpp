#include "Generator.h"
#include "Subject.h"

#include <axmNamedNodeMap.h>
#include <axsXPath.h>

#include <gtest/gtest.h>

#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

// Expressions and documents from a generator, answered by the engine and by libxml2. Where the two are known to answer
// differently, libxml2 being wrong by the recommendation, the expression is left out; see known_difference().

namespace
{
template <class Object, void (*free_object)(Object*)>
struct Free
{
  void operator()(Object* object) const noexcept { free_object(object); }
};

using OtherDocument = std::unique_ptr<xmlDoc, Free<xmlDoc, xmlFreeDoc>>;
using OtherContext = std::unique_ptr<xmlXPathContext, Free<xmlXPathContext, xmlXPathFreeContext>>;
using OtherValue = std::unique_ptr<xmlXPathObject, Free<xmlXPathObject, xmlXPathFreeObject>>;

void drop_message(void*, char const*, ...) {}

bool is_text(axmNode& node)
{
  std::string const name = subject::utf8(node.getNodeName());
  return name == "#text" || name == "#cdata-section";
}

bool is_declaration(std::string const& name)
{
  return name == "xmlns" || name.compare(0, 6, "xmlns:") == 0;
}

/// One document in both trees. A node has the same number in both: its place in document order, attributes included.
class Pair
{
public:
  explicit Pair(std::string const& text)
    : ours(subject::load(text)),
      // Their CDATA sections become text, as one text node is what the data model makes of both.
      theirs(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), "", nullptr, XML_PARSE_NOENT | XML_PARSE_NOCDATA))
  {
    our_nodes.push_back(ours);
    their_nodes.push_back(reinterpret_cast<xmlNode*>(theirs.get()));
    add_ours(*ours);
    add_theirs(theirs->children);
  }

  std::size_t size() const { return our_nodes.size(); }
  bool is_same_size() const { return our_nodes.size() == their_nodes.size(); }
  bool is_attribute(std::size_t node) const { return their_nodes[node]->type == XML_ATTRIBUTE_NODE; }

  std::string our_answer(std::size_t context, std::string const& expression) const
  {
    axsXPath::Value found;
    axsXPathError error;
    if (!axsXPath::evaluate(*our_nodes[context], apString::from_utf8(expression), found, error))
      return "error " + error.message;
    switch (found.type)
    {
    case axsXPathType::boolean:
      return found.boolean ? "true" : "false";
    case axsXPathType::number:
      return shown(found.number);
    case axsXPathType::string:
      return "string " + subject::utf8(found.text);
    case axsXPathType::node_set:
      break;
    }
    std::string text = "nodes";
    for (auto const& node : found.nodes)
      if (!is_declaration(subject::utf8(node->getNodeName())))
        text += number_of(*node);
    return text;
  }

  std::string their_answer(std::size_t context, std::string const& expression) const
  {
    OtherContext const asked(xmlXPathNewContext(theirs.get()));
    asked->node = their_nodes[context];
    asked->contextSize = 1;
    asked->proximityPosition = 1;
    register_prefixes(*asked);
    OtherValue const found(xmlXPathEval(reinterpret_cast<xmlChar const*>(expression.c_str()), asked.get()));
    if (found == nullptr)
      return "error";
    switch (found->type)
    {
    case XPATH_BOOLEAN:
      return found->boolval != 0 ? "true" : "false";
    case XPATH_NUMBER:
      return shown(found->floatval);
    case XPATH_STRING:
      return "string " + std::string(reinterpret_cast<char const*>(found->stringval));
    default:
      return found->nodesetval == nullptr ? "nodes" : shown(*found->nodesetval);
    }
  }

private:
  void add_ours(axmNode& parent)
  {
    bool follows_text = false;
    for (auto node = parent.getFirstChild(); node != nullptr; node = node->getNextSibling())
    {
      bool const continues_text = follows_text && is_text(*node);
      follows_text = is_text(*node);
      if (continues_text)
        continue;
      our_nodes.push_back(node);
      if (auto const attributes = node->getAttributes())
        for (int i = 0; i < attributes->getLength(); ++i)
          if (!is_declaration(subject::utf8(attributes->item(i)->getNodeName())))
            our_nodes.push_back(attributes->item(i));
      // The generator's documents are a few levels deep.
      add_ours(*node);
    }
  }

  void add_theirs(xmlNode* first)
  {
    for (xmlNode* node = first; node != nullptr; node = node->next)
    {
      their_nodes.push_back(node);
      if (node->type != XML_ELEMENT_NODE)
        continue;
      for (xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
        their_nodes.push_back(reinterpret_cast<xmlNode*>(attribute));
      add_theirs(node->children);
    }
  }

  void register_prefixes(xmlXPathContext& asked) const
  {
    xmlNode* scope = asked.node;
    while (scope->type != XML_ELEMENT_NODE && scope->type != XML_DOCUMENT_NODE)
      scope = scope->parent;
    if (scope->type == XML_DOCUMENT_NODE)
      scope = xmlDocGetRootElement(theirs.get());
    xmlNs** const namespaces = xmlGetNsList(theirs.get(), scope);
    for (xmlNs** each = namespaces; each != nullptr && *each != nullptr; ++each)
      if ((*each)->prefix != nullptr)
        xmlXPathRegisterNs(&asked, (*each)->prefix, (*each)->href);
    xmlFree(namespaces);
  }

  std::string number_of(axmNode& node) const
  {
    for (std::size_t i = 0; i < our_nodes.size(); ++i)
      if (*our_nodes[i] == node)
        return " " + std::to_string(i);
    return " unknown";
  }

  std::string shown(xmlNodeSet& found) const
  {
    xmlXPathNodeSetSort(&found);
    std::string text = "nodes";
    for (int i = 0; i < found.nodeNr; ++i)
    {
      // Namespace nodes are handed out in another way here; what they lead to and their number is compared.
      if (found.nodeTab[i]->type == XML_NAMESPACE_DECL)
        continue;
      auto const place = std::find(their_nodes.begin(), their_nodes.end(), found.nodeTab[i]);
      text += " " + std::to_string(place - their_nodes.begin());
    }
    return text;
  }

  // Sums and quotients may differ in the last digit; both zeros are one.
  static std::string shown(double number)
  {
    if (std::isnan(number))
      return "NaN";
    char text[64];
    std::snprintf(text, sizeof text, "%.12g", number == 0 ? 0 : number);
    return text;
  }

  std::shared_ptr<axmDocument> ours;
  OtherDocument theirs;
  std::vector<std::shared_ptr<axmNode>> our_nodes;
  std::vector<xmlNode*> their_nodes;
};

bool holds_one_of(std::string const& text, std::initializer_list<char const*> parts)
{
  return std::any_of(
    parts.begin(), parts.end(), [&](char const* part) { return text.find(part) != std::string::npos; });
}

/// Whether a step "." follows "//".
bool has_self_after_slashes(std::string const& expression)
{
  for (std::size_t at = expression.find("//."); at != std::string::npos; at = expression.find("//.", at + 1))
    if (expression.compare(at, 4, "//..") != 0)
      return true;
  return false;
}

/// Where libxml2 2.9.14 is known not to follow the recommendation:
/// - What follows an attribute or namespace includes the content of its element (2.2, following, by document order);
///   it leaves that out.
/// - The first child of the document precedes what stands behind it (2.2, preceding); it never counts that child.
/// - ".//." is the node and all below it (2.5); it leaves the node out, or all that is below it.
/// - A namespace node has no namespace itself (5.4), so that no name test with a prefix is true for one; it takes them all.
/// - xmlns='' takes the default namespace away (5.4); it counts a namespace node for it.
/// - Nodes are in document order whatever stands among them (5); it sorts sets that hold namespace nodes wrongly.
/// - number() of an empty attribute or instruction is NaN (4.4); without an argument, it gives 0.
/// - An empty element and an empty instruction have the same string-value (5.2, 5.5); it finds them different.
/// - "-" writes no number (4.4); it reads 0.
/// - A number is written with all digits that tell it from others and without an exponent (4.2); it writes fifteen.
bool known_difference(std::string const& document, std::string const& expression, bool is_attribute)
{
  bool const meets_attributes = is_attribute || holds_one_of(expression, {"@", "attribute::", "namespace::"});
  if (meets_attributes && holds_one_of(expression, {"following::"}))
    return true;
  if (has_self_after_slashes(expression))
    return true;
  if (holds_one_of(expression, {"preceding::"}) && holds_one_of(document, {"--><?pi one?><a", "<?go behind?><!--end"}))
    return true;
  if (holds_one_of(expression, {"namespace::p:", "namespace::q:"}))
    return true;
  if (holds_one_of(expression, {"namespace::"}) &&
      (holds_one_of(document, {"xmlns=''"}) || holds_one_of(expression, {"|", "ancestor", "parent", ".."})))
    return true;
  if (holds_one_of(expression, {"processing-instruction()"}) && holds_one_of(expression, {"=("}))
    return true;
  if (holds_one_of(expression, {"substring("}) && holds_one_of(document, {"-3.5"}))
    return true;
  if (holds_one_of(expression, {"number()"}) && holds_one_of(document, {"=''", "<?pi?>"}))
    return true;
  return holds_one_of(expression, {" div "}) &&
         holds_one_of(expression, {"string", "concat", "contains", "starts-with", "normalize", "translate", "id("});
}

class XPathDifferential : public testing::TestWithParam<std::uint32_t>
{
};
}

TEST_P(XPathDifferential, answers_as_libxml2_does)
{
  xmlSetGenericErrorFunc(nullptr, drop_message);
  int const documents = 100;
  int const expressions_each = 40;
  int compared = 0;
  for (std::uint32_t seed = 0; seed < documents; ++seed)
  {
    Generator generator(GetParam() * documents + seed + 1);
    std::string const text = generator.document();
    Pair const pair(text);
    ASSERT_TRUE(pair.is_same_size()) << text;
    for (int i = 0; i < expressions_each; ++i)
    {
      std::string const expression = generator.expression(1 + static_cast<int>(generator.pick(4)));
      std::size_t const context = generator.pick(static_cast<unsigned>(pair.size()));
      if (known_difference(text, expression, pair.is_attribute(context)))
        continue;
      ++compared;
      EXPECT_EQ(pair.our_answer(context, expression), pair.their_answer(context, expression))
        << expression << "\nfor node " << context << " of " << text;
    }
  }
  // Most of what is generated is compared.
  EXPECT_GT(compared, documents * expressions_each * 3 / 4);
}

INSTANTIATE_TEST_SUITE_P(Seeds, XPathDifferential, testing::Range(0u, 8u));
