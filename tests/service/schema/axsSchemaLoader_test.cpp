#include "SchemaFiles.h"

#include <axsComplexType.h>
#include <axsElementDecl.h>
#include <axsSimpleType.h>

namespace
{
std::string const xsd = "http://www.w3.org/2001/XMLSchema";

std::string include(std::string const& file)
{
  return "<xs:include schemaLocation='" + file + "'/>\n";
}

std::string import(std::string const& name_space, std::string const& file)
{
  return "<xs:import namespace='" + name_space + "' schemaLocation='" + file + "'/>\n";
}

std::string redefine(std::string const& file, std::string const& children)
{
  return "<xs:redefine schemaLocation='" + file + "'>" + children + "</xs:redefine>\n";
}

std::string simple(std::string const& name, std::string const& base = "xs:int", std::string const& facets = {})
{
  return "<xs:simpleType name='" + name + "'><xs:restriction base='" + base + "'>" + facets +
         "</xs:restriction></xs:simpleType>\n";
}

std::string group(std::string const& name, std::string const& particles)
{
  return "<xs:group name='" + name + "'><xs:sequence>" + particles + "</xs:sequence></xs:group>\n";
}
}

TEST(axsSchemaLoader, a_file_is_one_by_whatever_path_it_is_named)
{
  SchemaFiles files;
  files.schema("common.xsd", simple("c"));
  files.schema("a/a.xsd", include("../common.xsd") + simple("a", "c"));
  files.schema("b/b.xsd", include("../a/../common.xsd") + include("../s.xsd") + simple("b", "c"));
  files.schema("s.xsd", include("common.xsd") + include("./common.xsd") + include("a/a.xsd") + include("b/b.xsd"));
  auto const schema = files.compile({"s.xsd", "a/a.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->files().size(), 4u);
  for (char const* const name : {"a", "b", "c"})
    EXPECT_TRUE(schema->type("", name).is_simple()) << name;
}

TEST(axsSchemaLoader, what_is_included_is_there_and_of_the_namespace)
{
  SchemaFiles files;
  files.schema("s.xsd", include("none.xsd"));
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error().substr(0, 29), "s.xsd:2: There is no file sch");
  files.schema("s.xsd", include("http://localhost:1/x.xsd"));
  files.compile({"s.xsd"});
  EXPECT_EQ(
    files.first_error(), "s.xsd:2: The schema \"http://localhost:1/x.xsd\" is not a local file; nothing else is read");
  files.schema("u.xsd", simple("t"), "targetNamespace='u'");
  files.schema("s.xsd", include("u.xsd")); // src-include.2.1
  files.compile({"s.xsd"});
  EXPECT_NE(files.first_error().find("is for the namespace \"u\", not for elements in no namespace"), std::string::npos)
    << files.first_error();
  files.write("broken.xsd", "<xs:schema xmlns:xs='" + xsd + "'>\n<a>\n</xs:schema>");
  files.schema("s.xsd", include("broken.xsd"));
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error().substr(0, 13), "broken.xsd:3:");
  files.write("other.xsd", "<other/>");
  files.schema("s.xsd", include("other.xsd")); // src-include.1
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error().substr(0, 33), "other.xsd:1: This is not a schema");
}

TEST(axsSchemaLoader, a_document_without_a_namespace_gets_that_of_the_one_that_includes_it)
{
  SchemaFiles files;
  files.schema("part.xsd", include("inner.xsd") + simple("t") + "<xs:element name='e' type='t'/>");
  files.schema("inner.xsd", simple("i", "t"));
  files.schema("u.xsd", include("part.xsd"), "targetNamespace='u'");
  files.schema("v.xsd", include("part.xsd") + import("u", "u.xsd"), "targetNamespace='v'");
  auto const schema = files.compile({"v.xsd", "part.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  for (char const* const space : {"u", "v", ""})
  {
    ASSERT_NE(schema->element(space, "e"), nullptr) << space;
    EXPECT_EQ(schema->element(space, "e")->type, schema->type(space, "t")) << space;
    EXPECT_EQ(schema->type(space, "i").simple->base(), schema->type(space, "t").simple) << space;
  }
  EXPECT_FALSE(schema->type("u", "t") == schema->type("v", "t"));
}

TEST(axsSchemaLoader, names_of_other_namespaces_are_seen_where_these_are_imported)
{
  SchemaFiles files;
  files.schema("u.xsd", simple("t"), "targetNamespace='u'");
  files.schema("part.xsd", "<xs:element name='p' type='u:t' xmlns:u='u'/>");
  files.schema("s.xsd", import("u", "u.xsd") + "<xs:element name='e' type='u:t' xmlns:u='u'/>");
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.schema("s.xsd", import("u", "u.xsd") + include("part.xsd"));
  files.compile({"s.xsd"}); // src-resolve.4: it is the document that imports
  EXPECT_EQ(files.first_error(),
    "part.xsd:2: there is no declaration of 't' in the namespace 'u': the schema does not import that namespace");
  files.schema("s.xsd", import("v", "u.xsd"));
  files.compile({"s.xsd"}); // src-import.3.1
  EXPECT_NE(files.first_error().find("is for the namespace \"u\", not for the namespace \"v\""), std::string::npos);
}

TEST(axsSchemaLoader, an_import_of_what_is_not_there_is_told_of_where_it_is_needed)
{
  SchemaFiles files;
  files.schema("s.xsd", import("u", "none.xsd"));
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.schema("s.xsd", import("u", "none.xsd") + "<xs:element name='e' type='u:t' xmlns:u='u'/>");
  files.compile({"s.xsd"});
  std::string const unknown = "s.xsd:3: there is no declaration of 't' in the namespace 'u'";
  std::string const error = files.first_error();
  EXPECT_EQ(error.substr(0, error.find(':', unknown.size())), unknown);
  EXPECT_NE(error.find("none.xsd, is not there"), std::string::npos) << error;
}

TEST(axsSchemaLoader, an_import_names_a_local_file_if_it_is_needed)
{
  SchemaFiles files;
  std::string const address = import("u", "http://localhost:1/u.xsd");
  std::string const element = "<xs:element name='%' type='u:t' xmlns:u='u'/>\n";
  auto const use = [&](char const* name) { return std::string(element).replace(element.find('%'), 1, name); };
  files.schema("s.xsd", address);
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.schema("s.xsd", address + use("a") + use("b") + "<xs:element name='c' type='none'/>");
  files.compile({"s.xsd"});
  EXPECT_EQ(
    files.errors(), (std::vector<std::string>{
                      "s.xsd:3: there is no declaration of 't' in the namespace 'u': the schema that its import "
                      "names, \"http://localhost:1/u.xsd\", is not a local file",
                      "s.xsd:5: there is no declaration of 'none' in no namespace"}));
  files.schema("s.xsd", "<xs:import namespace='u'/>\n" + use("a"));
  files.compile({"s.xsd"});
  EXPECT_EQ(
    files.first_error(), "s.xsd:3: there is no declaration of 't' in the namespace 'u': its import names no schema");
  // What one document names, all of them have.
  files.schema("u.xsd", simple("t"), "targetNamespace='u'");
  files.schema("s.xsd", include("other.xsd") + address + use("a"));
  files.schema("other.xsd", import("u", "u.xsd"));
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.schema("u.xsd", simple("other"), "targetNamespace='u'");
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error(), "s.xsd:4: there is no declaration of 't' in the namespace 'u'");
}

TEST(axsSchemaLoader, a_document_that_is_given_for_a_namespace_takes_precedence)
{
  SchemaFiles files;
  files.schema("given.xsd", simple("t", "xs:string"), "targetNamespace='u'");
  files.schema("named.xsd", simple("t", "xs:int"), "targetNamespace='u'");
  files.schema("s.xsd", import("u", "named.xsd") + "<xs:element name='e' type='u:t' xmlns:u='u'/>");
  axsSchemaCompiler compiler;
  compiler.add("u", files.path("given.xsd"));
  compiler.add("", files.path("s.xsd"));
  auto const schema = compiler.compile();
  ASSERT_NE(schema, nullptr);
  EXPECT_EQ(schema->element("", "e")->type.simple->base(), schema->type(xsd, "string").simple);
}

TEST(axsSchemaLoader, knows_the_namespaces_of_xml_and_of_instances)
{
  std::string const xml = "http://www.w3.org/XML/1998/namespace";
  std::string const use = "<xs:complexType name='t'><xs:attribute ref='xml:lang'/></xs:complexType>";
  SchemaFiles files;
  files.schema("s.xsd", import(xml, "http://www.w3.org/2001/xml.xsd") + use);
  auto schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_NE(schema->attribute(xml, "space"), nullptr);
  files.schema("s.xsd", use);
  files.compile({"s.xsd"});
  EXPECT_NE(files.first_error().find("does not import that namespace"), std::string::npos);
  // A local copy may have more in it.
  files.schema("xml.xsd", "<xs:attribute name='lang'/><xs:attribute name='own'/>", "targetNamespace='" + xml + "'");
  files.schema("s.xsd", import(xml, "xml.xsd") + include("part.xsd") + use);
  files.schema("part.xsd", import(xml, "http://www.w3.org/2001/xml.xsd"));
  schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_NE(schema->attribute(xml, "own"), nullptr);
  EXPECT_EQ(schema->attribute(xml, "space"), nullptr);

  files.schema("s.xsd", "<xs:import namespace='http://www.w3.org/2001/XMLSchema-instance'/><xs:complexType name='t'>"
                        "<xs:attribute ref='i:nil' xmlns:i='http://www.w3.org/2001/XMLSchema-instance'/>"
                        "</xs:complexType>");
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
}

TEST(axsSchemaLoader, definitions_are_redefined_by_themselves)
{
  SchemaFiles files;
  files.schema(
    "base.xsd", simple("t") + group("g", "<xs:element name='a'/>") +
                  "<xs:attributeGroup name='h'><xs:attribute name='x'/></xs:attributeGroup>"
                  "<xs:complexType name='c'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType>"
                  "<xs:element name='e' type='t'/><xs:element name='f' type='c'/>");
  files.schema("s.xsd",
    redefine("base.xsd",
      simple("t", "t", "<xs:maxInclusive value='5'/>") + group("g", "<xs:group ref='g'/><xs:element name='b'/>") +
        "<xs:attributeGroup name='h'><xs:attributeGroup ref='h'/><xs:attribute name='y'/></xs:attributeGroup>"
        "<xs:complexType name='c'><xs:complexContent><xs:extension base='c'><xs:sequence><xs:element name='c' "
        "type='c'/>"
        "</xs:sequence></xs:extension></xs:complexContent></xs:complexType>") +
      "<xs:complexType name='u'><xs:group ref='g'/><xs:attributeGroup ref='h'/></xs:complexType>");
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  axsSimpleType const& t = *schema->type("", "t").simple;
  EXPECT_EQ(t.facet_text(axsFacetKind::max_inclusive), "5");
  // What is in the document that is redefined has the new ones, too.
  EXPECT_EQ(schema->element("", "e")->type.simple, &t);
  axsComplexType const& c = *schema->type("", "c").complex;
  EXPECT_EQ(schema->element("", "f")->type.complex, &c);
  EXPECT_NE(c.base.complex, &c);
  axsElementDecl const& inner = *c.particle->group->particles[1].group->particles[0].element;
  EXPECT_EQ(inner.type.complex, &c);
  axsComplexType const& u = *schema->type("", "u").complex;
  EXPECT_EQ(u.attributes.size(), 2u);
  EXPECT_EQ(u.particle->group->particles.size(), 2u);
}

TEST(axsSchemaLoader, a_redefinition_may_be_redefined)
{
  SchemaFiles files;
  files.schema("1.xsd", simple("t"));
  files.schema("2.xsd", redefine("1.xsd", simple("t", "t", "<xs:minInclusive value='1'/>")));
  files.schema("3.xsd", redefine("2.xsd", simple("t", "t", "<xs:maxInclusive value='5'/>")));
  auto const schema = files.compile({"3.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  axsSimpleType const& t = *schema->type("", "t").simple;
  EXPECT_TRUE(t.has_facet(axsFacetKind::min_inclusive));
  EXPECT_TRUE(t.has_facet(axsFacetKind::max_inclusive));
}

TEST(axsSchemaLoader, what_is_redefined_may_stand_in_a_document_that_the_redefined_one_includes)
{
  SchemaFiles files;
  files.schema("1.xsd", include("2.xsd") + simple("t"));
  files.schema("2.xsd", include("1.xsd") + simple("u"));
  files.schema("s.xsd", redefine("1.xsd", simple("u", "u", "<xs:minInclusive value='1'/>")));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_TRUE(schema->type("", "u").simple->has_facet(axsFacetKind::min_inclusive));

  files.schema("other.xsd", simple("v"));
  files.schema("s.xsd", include("other.xsd") + redefine("1.xsd", simple("v", "v")));
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error(), "s.xsd:3: 'v' is redefined, but not defined in the schema that is redefined");

  files.schema("s.xsd", redefine("1.xsd", simple("v", "v")) + simple("v"));
  files.compile({"s.xsd"});
  EXPECT_NE(files.first_error().find("'v' is redefined, but not defined"), std::string::npos) << files.first_error();

  files.schema("s.xsd", redefine("1.xsd", simple("u", "u") + simple("u", "u")));
  files.compile({"s.xsd"});
  EXPECT_EQ(files.first_error(), "s.xsd:3: 'u' is redefined more than once");
}

TEST(axsSchemaLoader, redefinitions_keep_to_their_rules)
{
  SchemaFiles files;
  auto const error = [&](std::string const& base, std::string const& redefinition)
  {
    files.schema("base.xsd", base);
    files.schema("s.xsd", redefine("base.xsd", redefinition));
    files.compile({"s.xsd"});
    return files.first_error();
  };
  EXPECT_EQ(error(simple("t"), simple("u")), // src-expredef
    "s.xsd:2: 'u' is redefined, but not defined in the schema that is redefined");
  EXPECT_EQ(error(simple("t"), simple("t")), // src-redefine.5
    "s.xsd:2: the type 't' is redefined, so it must be derived from itself");
  std::string const a = "<xs:element name='a' minOccurs='0'/>";
  EXPECT_EQ(error(group("g", a), group("g", "")), "");
  EXPECT_EQ(error(group("g", a), group("g", "<xs:group ref='g'/>\n<xs:group ref='g'/>")), // src-redefine.6.1.1
    "s.xsd:3: the group 'g' is redefined; it may refer to itself once only");
  EXPECT_EQ(error(group("g", a), group("g", "<xs:group ref='g' maxOccurs='2'/>")), // src-redefine.6.1.2
    "s.xsd:2: the group 'g' is redefined; in it, minOccurs and maxOccurs of its reference to itself must be 1");
  EXPECT_NE(error(group("g", a), group("g", "<xs:element name='b'/>")), ""); // src-redefine.6.2.2
  auto const attributes = [](std::string const& content)
  { return "<xs:attributeGroup name='h'>" + content + "</xs:attributeGroup>"; };
  EXPECT_EQ(error(attributes("<xs:attribute name='x'/>"), attributes("")), "");
  EXPECT_EQ(error(attributes("<xs:attribute name='x'/>"), attributes("<xs:attribute name='y'/>")), // src-redefine.7.2
    "s.xsd:2: attribute 'y' is not one of the base type, so a restriction may not have it");
  EXPECT_EQ(error(attributes("<xs:attribute name='x'/>"), // src-redefine.7.1
              attributes("<xs:attributeGroup ref='h'/><xs:attribute name='y'/>")),
    "");
}

TEST(axsSchemaLoader, documents_in_a_circle_are_read_once)
{
  SchemaFiles files;
  for (int i = 0; i < 200; ++i)
    files.schema(
      std::to_string(i) + ".xsd", include(std::to_string((i + 1) % 200) + ".xsd") + simple("t" + std::to_string(i)));
  auto const schema = files.compile({"0.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->files().size(), 200u);
  EXPECT_TRUE(schema->type("", "t199"));
}

TEST(axsSchemaLoader, a_schema_that_is_given_for_a_namespace_is_for_that)
{
  SchemaFiles files;
  files.schema("u.xsd", "<xs:element name='a'/>", "targetNamespace='u'");
  files.schema("none.xsd", "<xs:element name='a'/>");
  auto const error_of = [&](std::string const& name_space, apPath const& path)
  {
    axsSchemaCompiler compiler;
    compiler.add(name_space, path);
    bool const is_good = compiler.compile() != nullptr;
    EXPECT_EQ(is_good, compiler.errors().empty());
    return is_good ? std::string() : compiler.errors().front().message;
  };
  EXPECT_EQ(error_of("u", files.path("u.xsd")), "");
  EXPECT_EQ(error_of("", files.path("none.xsd")), "");
  EXPECT_EQ(error_of("v", files.path("u.xsd")), "The schema is for the namespace \"u\", not for the namespace \"v\"");
  EXPECT_EQ(
    error_of("v", files.path("none.xsd")), "The schema is for elements in no namespace, not for the namespace \"v\"");
  EXPECT_EQ(
    error_of("", files.path("u.xsd")), "The schema is for the namespace \"u\", not for elements in no namespace");
  EXPECT_EQ(error_of("u", apPath()), "There is no file name of the schema for the namespace \"u\"");
}

TEST(axsSchemaLoader, what_says_nothing_is_passed_over)
{
  SchemaFiles files;
  files.write("s.xsd", "<!DOCTYPE xs:schema [<!ATTLIST xs:schema id ID #IMPLIED>]>\n<!-- c --><?p q?>\n"
                       "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><?p q?>\n"
                       "<xs:annotation><xs:documentation>text <b xmlns=''>of <i/></b></xs:documentation>"
                       "<xs:appinfo><any/>more</xs:appinfo></xs:annotation>\n"
                       "<xs:element name='a' type='&#10;xs:int&#9; '/><!-- c -->\n"
                       "<xs:simpleType name='t'><xs:union memberTypes='xs:int&#9;&#13;xs:string '/></xs:simpleType>\n"
                       "</xs:schema>");
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->element("", "a")->type, schema->type("http://www.w3.org/2001/XMLSchema", "int"));
  EXPECT_NE(error_of_schema("text"), "");
}

TEST(axsSchemaLoader, an_attribute_group_is_redefined_by_itself_once)
{
  SchemaFiles files;
  files.schema("r.xsd", "<xs:attributeGroup name='g'><xs:attribute name='a'/></xs:attributeGroup>");
  auto const redefined = [&](std::string const& content)
  {
    files.schema("s.xsd", "<xs:redefine schemaLocation='r.xsd'><xs:attributeGroup name='g'>" + content +
                            "</xs:attributeGroup></xs:redefine>");
    files.compile({"s.xsd"});
    return files.first_error();
  };
  std::string const itself = "<xs:attributeGroup ref='g'/>";
  EXPECT_EQ(redefined(itself + "<xs:attribute name='b'/>"), "");
  EXPECT_EQ(
    redefined(itself + itself), "s.xsd:2: the attribute group 'g' is redefined; it may refer to itself once only");
}

TEST(axsSchemaLoader, a_copy_of_the_schema_of_xml_that_is_none_is_told_of)
{
  SchemaFiles files;
  std::string const import = "<xs:import namespace='http://www.w3.org/XML/1998/namespace' schemaLocation='xml.xsd'/>"
                             "<xs:complexType name='t'><xs:attribute ref='xml:lang'/></xs:complexType>";
  files.schema("s.xsd", import);
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.schema("xml.xsd", "<xs:element name='a'/>", "targetNamespace='u'");
  EXPECT_NE(files.compile({"s.xsd"}), nullptr) << files.first_error();
  files.write("xml.xsd", "<xs:schema");
  EXPECT_EQ(files.compile({"s.xsd"}), nullptr);
}
