#include "axsFragment.h"

#include "axsHandle.h"
#include "axsMarkupText.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"
#include "axsStartTag.h"
#include "axsTreeBuilder.h"
#include "axsXPathScopes.h"

#include <apByteArray.h>

#include <utUtf8.h>

#include <set>
#include <string>

namespace
{
bool ends_prefix(char c)
{
  std::string_view const others = " \t\r\n<>/='\"&;:";
  return others.find(c) != others.npos;
}

// Whatever stands before a colon: all prefixes are among it.
std::set<std::string> words_before_colons(std::string_view text)
{
  std::set<std::string> words;
  for (std::size_t colon = text.find(':'); colon != text.npos; colon = text.find(':', colon + 1))
  {
    std::size_t begin = colon;
    while (begin > 0 && !ends_prefix(text[begin - 1]))
      --begin;
    words.emplace(text.substr(begin, colon - begin));
  }
  return words;
}

// What opens an element around the fragment and has the namespaces.
std::string opening(axsNode const& parent, axsXPathScopes& scopes, std::string_view fragment)
{
  bool const is_xml_1_1 = parent.tree().is_xml_1_1();
  std::string tag = is_xml_1_1 ? "<?xml version=\"1.1\"?><fragment" : "<fragment";
  if (parent.is_element())
    for (std::string const& prefix : words_before_colons(fragment))
    {
      std::string_view const uri = scopes.uri(static_cast<axsElement const&>(parent), prefix);
      if (!prefix.empty() && !uri.empty() && prefix != "xml" && prefix != "xmlns")
        tag += " xmlns:" + prefix + "=" + axsMarkupText::value(uri, '"', is_xml_1_1);
    }
  return tag + ">";
}

// Builds the nodes, and looks at what prefixes mean.
class Builder final : public axsTreeBuilder
{
public:
  Builder(axsParent& parent, axsXPathPrefixes const& expected)
    : axsTreeBuilder(axsDomDocument::of(parent), parent),
      prefixes(expected)
  {
    keep_all_spaces();
  }

  // That of the text around the fragment is none of the document's.
  void declaration(std::string_view, std::string_view, std::string_view) override {}

  void start_element(axsStartTag const& tag) override
  {
    check(*tag.name, tag.name_space);
    for (axsTagAttribute const& attribute : *tag.attributes)
      check(*attribute.name, attribute.name_space);
    axsTreeBuilder::start_element(tag);
  }

private:
  void check(axsName const& name, std::string_view uri) const
  {
    auto const given = prefixes.find(std::string(name.prefix()));
    if (name.prefix().empty() || given == prefixes.end() || given->second == uri)
      return;
    axsReadError wrong;
    wrong.message = apString::from_utf8(
      "the prefix '" + given->first + "' is bound to " + std::string(uri) + " there, and not to " + given->second);
    throw wrong;
  }

  axsXPathPrefixes const& prefixes;
};

// How many columns it takes: units of UTF-16.
int width_of(std::string_view text)
{
  int units = 0;
  for (char const c : text)
    units += (utUtf8::is_continuation(c) ? 0 : 1) + (static_cast<unsigned char>(c) >= 0xF0 ? 1 : 0);
  return units;
}
}

std::vector<std::shared_ptr<axmNode>> axsFragment::parse(
  axsNode const& parent, axsXPathScopes& scopes, axsXPathPrefixes const& expected, std::string_view fragment)
{
  std::string const before = opening(parent, scopes, fragment);
  std::string const text = before + std::string(fragment) + "</fragment>";
  auto const scratch = axsDomDocument::of(parent).createElement(APSTRING("fragment"));
  try
  {
    apByteArray const bytes(text.data(), text.size());
    axsSource source(bytes);
    Builder builder(static_cast<axsParent&>(*axsHandle::node_of(*scratch)), expected);
    axsParser(source, axmLoadOptions(axmValidateNone), builder).run();
  }
  catch (axsReadError& wrong)
  {
    if (wrong.line == 1)
      wrong.column -= width_of(before);
    throw;
  }
  std::shared_ptr<axmNode> const around = scratch->getFirstChild();
  std::vector<std::shared_ptr<axmNode>> nodes;
  while (auto const child = around->getFirstChild())
    nodes.push_back(around->removeChild(child));
  return nodes;
}
