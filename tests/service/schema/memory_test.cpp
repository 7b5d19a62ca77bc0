// Compiling schemas with each allocation failing in turn.

#include "../../FailingMemory.h"
#include "SchemaFiles.h"

#include <axsBuiltInTypes.h>

TEST(schema_memory, compiling_fails_cleanly)
{
  SchemaFiles files;
  files.schema("part.xsd", "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='[a-z]+'/>"
                           "<xs:enumeration value='a'/></xs:restriction></xs:simpleType>");
  files.schema("s.xsd",
    "<xs:redefine schemaLocation='part.xsd'><xs:simpleType name='t'><xs:restriction base='t'/></xs:simpleType>"
    "</xs:redefine><xs:import namespace='http://www.w3.org/XML/1998/namespace'/>"
    "<xs:element name='r'><xs:complexType><xs:sequence maxOccurs='5'><xs:element name='a' type='t' minOccurs='0'/>"
    "<xs:any namespace='##other'/></xs:sequence><xs:attribute name='x' type='t' default='a'/>"
    "<xs:attribute ref='xml:lang'/></xs:complexType><xs:key name='k'><xs:selector xpath='.//a'/><xs:field xpath='.'/>"
    "</xs:key></xs:element>");
  apPath const path = files.path("s.xsd");
  axsBuiltInTypes::get("string");
  int const allocations = fails_cleanly(
    [&]
    {
      axsSchemaCompiler compiler;
      compiler.add(path);
      if (compiler.compile() == nullptr)
        ADD_FAILURE() << compiler.errors().front().message;
    });
  EXPECT_GT(allocations, 100);
}

TEST(schema_memory, telling_what_is_wrong_fails_cleanly)
{
  SchemaFiles files;
  files.schema("s.xsd", "<xs:element name='a' type='none'/><xs:element name='b' type='p:none'/>");
  apPath const path = files.path("s.xsd");
  axsBuiltInTypes::get("string");
  fails_cleanly(
    [&]
    {
      axsSchemaCompiler compiler;
      compiler.add(path);
      if (compiler.compile() != nullptr || compiler.errors().size() != 2)
        ADD_FAILURE();
    });
}
