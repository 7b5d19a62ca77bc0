#include "SchemaFiles.h"

#include <axsElementDecl.h>
#include <axsIdentityConstraint.h>

namespace
{
using Kind = axsIdentityPath::Step::Kind;

std::string constraint(std::string const& selector, std::string const& field)
{
  return "<xs:element name='e' xmlns:p='u'><xs:unique name='k'><xs:selector xpath=\"" + selector +
         "\"/>\n<xs:field xpath=\"" + field + "\"/></xs:unique></xs:element>";
}

std::string shown(axsIdentityPath const& path)
{
  std::string text;
  for (axsIdentityPath::Alternative const& alternative : path.alternatives)
  {
    text += text.empty() ? "" : "|";
    text += alternative.from_descendants ? ".//" : "";
    for (std::size_t i = 0; i < alternative.steps.size(); ++i)
    {
      axsIdentityPath::Step const& step = alternative.steps[i];
      text += i == 0 ? "" : "/";
      text += step.kind == Kind::attribute ? "@" : "";
      if (step.kind == Kind::self)
        text += '.';
      else if (step.any_local)
        text += step.any_name_space ? "*" : "{" + step.name.name_space + "}*";
      else
        text += step.name.name_space.empty() ? step.name.local : "{" + step.name.name_space + "}" + step.name.local;
    }
  }
  return text;
}
}

TEST(axsIdentityPathReader, reads_the_restricted_paths)
{
  struct
  {
    char const* selector;
    char const* field;
    char const* shown_selector;
    char const* shown_field;
  } const paths[] = {
    {"a", "@b", "a", "@b"},
    {".", ".", ".", "."},
    {".//a", ".//@b", ".//a", ".//@b"},
    {" . // a / b | p:c ", " child :: a / attribute :: p:b ", ".//a/b|{u}c", "a/@{u}b"},
    {"./a", "*", "./a", "*"},
    {"p:*", "@*|a/@p:*", "{u}*", "@*|a/@{u}*"},
    {"child", "attribute", "child", "attribute"},
    {"a.b-c/\xC3\xA4", "./@b", "a.b-c/\xC3\xA4", "./@b"},
  };
  for (auto const& path : paths)
  {
    SchemaFiles files;
    files.schema("s.xsd", constraint(path.selector, path.field));
    auto const schema = files.compile({"s.xsd"});
    ASSERT_NE(schema, nullptr) << path.selector << ' ' << path.field << ' ' << files.first_error();
    axsIdentityConstraint const& unique = *schema->element("", "e")->identity_constraints.front();
    EXPECT_EQ(shown(unique.selector), path.shown_selector);
    EXPECT_EQ(shown(unique.fields.front()), path.shown_field);
  }
}

TEST(axsIdentityPathReader, refuses_all_other_paths)
{
  // c-selector-xpath
  for (char const* const path : {"", "/a", "//a", "a//b", "@a", "a/@b", "a|", "|a", "a b", "..", "a/", "a[1]", "a()",
         "self::a", "descendant::a", ".//", "q:a", "p:", "1", "a:b:c", "child::", "p :a", "a/.//b"})
    EXPECT_EQ(error_of_schema(constraint(path, "a")).substr(0, 8), "s.xsd:2:") << path;
  // c-fields-xpaths
  for (char const* const path : {"", "@a/b", "@", "a//@b", "@a|", "text()", "attribute::", "q:a", "@@a"})
    EXPECT_EQ(error_of_schema(constraint("a", path)).substr(0, 8), "s.xsd:3:") << path;
  EXPECT_EQ(error_of_schema(constraint("@a", "b")),
    "s.xsd:2: the path '@a' of 'selector' is not allowed: a selector selects elements only");
}
