// Checking and loading a document with each allocation failing in turn.

#include "../../FailingMemory.h"
#include "Schema.h"

namespace
{
std::string const content =
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='i' maxOccurs='unbounded'><xs:complexType "
  "mixed='true'>"
  "<xs:sequence><xs:element name='v' type='xs:string' minOccurs='0'/><xs:any namespace='##other' minOccurs='0' "
  "processContents='lax'/>"
  "</xs:sequence><xs:attribute name='k' type='xs:ID'/><xs:attribute name='q' type='xs:QName' default='xs:a'/>"
  "</xs:complexType></xs:element></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/>"
  "<xs:field xpath='@k'/></xs:key></xs:element>";

std::string const document =
  "<r><i k='one_of_a_long_name'><v>a text that is longer than a short one</v><o:other xmlns:o='u'/></i>"
  "<i k='two'>x<v/></i></r>";
}

class validation_memory : public testing::TestWithParam<Failures>
{
};

INSTANTIATE_TEST_SUITE_P(failures, validation_memory, testing::Values(Failures::lasting, Failures::single),
  [](testing::TestParamInfo<Failures> const& tested)
  { return tested.param == Failures::lasting ? "lasting" : "single"; });

TEST_P(validation_memory, a_check_says_that_memory_ran_out)
{
  Schema const schema(content);
  ASSERT_EQ(schema.wrong(document), "");
  apByteArray const data = bytes(document);
  std::size_t errors = 0;
  int const allocations = with_every_failure(
    [&]
    {
      try
      {
        errors = schema.validation().check(data).errors.size();
      }
      catch (std::bad_alloc const&)
      {
        errors = 1; // not even the error could be kept
      }
    },
    [&](bool failed, long held)
    {
      EXPECT_EQ(errors, failed ? 1U : 0U);
      EXPECT_EQ(held, 0);
    },
    GetParam());
  EXPECT_GT(allocations, 30);
}

TEST_P(validation_memory, an_invalid_document_is_never_taken_for_a_valid_one)
{
  Schema const schema(content);
  apByteArray const data = bytes("<r><i k='one'/><i k='one'><v><v/></v></i></r>");
  bool is_good = false;
  with_every_failure(
    [&]
    {
      try
      {
        is_good = schema.validation().check(data).errors.empty();
      }
      catch (std::bad_alloc const&)
      {
        is_good = false;
      }
    },
    [&](bool, long held)
    {
      EXPECT_FALSE(is_good);
      EXPECT_EQ(held, 0);
    },
    GetParam());
}

// The schema is compiled each time, until it is for the first time without a failure. What a single failure costs may be
// done without: then the document is loaded as if nothing had failed.
TEST_P(validation_memory, a_load_with_a_schema_that_is_not_compiled_says_that_memory_ran_out)
{
  bool const is_lasting = GetParam() == Failures::lasting;
  for (bool const is_valid : {true, false})
  {
    std::string const name =
      std::string(is_lasting ? "lasting_" : "single_") + (is_valid ? "valid.xsd" : "invalid.xsd");
    TestFile const schema(name, "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>");
    axmLoadOptions options(axmValidateWithSchemas);
    options.set_no_namespace_schema(schema.path());
    std::shared_ptr<axmDocumentFactory> const factory = ::engine();
    apByteArray const data = bytes(is_valid ? document : "<r><i k='one'/><i k='one'/></r>");
    bool is_loaded = false;
    int const allocations = with_every_failure(
      [&]
      {
        axmParseError error;
        is_loaded = factory->loadDocument(data, options, error) != nullptr;
      },
      [&](bool failed, long)
      {
        EXPECT_FALSE(is_loaded && (!is_valid || (failed && is_lasting)));
        EXPECT_TRUE(is_loaded || failed || !is_valid);
      },
      GetParam());
    EXPECT_GT(allocations, 200);
  }
}
