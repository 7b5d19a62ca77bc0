#include "Document.h"

#include <axsRegister.h>
#include <axsSaving.h>

#include <cstdio>
#include <sstream>
#include <string>

namespace
{
std::string indented(std::string_view text)
{
  auto const saved = axm::to_string(document_of(text), axm::layout::indented);
  EXPECT_TRUE(saved) << saved.error();
  std::string const head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  EXPECT_EQ(0u, saved->find(head)) << *saved;
  return saved->substr(head.size());
}
}

TEST(axmSaving, indents_what_holds_elements_only)
{
  EXPECT_EQ("<r a=\"1\">\n  <b>\n    <c/>\n    <!--n-->\n  </b>\n  <d>x</d>\n</r>\n",
    indented("<r a='1'><b><c/><!--n--></b><d>x</d></r>"));
}

TEST(axmSaving, leaves_mixed_content_and_what_is_preserved_as_it_is)
{
  EXPECT_EQ("<r>\n  <p>x <b>y</b></p>\n</r>\n", indented("<r><p>x <b>y</b></p></r>"));
  EXPECT_EQ(
    "<r>\n  <p xml:space=\"preserve\"><b/><c/></p>\n</r>\n", indented("<r><p xml:space='preserve'><b/><c/></p></r>"));
}

TEST(axmSaving, keeps_what_normalisation_would_change)
{
  std::string const text = indented("<r a='&#9;&#10;&#13;&lt;&amp;&quot;'><b/></r>");
  auto const again = document_of(text);
  EXPECT_EQ("\t\n\r<&\"", axm::attribute<std::string>(again->getDocumentElement(), "a"));
}

TEST(axmSaving, deep_documents_need_no_stack)
{
  int const depth = 2000;
  std::string text;
  for (int i = 0; i < depth; ++i)
    text += "<a>";
  for (int i = 0; i < depth; ++i)
    text += "</a>";
  EXPECT_EQ(static_cast<std::size_t>(depth),
    [&]
    {
      std::string const lines = indented(text);
      std::size_t begins = 0;
      for (std::size_t at = 0; (at = lines.find("<a", at)) != std::string::npos; ++at)
        ++begins;
      return begins;
    }());
}

TEST(axmSaving, writes_to_streams_and_files)
{
  auto const document = document_of("<r>x</r>");
  std::ostringstream out;
  EXPECT_TRUE(axm::save_stream(document, out));
  EXPECT_NE(std::string::npos, out.str().find("<r>x</r>"));

  std::string const file = "comfort_save_test.xml";
  EXPECT_TRUE(axm::save_file(document, file));
  auto const again = axm::load_file(file);
  ASSERT_TRUE(again) << again.error();
  EXPECT_EQ("x", axm::text(*again));
  EXPECT_TRUE(axm::path(file).delete_file());
}

TEST(axmSaving, a_failure_says_why)
{
  auto const document = document_of("<r>x</r>");
  auto const nowhere = axm::save_file(document, "no/such/folder/file.xml");
  ASSERT_FALSE(nowhere);
  EXPECT_EQ("no/such/folder/file.xml", nowhere.error().file);
  EXPECT_NE(std::string::npos, nowhere.error().message.find("cannot be written"));

  document->getDocumentElement()->set_text(apString(L"\x01"));
  auto const wrong = axm::to_string(document);
  ASSERT_FALSE(wrong);
  EXPECT_EQ("the document cannot be saved: " + axm::utf8(axsSaving::obstacle(*document)), wrong.error().message);
  EXPECT_EQ(wrong.error().message, axm::save_file(document, "unsaved.xml").error().message);
  EXPECT_FALSE(axm::to_string(nullptr));

  std::ostringstream broken;
  broken.setstate(std::ios::badbit);
  EXPECT_FALSE(axm::save_stream(document_of("<r/>"), broken));
}

TEST(axmSaving, an_engine_that_tells_no_reasons_has_the_usual_one)
{
  class Silent : public axmDocumentFactory
  {
  public:
    std::shared_ptr<axmDocument> createDocument(apString const&) const override { return nullptr; }
    std::shared_ptr<axmDocument> loadDocument(apPath const&, axmLoadOptions const&, axmParseError&) const override
    {
      return nullptr;
    }
    std::shared_ptr<axmDocument> loadDocument(apByteArray const&, axmLoadOptions const&, axmParseError&) const override
    {
      return nullptr;
    }
    bool saveDocument(std::shared_ptr<axmDocument>, apByteArray&) override { return false; }
    bool saveDocument(std::shared_ptr<axmDocument>, apPath const&) override { return false; }
  } silent;
  EXPECT_EQ("the document holds a name, a character or a prefix that XML cannot hold there",
    axm::save_error(silent, *document_of("<r/>")).message);
}

TEST(axmSaving, a_stream_gets_nothing_of_a_document_that_cannot_be_saved)
{
  axs_register();
  std::ostringstream out;
  auto const saved = axm::save_stream(nullptr, out);
  ASSERT_FALSE(saved);
  EXPECT_EQ("there is no document to save", saved.error().message);
  EXPECT_EQ("", out.str());
}

TEST(axmSaving, deep_documents_are_not_indented_without_end)
{
  int const depth = 1000;
  std::string text;
  for (int i = 0; i < depth; ++i)
    text += "<a>";
  text += "<b/>";
  for (int i = 0; i < depth; ++i)
    text += "</a>";
  std::string const lines = indented(text);
  EXPECT_NE(std::string::npos, lines.find("\n" + std::string(200, ' ') + "<b/>\n"));
  EXPECT_GT(2u * 1000 * 210, lines.size());
}
