#include "Engine.h"

#include <cstdlib>
#include <filesystem>

#if !defined(_WIN32)
#  include <sys/resource.h>
#  include <sys/stat.h>
#  include <unistd.h>

#  include <csignal>
#endif

namespace
{
bool save(std::shared_ptr<axmDocument> const& document, apPath const& path)
{
  return engine()->saveDocument(document, path);
}

void refuses(std::shared_ptr<axmDocument> const& document)
{
  // A file of the test's own: others run beside it.
  std::string const test = testing::UnitTest::GetInstance()->current_test_info()->name();
  TestFile const file("engine_" + test + ".xml", "old");
  apByteArray output("old", 3);
  EXPECT_FALSE(engine()->saveDocument(document, output));
  EXPECT_EQ(output, apByteArray("old", 3));
  EXPECT_FALSE(save(document, file.path()));
  EXPECT_EQ(file.contents(), "old");
}

std::string utf8(char32_t code)
{
  auto const byte = [](char32_t value) { return static_cast<char>(value); };
  if (code < 0x80)
    return {byte(code)};
  if (code < 0x800)
    return {byte(0xC0 + code / 64), byte(0x80 + code % 64)};
  if (code < 0x10000)
    return {byte(0xE0 + code / 4096), byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
  return {
    byte(0xF0 + code / 262144), byte(0x80 + code / 4096 % 64), byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
}

int files_beginning_with(std::string const& name)
{
  int files = 0;
  for (auto const& entry : std::filesystem::directory_iterator("."))
    if (entry.path().filename().u8string().compare(0, name.size(), name) == 0)
      ++files;
  return files;
}
}

TEST(axsSaving, writes_what_reading_gives_back)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  auto const root = document->getDocumentElement();
  std::string const value = "&<>\"'\t\n\r \xC2\x85\xE2\x80\xA8]]>";
  root->setAttribute(APSTRING("a"), wide(value));
  root->appendChild(document->createTextNode(wide("x" + value)));
  auto const again = load(saved(document))->getDocumentElement();
  EXPECT_EQ(narrow(again->getAttribute(APSTRING("a"))), value);
  EXPECT_EQ(narrow(again->get_text()), "x" + value);
  auto const from_xml = load(narrow(document->get_xml()))->getDocumentElement();
  EXPECT_EQ(narrow(from_xml->getAttribute(APSTRING("a"))), value);
}

TEST(axsSaving, writes_a_cdata_section_as_text_where_it_cannot_be_one)
{
  auto const document = load("<r><![CDATA[x]]></r>");
  auto const text = document->getDocumentElement()->getFirstChild();
  text->set_text(APSTRING("a]]>b"));
  EXPECT_EQ(narrow(document->getDocumentElement()->get_xml()), "<r>a]]&gt;b</r>");
  text->set_text(APSTRING("a\rb"));
  EXPECT_EQ(narrow(document->getDocumentElement()->get_xml()), "<r>a&#13;b</r>");
  text->set_text(APSTRING("<"));
  EXPECT_EQ(narrow(document->getDocumentElement()->get_xml()), "<r><![CDATA[<]]></r>");
}

TEST(axsSaving, keeps_a_document_of_xml_1_1_one)
{
  std::string const start = "<?xml version=\"1.1\" encoding=\"UTF-8\"?>\n";
  std::string const text =
    "<r a=\"&#1;&#127;&#133;&#8232;&#160;\">&#31;x&#128;&#159;\xC2\xA0\xE2\x80\xA9\xE2\x82\xAC</r>\n";
  auto const document = load("<?xml version='1.1'?><!DOCTYPE r [<!ENTITY e '&#1;'>]>" + text);
  std::string const expected = start + "<!DOCTYPE r [<!ENTITY e '&#1;'>]>\n"
                                       "<r a=\"&#1;&#127;&#133;&#8232;\xC2\xA0\">&#31;x&#128;&#159;\xC2\xA0\xE2\x80\xA9"
                                       "\xE2\x82\xAC</r>\n";
  EXPECT_EQ(saved(document), expected);
  EXPECT_EQ(narrow(document->get_xml()), expected);
  EXPECT_EQ(saved(load(expected)), expected);

  // What has no references cannot hold them, and a CDATA section becomes a text for them.
  auto const root = document->getDocumentElement();
  for (char const* const restricted : {"\x01", "\x7F", "\xC2\x85", "\xE2\x80\xA8"})
  {
    auto const comment = root->appendChild(document->createComment(wide(restricted)));
    refuses(document);
    root->removeChild(comment);
  }
  auto const with_section = load("<?xml version='1.1'?><r><![CDATA[x]]></r>");
  with_section->getDocumentElement()->getFirstChild()->set_text(wide("a\x01\xC2\x80"));
  EXPECT_EQ(saved(with_section), start + "<r>a&#1;&#128;</r>\n");
  with_section->getDocumentElement()->getFirstChild()->set_text(wide("\xC2\xA0"));
  EXPECT_EQ(saved(with_section), start + "<r><![CDATA[\xC2\xA0]]></r>\n");

  // A part of it by itself is XML 1.0, and so is what others hold.
  EXPECT_EQ(narrow(root->get_xml()), "");
  EXPECT_EQ(saved(load("<r>\xC2\x80\xC2\x85\x7F</r>")), declaration + "<r>\xC2\x80\xC2\x85\x7F</r>\n");
}

TEST(axsSaving, refuses_what_xml_cannot_hold)
{
  for (char const* const text : {"\x01", "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"})
  {
    auto const document = engine()->createDocument(APSTRING("r"));
    auto const root = document->getDocumentElement();
    auto const node = root->appendChild(document->createTextNode(wide(text)));
    refuses(document);
    EXPECT_EQ(narrow(document->get_xml()), "");
    root->removeChild(node);
    root->setAttribute(APSTRING("a"), wide(text));
    refuses(document);
    root->removeAttribute(APSTRING("a"));
    root->appendChild(document->createComment(wide(text)));
    refuses(document);
  }
  for (char const* const comment : {"a--b", "-", "a-"})
  {
    auto const document = engine()->createDocument(APSTRING("r"));
    document->appendChild(document->createComment(wide(comment)));
    refuses(document);
  }
  auto const with_instruction = load("<?p x?><r/>");
  with_instruction->getFirstChild()->set_text(APSTRING("?>"));
  refuses(with_instruction);
  auto const without_root = engine()->createDocument(APSTRING("r"));
  without_root->removeChild(without_root->getDocumentElement());
  refuses(without_root);
  refuses(nullptr);
}

TEST(axsSaving, refuses_names_without_their_namespaces)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  auto const root = document->getDocumentElement();
  auto const child = document->createElement(APSTRING("p:x"));
  EXPECT_EQ(saved(document), declaration + "<r/>\n");
  root->appendChild(child);
  refuses(document);
  EXPECT_EQ(narrow(root->get_xml()), "<r><p:x/></r>");
  root->setAttribute(APSTRING("xmlns:p"), APSTRING("urn:p"));
  EXPECT_NE(load(saved(document)), nullptr);

  child->setAttribute(APSTRING("p:a"), APSTRING("1"));
  child->setAttribute(APSTRING("a"), APSTRING("1"));
  EXPECT_NE(load(saved(document)), nullptr);
  root->setAttribute(APSTRING("xmlns:q"), APSTRING("urn:p"));
  child->setAttribute(APSTRING("q:a"), APSTRING("1"));
  refuses(document);
  child->removeAttribute(APSTRING("q:a"));
  EXPECT_NE(load(saved(document)), nullptr);

  // A declaration ends with its element.
  root->removeAttribute(APSTRING("xmlns:p"));
  child->setAttribute(APSTRING("xmlns:p"), APSTRING("urn:p"));
  EXPECT_NE(load(saved(document)), nullptr);
  auto const behind = root->appendChild(document->createElement(APSTRING("p:y")));
  refuses(document);
  root->removeChild(behind);
  for (char const* const value : {"", "http://www.w3.org/2000/xmlns/", "http://www.w3.org/XML/1998/namespace"})
  {
    root->setAttribute(APSTRING("xmlns:q"), wide(value));
    refuses(document);
  }
  root->removeAttribute(APSTRING("xmlns:q"));
  root->setAttribute(APSTRING("xml:lang"), APSTRING("en"));
  EXPECT_NE(load(saved(document)), nullptr);
  root->appendChild(document->createElement(APSTRING("p:x:y")));
  refuses(document);
}

TEST(axsSaving, replaces_a_file_and_leaves_nothing_else_behind)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  for (char const* const name : {"engine save.xml", "engine%20save.xml", "engine_save_\xD1\x84.xml", "engine#save.xml"})
  {
    TestFile const file(name, "old");
    EXPECT_TRUE(save(document, file.path()));
    EXPECT_EQ(file.contents(), declaration + "<r/>\n");
    // Other tests save in the same folder at the same time.
    EXPECT_EQ(files_beginning_with(name), 1) << name;
  }
}

TEST(axsSaving, fails_without_a_folder_or_a_name)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  EXPECT_FALSE(save(document, apPath("no/such/folder/file.xml")));
  EXPECT_FALSE(apPath("no").exists());
  EXPECT_FALSE(save(document, apPath("")));
  EXPECT_FALSE(save(document, apPath(".")));
}

#if !defined(_WIN32)
TEST(axsSaving, leaves_the_old_file_when_the_disk_is_full)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  document->getDocumentElement()->set_text(wide(std::string(1000000, 'x')));
  TestFile const file("engine_full.xml", "old");

  // A process may make files so large and no larger.
  auto const old_handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit;
  getrlimit(RLIMIT_FSIZE, &old_limit);
  rlimit limit = old_limit;
  limit.rlim_cur = 100000;
  setrlimit(RLIMIT_FSIZE, &limit);
  bool const done = save(document, file.path());
  setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);

  EXPECT_FALSE(done);
  EXPECT_EQ(file.contents(), "old");
  for (auto const& entry : std::filesystem::directory_iterator("."))
    EXPECT_EQ(entry.path().string().find("engine_full.xml."), std::string::npos) << entry.path();
  EXPECT_TRUE(save(document, file.path()));
}
#endif

TEST(axsSaving, saves_only_documents_of_its_own)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  EXPECT_EQ(saved(document), declaration + "<r/>\n");
  EXPECT_EQ(narrow(document->get_xml()), declaration + "<r/>\n");
  EXPECT_EQ(narrow(document->getDocumentElement()->get_xml()), "<r/>");
}

// The borders of XML 1.0, fifth edition, 2.3, [4] NameStartChar and [4a] NameChar.
TEST(axsSaving, names_come_back_up_to_the_borders_of_what_is_one)
{
  struct
  {
    char32_t first;
    char32_t last;
    bool starts;
  } const ranges[] = {{'A', 'Z', true}, {'_', '_', true}, {'a', 'z', true}, {0xC0, 0xD6, true}, {0xD8, 0xF6, true},
    {0xF8, 0x2FF, true}, {0x370, 0x37D, true}, {0x37F, 0x1FFF, true}, {0x200C, 0x200D, true}, {0x2070, 0x218F, true},
    {0x2C00, 0x2FEF, true}, {0x3001, 0xD7FF, true}, {0xF900, 0xFDCF, true}, {0xFDF0, 0xFFFD, true},
    {0x10000, 0xEFFFF, true}, {'-', '.', false}, {'0', '9', false}, {0xB7, 0xB7, false}, {0x300, 0x36F, false},
    {0x203F, 0x2040, false}};
  auto const document = engine()->createDocument(APSTRING("r"));
  auto const root = document->getDocumentElement();
  for (auto const& range : ranges)
    for (char32_t const code : {range.first, range.last})
    {
      EXPECT_EQ(document->createElement(wide(utf8(code) + "a")) != nullptr, range.starts) << utf8(code);
      std::string const name = (range.starts ? utf8(code) : "a") + utf8(code) + "b";
      auto const element = document->createElement(wide(name));
      ASSERT_NE(element, nullptr) << name;
      element->setAttribute(wide(name), wide(name));
      root->appendChild(element);
    }

  std::string const xml = saved(document);
  std::string const root_only = xml.substr(declaration.size());
  // The last one is what the engine leaves to its parser.
  for (std::string const& text : {xml, root_only, "<!DOCTYPE r [<!ATTLIST s a CDATA '1'>]>" + root_only,
         "<!DOCTYPE r [<!ENTITY % p ''>]>" + root_only})
  {
    auto const loaded = load(text);
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(narrow(loaded->getDocumentElement()->get_xml()), narrow(root->get_xml()));
  }
  for (char32_t const code : std::initializer_list<char32_t>{0xBF, 0xD7, 0xF7, 0x37E, 0x2000, 0x200B, 0x200E, 0x203E,
         0x2041, 0x206F, 0x2190, 0x2BFF, 0x2FF0, 0x3000, 0xE000, 0xF8FF, 0xFDD0, 0xFDEF, 0xF0000, 0x10FFFF})
  {
    EXPECT_EQ(document->createElement(wide("a" + utf8(code))), nullptr) << utf8(code);
    error_of("<a" + utf8(code) + "/>");
  }
}
