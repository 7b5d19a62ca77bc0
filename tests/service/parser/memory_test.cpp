// Reading a document with each allocation failing in turn.

#include "../../FailingMemory.h"
#include "axsLoader.h"
#include "axsSource.h"

#include <apByteArray.h>

#include <string>

TEST(reading_memory, the_parser_fails_cleanly)
{
  std::string document = "<!DOCTYPE r [<!ATTLIST r d NMTOKENS '  a longer default  value  ' e CDATA '&lt;'>"
                         "<!ATTLIST p:name7 f CDATA #FIXED 'of several'>"
                         "<!ENTITY entity_of_a_long_name 'with a text as long'>]><r g='&entity_of_a_long_name;' "
                         "xmlns='u' xmlns:p='v' p:a='&lt;'><!--a--><?b c?>";
  for (int i = 0; i < 40; ++i)
    document += "<p:name" + std::to_string(i) + " b='" + std::string(2000, 'x') + "'>\xC3\xA4&amp;</p:name" +
                std::to_string(i) + '>';
  document += "<![CDATA[" + std::string(70000, 'x') + "]]></r>";
  apByteArray const data(document.data(), document.size());
  axsSource source(data);
  apString const uri = APSTRING("uri");
  int const allocations = fails_cleanly(
    [&]
    {
      source.seek(0);
      if (axsLoader::load(source, axmLoadOptions(axmValidateNone), uri) == nullptr)
        ADD_FAILURE();
    });
  EXPECT_GT(allocations, 100);
}
