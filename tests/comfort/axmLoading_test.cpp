#include "Document.h"

#include <utService.h>

#include <sstream>

TEST(axmLoading, loads_from_text_and_streams)
{
  axs_register();
  std::istringstream in("<r><a>x</a></r>");
  auto const document = axm::load_stream(in);
  ASSERT_TRUE(document) << document.error();
  EXPECT_EQ("x", axm::child_text((*document)->getDocumentElement(), "a"));
  EXPECT_EQ(std::nullopt, axm::child_text((*document)->getDocumentElement(), "b"));
  unsigned char const bytes[] = {'<', 'r', '/', '>', 'x'};
  EXPECT_TRUE(axm::load_bytes(bytes, 4));
  EXPECT_FALSE(axm::load_bytes(bytes, 5));
  EXPECT_FALSE(axm::load_bytes(nullptr, 0));
  in.setstate(std::ios::badbit);
  EXPECT_EQ("the stream cannot be read", axm::load_stream(in).error().message);
}

TEST(axmLoading, an_error_says_file_line_column_and_reason)
{
  axs_register();
  auto const missing = axm::load_file("no such file.xml");
  ASSERT_FALSE(missing);
  EXPECT_EQ("no such file.xml", missing.error().file);

  auto const wrong = axm::load_string("<r>\n<a></b></r>");
  ASSERT_FALSE(wrong);
  EXPECT_EQ(2, wrong.error().line);
  EXPECT_LT(0, wrong.error().column);
  EXPECT_EQ("2:6: ", wrong.error().to_string().substr(0, 5)) << wrong.error();
  EXPECT_EQ("f:2:3: m", (axm::error{"m", "f", 2, 3}.to_string()));
  EXPECT_EQ("f:2: m", (axm::error{"m", "f", 2}.to_string()));
  EXPECT_EQ("f: m", (axm::error{"m", "f"}.to_string()));
  EXPECT_EQ("m", axm::error{"m"}.to_string());
}

TEST(axmLoading, without_an_engine_it_says_how_to_register_one)
{
  axs_register();
  utServiceName const name(ut_lit("XMLService"));
  std::shared_ptr<axmDocumentFactory> const engine = axm::engine();
  ASSERT_NE(nullptr, engine);
  utService::get_instance()->register_service(name, nullptr);
  auto const document = axm::load_string("<r/>");
  auto const of_file = axm::load_file("file.xml");
  auto const made = axm::create("r");
  auto const text = axm::to_string(engine->createDocument(APSTRING("r")));
  auto const saved = axm::save_file(engine->createDocument(APSTRING("r")), "unsaved.xml");
  utService::get_instance()->register_service(name, engine);
  ASSERT_FALSE(document);
  EXPECT_NE(std::string::npos, document.error().message.find("axs_register()"));
  EXPECT_FALSE(made);
  for (std::string const& message : {of_file.error().message, text.error().message, saved.error().message})
    EXPECT_EQ(document.error().message, message);
  EXPECT_EQ("unsaved.xml", saved.error().file);
}

TEST(axmLoading, creates_documents_and_content)
{
  axs_register();
  auto const document = axm::create("r");
  ASSERT_TRUE(document);
  EXPECT_NE(nullptr, axm::append((*document)->getDocumentElement(), "a", "text"));
  EXPECT_EQ(nullptr, axm::append((*document)->getDocumentElement(), "1", "text"));
  EXPECT_EQ("text", axm::text(*document));
  EXPECT_FALSE(axm::create("not a name"));
}
