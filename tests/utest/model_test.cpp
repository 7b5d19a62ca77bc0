// The model of documents that the suite holds engines to.

#include "model/axmModel.h"
#include "model/axmModelCases.h"
#include "model/axmModelRandom.h"
#include "model/axmModelSource.h"
#include "model/axmModelStep.h"
#include "model/axmModelText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Kind = axmModelKind;
using Verdict = axmModelVerdict;

namespace
{
int const none = axmModel::none;

// A document <r><a/><b/><c/></r>.
struct Family
{
  Family()
  {
    for (int* const child : {&a, &b, &c})
    {
      *child = model.create_element(document, child == &a ? L"a" : child == &b ? L"b" : L"c");
      model.insert(root, *child, none);
    }
  }

  std::wstring names() const
  {
    std::wstring result;
    for (int const child : model.node(root).children)
      result += model.node_name(child);
    return result;
  }

  axmModel model;
  int document = model.create_document(L"r");
  int root = model.root(document);
  int a = none;
  int b = none;
  int c = none;
};
}

TEST(axmModelText, a_name_is_one_by_the_rule_of_XML)
{
  for (wchar_t const* const name : {L"a", L"_", L"a:b", L"\u00C0", L"a\u00B7", L"\u0444-1.", L"\U00010000"})
    EXPECT_TRUE(axmModelText::is_name(name)) << axmModelText::quoted(name);
  for (wchar_t const* const name : {L"", L"1", L"-a", L"a b", L"\u00D7", L"\u00F7", L"\u00B7a", L"a\u2028", L"a\uFFFE"})
    EXPECT_FALSE(axmModelText::is_name(name)) << axmModelText::quoted(name);
}

TEST(axmModelText, white_space_is_that_of_XML_alone)
{
  EXPECT_TRUE(axmModelText::is_white(L" \t\r\n"));
  EXPECT_TRUE(axmModelText::is_white(L""));
  EXPECT_FALSE(axmModelText::is_white(L"\u00A0"));
  EXPECT_FALSE(axmModelText::is_white(L"\u2003"));
  EXPECT_FALSE(axmModelText::is_white(L"\u0085"));
}

TEST(axmModelText, what_no_document_holds_is_told)
{
  EXPECT_TRUE(axmModelText::is_storable(L"\t\n\r \u0085\uFFFD\U0010FFFF"));
  for (wchar_t const* const text : {L"\x01", L"\x1F", L"\uFFFE", L"\uFFFF"})
    EXPECT_FALSE(axmModelText::is_storable(text)) << axmModelText::quoted(text);
  EXPECT_FALSE(axmModelText::is_storable(std::wstring(1, L'\0')));
}

TEST(axmModelText, a_text_is_quoted_so_that_a_compiler_reads_it)
{
  EXPECT_EQ(axmModelText::quoted(L"a\"\\\n\u0444\U00010437"), "L\"a\\\"\\\\\\012\\u0444\\U00010437\"");
}

TEST(axmModelRandom, a_seed_gives_the_same_numbers_everywhere)
{
  axmModelRandom random(1);
  EXPECT_EQ(random.next(), 0x910A2DEC89025CC1U);
  EXPECT_EQ(random.next(), 0xBEEB8DA1658EEC67U);
}

TEST(axmModel, a_document_has_a_root_of_a_name_that_is_one)
{
  Family family;
  EXPECT_EQ(family.model.node_name(family.root), L"r");
  EXPECT_EQ(family.model.parent(family.root), family.document);
  EXPECT_EQ(family.model.create_document(L"1"), none);
  EXPECT_EQ(family.model.create_element(family.document, L""), none);
}

TEST(axmModel, an_insertion_stands_before_its_reference)
{
  Family family;
  int const x = family.model.create_element(family.document, L"x");
  EXPECT_EQ(family.model.may_insert(family.root, x, family.b), Verdict::done);
  family.model.insert(family.root, x, family.b);
  EXPECT_EQ(family.names(), L"axbc");
  EXPECT_EQ(family.model.next(x), family.b);
  EXPECT_EQ(family.model.previous(x), family.a);
}

TEST(axmModel, a_sibling_is_moved_before_its_reference)
{
  Family family;
  family.model.insert(family.root, family.a, family.c);
  EXPECT_EQ(family.names(), L"bac");
  family.model.insert(family.root, family.c, family.b);
  EXPECT_EQ(family.names(), L"cba");
  family.model.insert(family.root, family.c, none);
  EXPECT_EQ(family.names(), L"bac");
}

TEST(axmModel, a_sibling_that_replaces_leaves_one_child_less)
{
  Family family;
  EXPECT_EQ(family.model.may_replace(family.root, family.a, family.c), Verdict::done);
  family.model.replace(family.root, family.a, family.c);
  EXPECT_EQ(family.names(), L"ba");
  EXPECT_EQ(family.model.parent(family.c), none);
}

TEST(axmModel, no_node_goes_below_itself)
{
  Family family;
  EXPECT_EQ(family.model.may_insert(family.a, family.a, none), Verdict::refused);
  EXPECT_EQ(family.model.may_insert(family.a, family.root, none), Verdict::refused);
  EXPECT_EQ(family.model.may_insert(family.a, family.document, none), Verdict::refused);
  EXPECT_EQ(family.model.may_replace(family.root, family.root, family.a), Verdict::refused);
}

TEST(axmModel, a_reference_is_a_child)
{
  Family family;
  int const below = family.model.create_element(family.document, L"below");
  family.model.insert(family.a, below, none);
  int const x = family.model.create_element(family.document, L"x");
  EXPECT_EQ(family.model.may_insert(family.root, x, below), Verdict::refused);
  EXPECT_EQ(family.model.may_replace(family.root, x, below), Verdict::refused);
  EXPECT_EQ(family.model.may_replace(family.root, x, none), Verdict::refused);
  EXPECT_EQ(family.model.may_insert(family.root, none, family.a), Verdict::refused);
  EXPECT_FALSE(family.model.may_remove(family.root, below));
  EXPECT_FALSE(family.model.may_remove(family.root, none));
  EXPECT_TRUE(family.model.may_remove(family.a, below));
}

TEST(axmModel, a_document_holds_one_element_and_no_text)
{
  Family family;
  int const second = family.model.create_element(family.document, L"second");
  EXPECT_EQ(family.model.may_insert(family.document, second, none), Verdict::refused);
  EXPECT_EQ(family.model.may_replace(family.document, second, family.root), Verdict::done);
  EXPECT_EQ(family.model.may_insert(family.document, family.root, none), Verdict::done);
  EXPECT_EQ(
    family.model.may_insert(family.document, family.model.create_text(family.document, L"x"), none), Verdict::refused);
  EXPECT_EQ(
    family.model.may_insert(family.document, family.model.create_comment(family.document, L"x"), none), Verdict::done);
  family.model.remove(family.root);
  EXPECT_EQ(family.model.root(family.document), none);
  EXPECT_EQ(family.model.may_insert(family.document, second, none), Verdict::done);
}

TEST(axmModel, what_is_no_parent_holds_nothing)
{
  Family family;
  int const x = family.model.create_element(family.document, L"x");
  int const attribute = family.model.set_attribute(family.a, L"k", L"v");
  for (int const leaf :
    {family.model.create_text(family.document, L"t"), family.model.create_comment(family.document, L"t"), attribute,
      family.model.create_instruction(family.document, L"t", L"")})
    EXPECT_EQ(family.model.may_insert(leaf, x, none), Verdict::refused);
  EXPECT_EQ(family.model.may_insert(family.root, attribute, none), Verdict::refused);
}

TEST(axmModel, a_node_of_another_document_may_be_taken_or_refused)
{
  Family family;
  int const other = family.model.create_document(L"other");
  int const foreign = family.model.create_element(other, L"foreign");
  family.model.set_attribute(foreign, L"k", L"v");
  EXPECT_EQ(family.model.may_insert(family.root, foreign, none), Verdict::free);
  EXPECT_EQ(family.model.may_insert(family.root, foreign, family.document), Verdict::refused);
  family.model.insert(family.root, foreign, none);
  EXPECT_EQ(family.model.node(foreign).document, axmModel::unknown);
  EXPECT_EQ(family.model.node(family.model.find_attribute(foreign, L"k")).document, axmModel::unknown);
}

TEST(axmModel, a_text_takes_the_place_of_the_content)
{
  Family family;
  int const made = family.model.set_text(family.root, L"");
  EXPECT_EQ(family.model.node(family.root).children, std::vector<int>{made});
  EXPECT_EQ(family.model.node(made).kind, Kind::text);
  EXPECT_EQ(family.model.parent(family.a), none);
  EXPECT_EQ(family.model.set_text(made, L"new"), none);
  EXPECT_EQ(family.model.text(family.root), L"new");
}

TEST(axmModel, the_text_is_that_of_all_texts_below)
{
  Family family;
  family.model.insert(family.a, family.model.create_text(family.document, L"one"), none);
  family.model.insert(family.a, family.model.create_comment(family.document, L"not this"), none);
  family.model.insert(family.root, family.model.create_text(family.document, L"two"), family.b);
  EXPECT_EQ(family.model.text(family.document), L"onetwo");
}

TEST(axmModel, an_attribute_is_one_for_its_name)
{
  Family family;
  int const first = family.model.set_attribute(family.a, L"k", L"1");
  EXPECT_EQ(family.model.set_attribute(family.a, L"k", L"2"), first);
  EXPECT_EQ(family.model.node(first).value, L"2");
  EXPECT_EQ(family.model.parent(first), none);
  family.model.remove_attribute(first);
  EXPECT_EQ(family.model.find_attribute(family.a, L"k"), none);
  EXPECT_EQ(family.model.node(first).value, L"2");
}

TEST(axmModel, an_attribute_node_replaces_the_one_of_its_name)
{
  Family family;
  int const old = family.model.set_attribute(family.a, L"k", L"1");
  int const taken = family.model.set_attribute(family.b, L"k", L"2");
  EXPECT_EQ(family.model.may_set_named_item(family.a, taken), Verdict::free);
  family.model.remove_attribute(taken);
  EXPECT_EQ(family.model.may_set_named_item(family.a, taken), Verdict::done);
  EXPECT_EQ(family.model.may_set_named_item(family.a, family.b), Verdict::refused);
  EXPECT_EQ(family.model.may_set_named_item(family.a, none), Verdict::refused);
  EXPECT_EQ(family.model.set_named_item(family.a, taken), old);
  EXPECT_EQ(family.model.node(family.a).attributes, std::vector<int>{taken});
  EXPECT_EQ(family.model.node(old).holder, none);
}

TEST(axmModel, a_save_is_promised_for_what_comes_back)
{
  Family family;
  EXPECT_EQ(family.model.may_save(family.document), Verdict::done);
  family.model.set_attribute(family.a, L"p:k", L"v");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::free);
  int const comment = family.model.create_comment(family.document, L"a-");
  family.model.insert(family.root, comment, none);
  EXPECT_EQ(family.model.may_save(family.document), Verdict::refused);
  family.model.set_text(comment, L"a--b");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::refused);
  family.model.set_text(comment, L"a - b");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::free);
  family.model.set_attribute(family.b, L"k", L"\x01");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::refused);
  Family without_root;
  without_root.model.remove(without_root.root);
  EXPECT_EQ(without_root.model.may_save(without_root.document), Verdict::refused);
}

TEST(axmModel, what_stands_in_markup_as_it_is_is_saved_where_it_comes_back)
{
  Family family;
  int const comment = family.model.create_comment(family.document, L"");
  int const instruction = family.model.create_instruction(family.document, L"target", L"");
  family.model.insert(family.root, comment, none);
  family.model.insert(family.root, instruction, none);
  for (wchar_t const* const text : {L"", L"-a", L"a?>"})
  {
    family.model.set_text(comment, text);
    EXPECT_EQ(family.model.may_save(family.document), Verdict::done) << axmModelText::quoted(text);
  }
  family.model.set_text(comment, L"a\rb");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::refused);
  family.model.set_text(comment, L"");
  for (wchar_t const* const text : {L"a ", L"?", L"--"})
  {
    family.model.set_text(instruction, text);
    EXPECT_EQ(family.model.may_save(family.document), Verdict::done) << axmModelText::quoted(text);
  }
  for (wchar_t const* const text : {L" a", L"a\rb", L"a?>b", L"\x01"})
  {
    family.model.set_text(instruction, text);
    EXPECT_EQ(family.model.may_save(family.document), Verdict::refused) << axmModelText::quoted(text);
  }
}

TEST(axmModel, a_prefix_is_declared_within_what_is_written)
{
  Family family;
  family.model.set_attribute(family.a, L"xml:lang", L"v");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::done);
  family.model.set_attribute(family.a, L"n:k", L"v");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::free);
  family.model.set_attribute(family.root, L"xmlns:n", L"urn:n");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::done);
  EXPECT_EQ(family.model.may_save(family.root), Verdict::done);
  EXPECT_EQ(family.model.may_save(family.a), Verdict::free);
  family.model.set_attribute(family.root, L"xmlns:n", L"");
  EXPECT_EQ(family.model.may_save(family.document), Verdict::free);
}

TEST(axmModel, the_xml_of_an_element_is_a_document_with_that_root)
{
  Family family;
  family.model.set_attribute(family.b, L"k", L"v");
  family.model.set_text(family.b, L"x");
  int const copy = family.model.reload(family.b);
  int const root = family.model.root(copy);
  EXPECT_EQ(family.model.node_name(root), L"b");
  EXPECT_EQ(family.model.text(root), L"x");
  EXPECT_NE(family.model.find_attribute(root, L"k"), none);
  EXPECT_EQ(family.model.node(copy).children.size(), 1U);
}

TEST(axmModelCases, there_is_one_for_each_pair_of_kinds_and_edit_and_for_each_text_and_place)
{
  EXPECT_GT(axm_model_neighbours().size(), 5000U);
  EXPECT_GT(axm_model_texts().size(), 600U);
  for (auto const& cases : {axm_model_neighbours(), axm_model_texts()})
    for (std::vector<axmModelStep> const& steps : cases)
      for (std::size_t index = 0; index < steps.size(); ++index)
        ASSERT_EQ(steps[index].slot, static_cast<int>(index));
}

TEST(axmModel, a_load_joins_texts_and_drops_white_space_but_for_a_single_space)
{
  Family family;
  auto const add = [&family](wchar_t const* text)
  { family.model.insert(family.root, family.model.create_text(family.document, text), none); };
  add(L" ");
  family.model.insert(family.root, family.model.create_comment(family.document, L"one"), none);
  add(L" ");
  add(L" ");
  family.model.insert(family.root, family.model.create_comment(family.document, L"two"), none);
  add(L"");
  family.model.insert(family.root, family.model.create_comment(family.document, L"three"), none);
  add(L"x");
  add(L"\n");
  int const copy = family.model.root(family.model.reload(family.document));
  std::wstring children;
  for (int const child : family.model.node(copy).children)
    children += L"[" + family.model.node_name(child) + L"=" + family.model.node(child).value + L"]";
  EXPECT_EQ(children, L"[a=][b=][c=][#text= ][#comment=one][#comment=two][#comment=three][#text=x\n]");
}

TEST(axmModel, a_load_keeps_attributes_and_what_stands_outside_the_root)
{
  Family family;
  family.model.set_attribute(family.a, L"k", L" \n");
  family.model.insert(family.document, family.model.create_comment(family.document, L"before"), family.root);
  family.model.insert(family.document, family.model.create_instruction(family.document, L"after", L"x"), none);
  int const copy = family.model.reload(family.document);
  ASSERT_EQ(family.model.node(copy).children.size(), 3U);
  EXPECT_EQ(family.model.node(family.model.node(copy).children[0]).value, L"before");
  EXPECT_EQ(family.model.node(family.model.node(copy).children[2]).name, L"after");
  int const a = family.model.node(family.model.root(copy)).children[0];
  EXPECT_EQ(family.model.node(family.model.find_attribute(a, L"k")).value, L" \n");
  EXPECT_EQ(family.model.node(a).document, copy);
}

TEST(axmModel, elements_are_found_by_name_in_document_order)
{
  Family family;
  int const below = family.model.create_element(family.document, L"c");
  family.model.insert(family.a, below, none);
  EXPECT_EQ(family.model.elements_by_name(family.document, L"c"), (std::vector<int>{below, family.c}));
  EXPECT_EQ(family.model.elements_by_name(family.document, L"r"), std::vector<int>{family.root});
}

TEST(axmModelSource, a_number_stands_for_one_text)
{
  axmModel one;
  axmModel other;
  EXPECT_EQ(axm_model_source(one, 7).text, axm_model_source(other, 7).text);
  EXPECT_NE(axm_model_source(one, 7).text, axm_model_source(other, 8).text);
}

TEST(axmModelStep, steps_are_written_as_a_program)
{
  axmModelStep document;
  document.slot = 0;
  document.name = L"a";
  axmModelStep root;
  root.action = axmModelAction::root;
  root.slot = 1;
  root.a = 0;
  axmModelStep append;
  append.action = axmModelAction::append;
  append.slot = 2;
  append.a = 1;
  EXPECT_EQ(axm_model_program({document, root, append}), "auto const n0 = factory->createDocument(apString(L\"a\"));\n"
                                                         "auto const n1 = n0->getDocumentElement();\n"
                                                         "n1->appendChild(nullptr);\n");
}
