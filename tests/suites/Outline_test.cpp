#include "Outline.h"

#include "Engine.h"

#include <gtest/gtest.h>

namespace
{
std::shared_ptr<axmDocument> load(std::string const& text)
{
  axmParseError error;
  auto document = engine()->loadDocument(apByteArray(text.data(), text.size()), axmLoadOptions(), error);
  EXPECT_NE(document, nullptr) << text << ": " << error.message().to_utf8().c_str();
  return document;
}

bool fully_equal(std::string const& left, std::string const& right)
{
  return first_difference(full_outline(*load(left)), full_outline(*load(right))).empty();
}

bool equal_data(std::string const& left, std::string const& right)
{
  return first_difference(data_outline(*load(left)), data_outline(*load(right))).empty();
}
}

TEST(Outline, whole_documents_differ_in_everything_that_a_save_has_to_keep)
{
  std::string const text = "<!DOCTYPE a><a b='1' c='2'>x<!--y--><?z w?><![CDATA[v]]><u/></a>";
  EXPECT_TRUE(fully_equal(text, text));
  for (char const* const other : {
         "<!DOCTYPE A><A b='1' c='2'>x<!--y--><?z w?><![CDATA[v]]><u/></A>",
         "<a b='1' c='2'>x<!--y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a c='2' b='1'>x<!--y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1'>x<!--y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1' c='3'>x<!--y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1' c='2'>x <!--y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1' c='2'>x<!--Y--><?z w?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1' c='2'>x<!--y--><?z W?><![CDATA[v]]><u/></a>",
         "<!DOCTYPE a><a b='1' c='2'>x<!--y--><?z w?>v<u/></a>",
         "<!DOCTYPE a><a b='1' c='2'>x<!--y--><?z w?><u><![CDATA[v]]></u></a>",
         "<!DOCTYPE a><a b='1' c='2'>x<!--y--><?z w?><![CDATA[v]]></a>",
       })
    EXPECT_FALSE(fully_equal(text, other)) << other;
}

TEST(Outline, data_is_the_same_however_it_is_written)
{
  std::string const text = "<a b='1' c='2'>xv<?z w?><u/></a>";
  EXPECT_TRUE(equal_data(text, "<!DOCTYPE a><a c='2' b='1'>\n x<!--y--><![CDATA[v]]><?z w?><u></u> </a>"));
  for (char const* const other : {
         "<A b='1' c='2'>xv<?z w?><u/></A>",
         "<a b='1'>xv<?z w?><u/></a>",
         "<a b='1' c=' 2'>xv<?z w?><u/></a>",
         "<a b='1' c='2'>x<?z w?>v<u/></a>",
         "<a b='1' c='2'>xv<?z W?><u/></a>",
         "<a b='1' c='2'>xv<u/></a>",
         "<a b='1' c='2'>xv<?z w?></a>",
         "<a b='1' c='2'>xv<u><?z w?></u></a>",
       })
    EXPECT_FALSE(equal_data(text, other)) << other;
}
