// Compiling schemas with each allocation failing in turn.

#include "../../FailingMemory.h"
#include "SchemaFiles.h"

#include <axsBuiltInTypes.h>

namespace
{
// Calls `compile`, which says whether all came out as it should, with each of its allocations failing in turn: then it
// throws std::bad_alloc, or what came out says that a file could not be read; a single failure may also be one that the
// system does without, as for the buffer of a file. Returns the number of allocations.
template <class Compile>
int says_that_it_fails(Compile compile, Failures failures)
{
  bool is_right = false;
  return with_every_failure(
    [&]
    {
      is_right = false;
      try
      {
        is_right = compile();
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    [&](bool failed, long held)
    {
      EXPECT_TRUE(is_right || failed);
      EXPECT_FALSE(is_right && failed && failures == Failures::lasting);
      EXPECT_EQ(held, 0);
    },
    failures);
}
}

class schema_memory : public testing::TestWithParam<Failures>
{
};

INSTANTIATE_TEST_SUITE_P(failures, schema_memory, testing::Values(Failures::lasting, Failures::single),
  [](testing::TestParamInfo<Failures> const& tested)
  { return tested.param == Failures::lasting ? "lasting" : "single"; });

TEST_P(schema_memory, compiling_fails_cleanly)
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
  int const allocations = says_that_it_fails(
    [&]
    {
      axsSchemaCompiler compiler;
      compiler.add(path);
      return compiler.compile() != nullptr;
    },
    GetParam());
  EXPECT_GT(allocations, 100);
}

TEST_P(schema_memory, telling_what_is_wrong_fails_cleanly)
{
  SchemaFiles files;
  files.schema("s.xsd", "<xs:element name='a' type='none'/><xs:element name='b' type='p:none'/>");
  apPath const path = files.path("s.xsd");
  axsBuiltInTypes::get("string");
  says_that_it_fails(
    [&]
    {
      axsSchemaCompiler compiler;
      compiler.add(path);
      return compiler.compile() == nullptr && compiler.errors().size() == 2;
    },
    GetParam());
}
