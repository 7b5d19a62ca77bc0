#include "axmDocumentUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmDocumentUtest";
}

axmDocumentUtest::axmDocumentUtest(utUnitTest* given) : tester(given) {}

axmDocumentUtest::~axmDocumentUtest() = default;

void axmDocumentUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmDocumentUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_get_elements_by_tag_name, "axmDocumentUtest::test_get_elements_by_tag_name"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmDocumentUtest::test_get_elements_by_tag_name(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentUtest::test_get_elements_by_tag_name");
  auto const document = load(factory,
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><tag_1>  <tag_2>Tag2Text1</tag_2>  <tag_2>Tag2Text2</tag_2>  "
    "<tag_3>Tag3Text</tag_3></tag_1>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const tag1s = document->getElementsByTagName(APSTRING("tag_1"));
  group.check(length_of(tag1s), 1, "tag1s->length() == 1", __LINE__, "number of tag_1 elements");
  group.check(text_of(item_of(tag1s, 0)), APSTRING("Tag2Text1Tag2Text2Tag3Text"),
    "tag1s->at(0)->get_text() == APSTRING(\"Tag2Text1Tag2Text2Tag3Text\")", __LINE__, "tag1 text");

  auto const tag2s = document->getElementsByTagName(APSTRING("tag_2"));
  group.check(length_of(tag2s), 2, "tag2s->length() == 2", __LINE__, "number of tag_2 elements");
  group.check(text_of(item_of(tag2s, 0)), APSTRING("Tag2Text1"), "tag2s->at(0)->get_text() == APSTRING(\"Tag2Text1\")",
    __LINE__, "text of first tag_2 element");
  group.check(text_of(item_of(tag2s, 1)), APSTRING("Tag2Text2"), "tag2s->at(1)->get_text() == APSTRING(\"Tag2Text2\")",
    __LINE__, "text of second tag_2 element");

  auto const tag4s = document->getElementsByTagName(APSTRING("tag_4"));
  group.check(length_of(tag4s), 0, "tag4s->length() == 0", __LINE__, "number of tag_4 elements");
}
