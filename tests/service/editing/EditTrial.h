#pragma once

#include "../TextStream.h"
#include "Markup.h"

#include <apByteArray.h>
#include <axmCommentNode.h>
#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axsCanonicalForm.h>
#include <axsEditor.h>
#include <axsRegister.h>
#include <axsXPath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A document in UTF-8, none of whose elements comes out of an entity.
class EditedDocument
{
public:
  explicit EditedDocument(std::string given) : bytes(std::move(given)), elements(Markup::elements(bytes)) {}

  // Some that is not the root, if there is one; one of the first, so that large documents do not take long.
  std::size_t random_element(std::mt19937& random) const
  {
    std::size_t const count = std::min<std::size_t>(elements.size(), 2000);
    return count < 2 ? 0 : std::uniform_int_distribution<std::size_t>(1, count - 1)(random);
  }

  /// Whether something may be declared of it.
  bool has_type() const { return bytes.find("<!DOCTYPE") != bytes.npos; }

  std::string bytes;
  std::vector<Markup::Element> elements;
};

/// A random edit of a document. What it may change is found by a scanner of the tests' own; what it means is done a second
/// time through the interface of documents.
class EditTrial
{
public:
  EditTrial(EditedDocument const& tried, std::mt19937& numbers) : document(tried), random(numbers)
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

  /// Whether the edit was refused, as it may be.
  bool was_refused() const { return has_been_refused; }

  /// How an element is selected.
  static std::string number_of(std::size_t index) { return "(//*)[" + std::to_string(index + 1) + "]"; }

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

  // What the document says, without white space, which edits bring and take with lines. Where a canonical form cannot be had,
  // as of XML 1.1, it is what the engine saves.
  static std::string meaning(axmDocumentFactory& factory, std::shared_ptr<axmDocument> const& document)
  {
    apByteArray output;
    EXPECT_TRUE(factory.saveDocument(document, output));
    std::string text = canonical(output);
    if (text.empty())
      text.assign(output.data(), output.size());
    text.erase(
      std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\n' || c == '\t'; }), text.end());
    return text;
  }

  static std::string canonical(apByteArray const& document)
  {
    axsCanonicalOptions options;
    options.has_comments = true;
    TextStream source({document.data(), document.size()});
    std::string text;
    axmParseError error;
    auto const write = appending_to(text);
    return axsCanonicalForm::write(source, options, error, write) ? text : std::string();
  }

  void expect_same_meaning(std::string const& edited) const
  {
    EXPECT_EQ(meaning(*factory, load(edited)), meaning(*factory, tree)) << what;
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

  bool is_refused(axsEditor const& editor, std::size_t count)
  {
    if (count > 0)
      return false;
    has_been_refused = true;
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
    // Under another name, a value may be declared to be read as another.
    if (is_refused(editor, editor.rename(number_of(first), "new-name")))
    {
      EXPECT_TRUE(document.has_type()) << what;
      return;
    }
    Markup::Element const& tags = document.elements[first];
    bool const is_empty = tags.start.begin == tags.end.begin;
    expect_changed_only(is_empty ? Ranges{tags.start} : Ranges{tags.start, tags.end}, editor.bytes());

    // Back again it is what it was.
    utString const name = element(first)->getNodeName().to_utf8();
    EXPECT_EQ(editor.rename(number_of(first), name.view()), 1u) << what;
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

  EditedDocument const& document;
  std::mt19937& random;
  std::shared_ptr<axmDocumentFactory> factory;
  std::shared_ptr<axmDocument> tree;
  std::size_t first;
  std::size_t second;
  std::string what;
  bool has_been_refused = false;
};
