#include "Engine.h"

#include "../document/TestTree.h"

#include <axsSaving.h>
#include <utAssert.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>

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

// The reason is told, too.
void refuses(std::shared_ptr<axmDocument> const& document, std::string const& obstacle)
{
  refuses(document);
  EXPECT_EQ(narrow(axsSaving::obstacle(*document)), obstacle);
}

void saves_as(std::shared_ptr<axmDocument> const& document, std::string const& expected)
{
  EXPECT_EQ(saved(document), declaration + expected);
  EXPECT_EQ(narrow(axsSaving::obstacle(*document)), "");
  EXPECT_EQ(saved(load(declaration + expected)), declaration + expected);
}

class CountingListener final : public utAssertListener
{
public:
  CountingListener() : previous(ut_set_assert_listener(this)) {}
  ~CountingListener() override { ut_set_assert_listener(previous); }

  void assertion_failed(char const*, char const*, int) override { ++reports; }

  int reports = 0;

private:
  utAssertListener* previous;
};

// A text that is not Unicode: a surrogate without its other half.
apString half_a_pair()
{
  return apString(L"a\xD800z");
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

TEST(axsSaving, refuses_what_reading_would_change)
{
  auto const document = load("<r><!--c--><?p d?></r>");
  auto const root = document->getDocumentElement();
  auto const comment = root->getFirstChild();
  auto const instruction = root->getLastChild();
  comment->set_text(APSTRING("a\rb"));
  refuses(document, "a comment in \"r\" holds a character that XML cannot hold there");
  comment->set_text(APSTRING(" a\nb "));
  saves_as(document, "<r><!-- a\nb --><?p d?></r>\n");

  instruction->set_text(APSTRING("a\rb"));
  refuses(document, "the processing instruction \"p\" in \"r\" holds a character that XML cannot hold there");
  for (char const* const data : {" d", "\td", "\nd", " "})
  {
    instruction->set_text(wide(data));
    refuses(
      document, "the processing instruction \"p\" in \"r\" begins its data with white space, which a reader takes out");
  }
  instruction->set_text(APSTRING("d \n"));
  saves_as(document, "<r><!-- a\nb --><?p d \n?></r>\n");
  instruction->set_text(APSTRING(""));
  EXPECT_EQ(narrow(load(saved(document))->getDocumentElement()->getLastChild()->getNodeValue()), "");
}

TEST(axsSaving, tells_what_keeps_a_document_from_being_saved)
{
  auto const document = load("<r><a b='1'/>t<![CDATA[c]]><!--d--></r>");
  auto const root = document->getDocumentElement();
  auto const a = root->getFirstChild();
  auto const element = std::dynamic_pointer_cast<axmElement>(a);
  element->setAttribute(APSTRING("b"), wide("\x01"));
  refuses(document, "the attribute \"b\" in \"a\" holds a character that XML cannot hold there");
  element->removeAttribute(APSTRING("b"));
  a->getNextSibling()->set_text(wide("\x01"));
  refuses(document, "a text in \"r\" holds a character that XML cannot hold there");
  a->getNextSibling()->set_text(APSTRING("t"));
  root->getLastChild()->getPreviousSibling()->set_text(wide("\x01"));
  refuses(document, "a CDATA section in \"r\" holds a character that XML cannot hold there");
  root->getLastChild()->getPreviousSibling()->set_text(APSTRING("]]>"));
  root->getLastChild()->set_text(APSTRING("--"));
  refuses(document, "a comment in \"r\" has two hyphens in a row, or one at its end");
  root->getLastChild()->set_text(APSTRING("d"));
  auto const unbound = root->appendChild(document->createElement(APSTRING("p:x")));
  refuses(document,
    "the element \"p:x\" in \"r\" has a prefix that is not bound to a namespace, or more than one colon in its name");
  root->removeChild(unbound);
  element->setAttribute(APSTRING("xmlns:p"), APSTRING(""));
  refuses(document,
    "the attribute \"xmlns:p\" in \"a\" declares what no document may declare (Namespaces in XML 1.0, 3 and 5)");
  element->setAttribute(APSTRING("xmlns:p"), APSTRING("u"));
  element->setAttribute(APSTRING("xmlns:q"), APSTRING("u"));
  element->setAttribute(APSTRING("p:b"), APSTRING("1"));
  element->setAttribute(APSTRING("q:b"), APSTRING("2"));
  refuses(document, "the element \"a\" in \"r\" has two attributes of one name in one namespace");
  document->removeChild(root);
  refuses(document, "the document has no root element");
}

TEST(axsSaving, a_missing_default_is_not_saved_for_it_would_come_back)
{
  std::string const type = "<!DOCTYPE r [<!ATTLIST r d CDATA 'v' f CDATA #FIXED 'w' i CDATA #IMPLIED>]>\n";
  auto const document = load(type + "<r/>");
  auto const root = document->getDocumentElement();
  saves_as(document, type + "<r d=\"v\" f=\"w\"/>\n");
  for (char const* const name : {"d", "f"})
  {
    auto const taken = root->getAttributes()->removeNamedItem(wide(name));
    EXPECT_FALSE(root->hasAttribute(wide(name)));
    refuses(document,
      "the element \"r\" lacks an attribute that a reader adds, for the document type declares a default of it");
    root->getAttributes()->setNamedItem(taken);
  }
  root->setAttribute(APSTRING("d"), APSTRING("other"));
  root->removeAttribute(APSTRING("i"));
  saves_as(document, type + "<r d=\"other\" f=\"w\"/>\n");

  // Without its document type, nothing comes back.
  root->removeAttribute(APSTRING("d"));
  document->removeChild(document->getFirstChild());
  saves_as(document, "<r f=\"w\"/>\n");
}

TEST(axsSaving, new_elements_have_the_defaults_of_the_document_type)
{
  std::string const type = "<!DOCTYPE r [<!ATTLIST p:e xmlns:p CDATA 'u' a CDATA '1' p:a CDATA '2'>]>\n";
  auto const document = load(type + "<r/>");
  auto const root = document->getDocumentElement();
  auto const made = document->createElement(APSTRING("p:e"));
  EXPECT_EQ(made->getAttributes()->getLength(), 3);
  root->appendChild(made);
  root->appendChild(document->createElement(APSTRING("e")));
  EXPECT_FALSE(root->getLastChild()->hasAttributes());
  saves_as(document, type + "<r><p:e xmlns:p=\"u\" a=\"1\" p:a=\"2\"/><e/></r>\n");

  made->setAttribute(APSTRING("xmlns:q"), APSTRING("u"));
  made->setAttribute(APSTRING("q:a"), APSTRING("3"));
  refuses(document, "the element \"p:e\" in \"r\" has two attributes of one name in one namespace");

  document->removeChild(document->getFirstChild());
  EXPECT_FALSE(document->createElement(APSTRING("p:e"))->hasAttributes());
}

TEST(axsSaving, spaces_that_reading_takes_out_of_tokens_are_not_saved)
{
  std::string const type =
    "<!DOCTYPE r [<!ATTLIST r i ID #IMPLIED n NMTOKENS #IMPLIED e (x|y) #IMPLIED c CDATA #IMPLIED>]>\n";
  auto const document = load(type + "<r/>");
  auto const root = document->getDocumentElement();
  for (char const* const name : {"i", "n", "e"})
  {
    for (char const* const value : {" x", "x ", "x  y", " "})
    {
      root->setAttribute(wide(name), wide(value));
      refuses(
        document, "the attribute \"" + std::string(name) +
                    "\" in \"r\" consists of tokens by its declaration, and its value has spaces that a reader takes "
                    "out");
    }
    root->setAttribute(wide(name), APSTRING("x y"));
    saves_as(document, type + "<r " + name + "=\"x y\"/>\n");
    // As references, other white space is not spaces (XML 1.0, 3.3.3).
    root->setAttribute(wide(name), APSTRING("\tx\n\ny\r"));
    saves_as(document, type + "<r " + name + "=\"&#9;x&#10;&#10;y&#13;\"/>\n");
    root->removeAttribute(wide(name));
  }
  root->setAttribute(APSTRING("c"), APSTRING(" x  y "));
  saves_as(document, type + "<r c=\" x  y \"/>\n");
}

TEST(axsSaving, whatever_is_saved_after_any_edits_is_read_as_the_same)
{
  // A reader drops texts of white space only, so none of them is made.
  std::string const pieces[] = {"x", "\r", "\n", "\t", "  ", "-", "--", "]]>", "?>", "&", "<", "\"", "'", "\x01",
    "\x7F", "\xC2\x85", "\xE2\x80\xA8", "\xEF\xBF\xBE", "\xF0\x90\x80\x80"};
  std::string const names[] = {"a", "t", "d", "xmlns", "xmlns:p", "xmlns:q", "p:a", "q:a", "xml:lang", "p:q:a"};
  std::string const elements[] = {"r", "e", "p:e", "q:e"};
  std::string const type = "<!DOCTYPE r [<!ATTLIST r t NMTOKENS #IMPLIED><!ATTLIST e d CDATA ' 1 '>"
                           "<!ATTLIST p:e xmlns:p CDATA 'u' p:a ID 'i'>]>\n";
  std::mt19937 random(17);
  auto const any = [&](auto const& from) { return from[random() % std::size(from)]; };
  auto const text = [&]
  {
    std::string made = random() % 2 == 0 ? "x" : "";
    for (auto count = random() % 3; count > 0; --count)
      made += random() % 3 == 0 ? any(pieces) : "y";
    return made;
  };

  int saves = 0;
  int refusals = 0;
  for (int round = 0; round < 2000; ++round)
  {
    bool const is_later = round % 4 == 0;
    auto const document =
      load((is_later ? "<?xml version='1.1'?>" : "") + type + "<r><![CDATA[c]]><?i d?><!--c--></r>");
    auto const root = document->getDocumentElement();
    for (auto edits = random() % 6; edits > 0; --edits)
    {
      auto const found = root->selectNodes(APSTRING("//*"));
      auto const element = found->at(static_cast<int>(random() % static_cast<unsigned>(found->length())));
      std::shared_ptr<axmNode> const child = element->getFirstChild();
      switch (random() % 8)
      {
      case 0:
        element->appendChild(document->createElement(wide(any(elements))));
        break;
      case 1:
        element->appendChild(document->createComment(wide(text())));
        break;
      case 2:
        element->setAttribute(wide(any(names)), wide(random() % 2 == 0 ? "u" : text()));
        break;
      case 3:
        element->removeAttribute(wide(any(names)));
        break;
      case 4:
        if (child != nullptr && child->getNodeName() != APSTRING("#text"))
          child->set_text(wide("x" + text()));
        break;
      case 5:
        if (child != nullptr && child->getNodeName() == APSTRING("i"))
          child->set_text(wide(text()));
        break;
      case 6:
        element->insertBefore(document->createTextNode(wide("x" + text())), nullptr);
        break;
      default:
        if (random() % 8 == 0)
          document->removeChild(document->getFirstChild());
      }
    }
    apByteArray output;
    if (!engine()->saveDocument(document, output))
    {
      ++refusals;
      EXPECT_NE(narrow(axsSaving::obstacle(*document)), "");
      continue;
    }
    ++saves;
    EXPECT_EQ(narrow(axsSaving::obstacle(*document)), "");
    std::string const xml(output.data(), output.size());
    auto const again = load(xml);
    ASSERT_NE(again, nullptr) << xml;
    EXPECT_EQ(saved(again), xml);
  }
  EXPECT_GT(saves, 200);
  EXPECT_GT(refusals, 200);
}

TEST(axsSaving, what_the_document_says_of_its_own_stands_alone_is_kept)
{
  for (std::string const word : {"yes", "no"})
  {
    std::string const text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"" + word + "\"?>\n<r/>\n";
    EXPECT_EQ(saved(load(text)), text);
    EXPECT_EQ(narrow(load(text)->get_xml()), text);
  }
  std::string const later = "<?xml version=\"1.1\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<r/>\n";
  EXPECT_EQ(saved(load(later)), later);
  EXPECT_EQ(saved(load("<r/>")), declaration + "<r/>\n");
}

TEST(axsSaving, what_is_not_unicode_does_not_enter_a_document)
{
  CountingListener const listener;
  auto const document = load("<r a='1'>t<!--c--><?p d?></r>");
  std::string const before = saved(document);
  auto const root = document->getDocumentElement();
  EXPECT_EQ(document->createTextNode(half_a_pair()), nullptr);
  EXPECT_EQ(document->createComment(half_a_pair()), nullptr);
  EXPECT_EQ(document->createElement(half_a_pair()), nullptr);
  EXPECT_EQ(engine()->createDocument(half_a_pair()), nullptr);
  EXPECT_EQ(listener.reports, 0);
  root->setAttribute(APSTRING("a"), half_a_pair());
  root->setAttribute(APSTRING("b"), half_a_pair());
  root->setAttribute(half_a_pair(), APSTRING("1"));
  root->set_text(half_a_pair());
  root->getAttributes()->getNamedItem(APSTRING("a"))->set_text(half_a_pair());
  for (auto child = root->getFirstChild(); child != nullptr; child = child->getNextSibling())
    child->set_text(half_a_pair());
  EXPECT_EQ(listener.reports, 7);
  EXPECT_EQ(saved(document), before);

  // What stands for such texts elsewhere is a character like any other.
  root->setAttribute(APSTRING("a"), wide("\xEF\xBF\xBD\xF0\x90\x80\x80"));
  EXPECT_EQ(listener.reports, 7);
  EXPECT_EQ(
    narrow(load(saved(document))->getDocumentElement()->getAttribute(APSTRING("a"))), "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(axsSaving, a_name_that_is_not_unicode_finds_nothing_among_many)
{
  auto const root = engine()->createDocument(APSTRING("r"))->getDocumentElement();
  root->setAttribute(wide("\xEF\xBF\xBD"), APSTRING("1"));
  for (int i = 0; i < 1000; ++i)
    root->setAttribute(wide("a" + std::to_string(i)), APSTRING("2"));
  EXPECT_TRUE(root->hasAttribute(wide("\xEF\xBF\xBD")));
  EXPECT_FALSE(root->hasAttribute(apString(L"\xD800")));
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

TEST(axsSaving, tells_that_a_document_is_of_another_engine)
{
  auto const foreign = std::make_shared<TestDocument>();
  EXPECT_EQ(narrow(axsSaving::obstacle(*foreign)), "the document is of another engine");
  apByteArray output;
  EXPECT_FALSE(engine()->saveDocument(foreign, output));
  EXPECT_FALSE(engine()->saveDocument(nullptr, output));
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
