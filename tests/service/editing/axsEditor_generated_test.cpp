#include "Markup.h"

#include <apByteArray.h>
#include <axmCommentNode.h>
#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axsEditor.h>
#include <axsRegister.h>
#include <axsXPath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

// Random edits. What they may change is found by a scanner of the tests' own; what they mean is done a second time through
// the interface of documents.
namespace
{
namespace fs = std::filesystem;

std::string const hard_document =
  "\xEF\xBB\xBF<?xml version='1.0' encoding=\"utf-8\" ?>\r\n<!DOCTYPE list [\r\n  <!ENTITY word 'some <b>text</b>'>\r\n"
  "  <!ATTLIST item kind CDATA #IMPLIED tokens NMTOKENS #IMPLIED>\r\n]>\r\n<!-- before --><?p q?>\r\n"
  "<list xmlns:p='urn:p'  a = \"1>2\"\r\n   b='&lt;\t&#65;'>\r\n\t<item id=\"i1\">x<![CDATA[<item>]]>y</item >\r\n"
  "\t<item\ttokens='a b'/>\r\n\t<p:item p:z='\xC3\xA4\xE2\x82\xAC'><deep><deep><deep/></deep></deep></p:item>\r\n"
  "  <mixed>one <i>two</i> three <i/>\r\n four &amp; \xF0\x9D\x84\x9E</mixed>\r\n  <pre xml:space='preserve'>\r\n "
  "<i/>\r\n </pre>"
  "\r\n\r\n  <i/><i/> <i/>\r\n <!-- <item/> --> <?item <i/>?>\r\n</list>\r\n<!-- after -->\r\n";

std::string contents(fs::path const& path)
{
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string number_of(std::size_t index)
{
  return "(//*)[" + std::to_string(index + 1) + "]";
}

class Document
{
public:
  explicit Document(std::string given) : bytes(std::move(given)), elements(Markup::elements(bytes)) {}

  // Some that is not the root, if there is one; one of the first, so that large documents do not take long.
  std::size_t random_element(std::mt19937& random) const
  {
    std::size_t const count = std::min<std::size_t>(elements.size(), 2000);
    return count < 2 ? 0 : std::uniform_int_distribution<std::size_t>(1, count - 1)(random);
  }

  std::string bytes;
  std::vector<Markup::Element> elements;
};

// The document as the engine saves it, without white space, which edits bring and take with lines.
std::string saved(axmDocumentFactory& factory, std::shared_ptr<axmDocument> const& document)
{
  apByteArray output;
  EXPECT_TRUE(factory.saveDocument(document, output));
  std::string text(output.data(), output.size());
  text.erase(
    std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\n' || c == '\t'; }), text.end());
  return text;
}

class Trial
{
public:
  Trial(Document const& tried, std::mt19937& numbers) : document(tried), random(numbers)
  {
    axs_register();
    utServiceName resolved;
    factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
    tree = load(document.bytes);
    first = document.random_element(random);
    second = document.random_element(random);
  }

  void run()
  {
    switch (std::uniform_int_distribution<int>(0, 4)(random))
    {
    case 0:
      return set();
    case 1:
      return rename();
    case 2:
      return remove();
    case 3:
      return insert();
    default:
      return move();
    }
  }

private:
  using Ranges = std::vector<Markup::Range>;

  std::shared_ptr<axmDocument> load(std::string const& bytes) const
  {
    axmParseError error;
    auto loaded =
      factory->loadDocument(apByteArray(bytes.data(), bytes.size()), axmLoadOptions(axmValidateNone), error);
    EXPECT_NE(loaded, nullptr) << error.message().to_utf8().c_str();
    return loaded;
  }

  std::shared_ptr<axmElement> element(std::size_t index) const
  {
    axsXPath::Value value;
    axsXPathError error;
    EXPECT_TRUE(axsXPath::evaluate(*tree, apString(number_of(index).c_str()), value, error));
    return std::dynamic_pointer_cast<axmElement>(value.nodes.at(0));
  }

  // Everything but the ranges, in their order, each of which has become something else, is as it was.
  void expect_changed_only(Ranges const& ranges, std::string const& edited) const
  {
    std::size_t at = 0;
    std::size_t from = 0;
    for (Markup::Range const& range : ranges)
    {
      std::string const kept = document.bytes.substr(from, range.begin - from);
      std::size_t const found = edited.find(kept, at);
      ASSERT_TRUE(found != std::string::npos && (from > 0 || found == 0)) << what;
      at = found + kept.size();
      from = range.end;
    }
    std::string const rest = document.bytes.substr(from);
    ASSERT_GE(edited.size(), at + rest.size()) << what;
    EXPECT_EQ(edited.substr(edited.size() - rest.size()), rest) << what;
  }

  void expect_same_meaning(std::string const& edited) const
  {
    EXPECT_EQ(saved(*factory, load(edited)), saved(*factory, tree)) << what;
  }

  // The whole lines that the range stands alone on, and itself if it does not.
  Markup::Range with_lines(Markup::Range range) const
  {
    std::string const blanks = " \t";
    while (range.begin > 0 && blanks.find(document.bytes[range.begin - 1]) != blanks.npos)
      --range.begin;
    range.end = std::min(document.bytes.find_first_not_of(" \t\r\n", range.end), document.bytes.size());
    return range;
  }

  Markup::Range whole(std::size_t index) const
  {
    return {document.elements[index].start.begin, document.elements[index].end.end};
  }

  bool is_refused(axsEditor const& editor, std::size_t count) const
  {
    if (count > 0)
      return false;
    EXPECT_EQ(editor.fault().kind, axsEditFault::Kind::edit) << what;
    EXPECT_EQ(editor.bytes(), document.bytes);
    return true;
  }

  void set()
  {
    std::string const name = random() % 2 == 0 ? "id" : "name";
    std::string const value = random() % 2 == 0 ? "\xC3\xA4 <'\">&" : std::to_string(random() % 3);
    what = "set " + number_of(first) + " " + name;
    axsEditor editor(document.bytes, apPath());
    ASSERT_EQ(editor.set_attributes(number_of(first), {{name, value}}), 1u) << what;
    element(first)->setAttribute(apString(name.c_str()), apString(value.c_str()));
    expect_changed_only({document.elements[first].start}, editor.bytes());
    expect_same_meaning(editor.bytes());
  }

  void rename()
  {
    what = "rename " + number_of(first);
    axsEditor editor(document.bytes, apPath());
    ASSERT_EQ(editor.rename(number_of(first), "new-name"), 1u) << what;
    Markup::Element const& tags = document.elements[first];
    bool const is_empty = tags.start.begin == tags.end.begin;
    expect_changed_only(is_empty ? Ranges{tags.start} : Ranges{tags.start, tags.end}, editor.bytes());

    // Back again it is what it was.
    std::string const start = document.bytes.substr(tags.start.begin + 1);
    EXPECT_EQ(editor.rename(number_of(first), start.substr(0, start.find_first_of(" \t\r\n/>"))), 1u) << what;
    EXPECT_EQ(editor.bytes(), document.bytes) << what;
  }

  void remove()
  {
    what = "remove " + number_of(first);
    axsEditor editor(document.bytes, apPath());
    if (is_refused(editor, editor.remove(number_of(first))))
      return;
    auto const removed = element(first);
    removed->getParentNode()->removeChild(removed);
    expect_changed_only({with_lines(whole(first))}, editor.bytes());
    expect_same_meaning(editor.bytes());
  }

  void insert()
  {
    auto const where = static_cast<axsEditPlace>(random() % 4);
    what = "insert " + number_of(first) + " " + std::to_string(static_cast<int>(where));
    axsEditor editor(document.bytes, apPath());
    std::string const fragment = "<new a='&amp;'>\xE2\x82\xAC<!-- c --></new>";
    if (is_refused(editor, editor.insert(number_of(first), where, fragment)))
      return;
    put(make_new(), where, element(first));
    // An empty element gets another tag.
    Markup::Range around = whole(first);
    if (where == axsEditPlace::before)
      around.end = around.begin;
    else if (where == axsEditPlace::after)
      around.begin = around.end;
    expect_changed_only({around}, editor.bytes());
    EXPECT_NE(editor.bytes().find(fragment), std::string::npos);
    expect_same_meaning(editor.bytes());
  }

  void move()
  {
    auto const where = static_cast<axsEditPlace>(random() % 4);
    what = "move " + number_of(first) + " " + number_of(second) + " " + std::to_string(static_cast<int>(where));
    axsEditor editor(document.bytes, apPath());
    if (is_refused(editor, editor.move(number_of(first), where, number_of(second))))
      return;
    auto const target = element(second);
    auto const moved = element(first);
    moved->getParentNode()->removeChild(moved);
    put(moved, where, target);
    Markup::Range const source = with_lines(whole(first));
    Markup::Range const aim = whole(second);
    expect_changed_only({{std::min(source.begin, aim.begin), std::max(source.end, aim.end)}}, editor.bytes());
    EXPECT_NE(editor.bytes().find(document.bytes.substr(whole(first).begin, whole(first).end - whole(first).begin)),
      std::string::npos);
    expect_same_meaning(editor.bytes());
  }

  std::shared_ptr<axmNode> make_new() const
  {
    auto const made = tree->createElement(APSTRING("new"));
    made->setAttribute(APSTRING("a"), APSTRING("&"));
    made->set_text(apString("\xE2\x82\xAC"));
    made->appendChild(tree->createComment(APSTRING(" c ")));
    return made;
  }

  static void put(std::shared_ptr<axmNode> const& node, axsEditPlace where, std::shared_ptr<axmNode> const& target)
  {
    if (where == axsEditPlace::before)
      target->getParentNode()->insertBefore(node, target);
    else if (where == axsEditPlace::after)
      target->getParentNode()->insertBefore(node, target->getNextSibling());
    else
      target->insertBefore(node, where == axsEditPlace::into ? nullptr : target->getFirstChild());
  }

  Document const& document;
  std::mt19937& random;
  std::shared_ptr<axmDocumentFactory> factory;
  std::shared_ptr<axmDocument> tree;
  std::size_t first;
  std::size_t second;
  std::string what;
};

int number_of_edits()
{
  char const* const wanted = std::getenv("AXM_EDITS");
  return wanted == nullptr ? 300 : std::atoi(wanted);
}

// Those of the repository, and those in the folder that AXM_EDIT_DOCUMENTS names. What the scanner cannot see, elements in
// entities, none of them has.
std::vector<Document> documents()
{
  std::vector<Document> all;
  std::string plain = hard_document;
  all.emplace_back(plain);
  for (char const* const name : {"examples/books.xml", "examples/stations.xml", "examples/stations.xsd",
         "data/in_memory_test_schema.xsd", "tests/suites/schemas/order_good.xml"})
    all.emplace_back(contents(fs::path(AXM_SAMPLES) / name));
  if (char const* const folder = std::getenv("AXM_EDIT_DOCUMENTS"))
    for (fs::directory_entry const& entry : fs::directory_iterator(folder))
      if (entry.path().extension() == ".xml")
        all.emplace_back(contents(entry.path()));
  return all;
}
}

TEST(axsEditor_generated, edits_change_nothing_else_and_mean_what_the_tree_says)
{
  std::vector<Document> const all = documents();
  std::mt19937 random(7);
  // Large documents have their share of bytes, not of edits.
  std::vector<double> weights;
  for (Document const& document : all)
    weights.push_back(1 / std::max(20000.0, static_cast<double>(document.bytes.size())));
  std::discrete_distribution<std::size_t> choice(weights.begin(), weights.end());
  for (int i = 0; i < number_of_edits() && !testing::Test::HasFailure(); ++i)
  {
    std::size_t const number = i < static_cast<int>(all.size()) ? static_cast<std::size_t>(i) : choice(random);
    SCOPED_TRACE("document " + std::to_string(number) + ", edit " + std::to_string(i));
    Trial(all[number], random).run();
  }
}

TEST(axsEditor_generated, edits_of_what_is_in_utf_16_are_those_of_utf_8)
{
  std::mt19937 random(8);
  for (int i = 0; i < 60; ++i)
  {
    auto const wide = [&](std::string text)
    {
      text.replace(text.find("utf-8"), 5, "utf-16");
      return Markup::encoded(text, i % 2 == 0 ? Markup::utf_16_le : Markup::utf_16_be);
    };
    std::string const chosen = number_of(1 + random() % 14);
    auto const where = static_cast<axsEditPlace>(random() % 4);
    auto const edit = [&](axsEditor& editor)
    { return i % 3 == 0 ? editor.remove(chosen) : editor.insert(chosen, where, "<n>\xE2\x82\xAC</n>"); };
    axsEditor one(hard_document, apPath());
    axsEditor other(wide(hard_document), apPath());
    EXPECT_EQ(edit(one), 1u) << chosen;
    EXPECT_EQ(edit(other), 1u) << chosen;
    EXPECT_EQ(other.bytes(), wide(one.bytes())) << chosen;
  }
}
