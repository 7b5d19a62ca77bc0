// Wide texts, formatting, paths and bytes when memory runs out.

#include <apByteArray.h>
#include <apPath.h>
#include <apString.h>
#include <apStringFormatter.h>

#include "../FailingMemory.h"

#include <gtest/gtest.h>
#include <utility>

namespace
{
// Too long for the object.
wchar_t const wide[] = L"a text of more characters than has room in the object";
char const narrow[] = "a text of more characters than has room in the object";
}

TEST(apString_memory, constructors_throw_and_leak_nothing)
{
  EXPECT_EQ(fails_cleanly([] { apString const text(wide); }), 1);
  EXPECT_EQ(fails_cleanly([] { apString const text(wide, apString::max_inside + 1); }), 1);
  EXPECT_EQ(fails_cleanly([] { apString const text(narrow); }), 1);
  EXPECT_EQ(fails_cleanly([] { apString const text("a text of more characters than has room \xD1\x84\xFF"); }), 1);
  EXPECT_EQ(fails_cleanly([] { apString const text(APSTRING("a text of more characters than has room")); }), 1);
}

TEST(apString_memory, a_short_text_needs_none)
{
  EXPECT_EQ(fails_cleanly(
              []
              {
                apString const text(wide, apString::max_inside);
                apString const converted("abc \xD1\x84\xFF");
                apString changed = APSTRING("a.b") + APSTRING("c");
                changed.replace_all(APSTRING("."), APSTRING(","));
                utString const utf8 = changed.to_utf8();
                changed = text;
              }),
    0);
}

TEST(apString_memory, empty_texts_copies_and_moves_need_none)
{
  apString const text(wide);
  EXPECT_EQ(fails_cleanly(
              [&text]
              {
                apString const empty(L"");
                apString copy(text);
                copy = empty;
                apString moved(std::move(copy));
                moved = text;
              }),
    0);
}

TEST(apString_memory, conversion_to_UTF_8_throws_and_leaks_nothing)
{
  apString const text(L"\u0444 and more than has room in an object");
  EXPECT_EQ(fails_cleanly([&text] { utString const utf8 = text.to_utf8(); }), 1);
}

TEST(apString_memory, failed_changes_leave_the_text)
{
  apString const old(L"a.b, and more than has room in an object");
  apString const point(L".");
  apString const comma(L",");
  apString text(old);
  auto const unchanged = [&] { return text.c_str() == old.c_str(); };
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                text.replace_all(point, comma);
                text = old;
              },
              unchanged),
    1);
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                text += comma;
                text = old;
              },
              unchanged),
    1);
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                text.assign_utf8(narrow);
                text = old;
              },
              unchanged),
    1);
}

TEST(apStringFormatter_memory, throws_and_leaks_nothing)
{
  EXPECT_GT(fails_cleanly(
              []
              {
                apStringFormatter::format(L"%100d %-100.50f %s %hs %c", 7, 1.5, L"a text long enough to need memory",
                  "another text long enough to need memory", L'x');
              }),
    5);
}

TEST(apPath_memory, throws_and_leaks_nothing)
{
  EXPECT_GT(fails_cleanly([] { apPath const path(L"a/path/that/is/too/long/to/lie/in/an/object"); }), 0);
  EXPECT_GT(fails_cleanly([] { apPath const path("a/path/that/is/too/long/to/lie/in/an/object"); }), 0);
}

TEST(apByteArray_memory, failed_growth_leaves_the_bytes)
{
  apByteArray bytes("abc", 3);
  apByteArray const old(bytes);
  bool threw[3] = {};
  {
    FailingMemory const memory(0);
    try
    {
      bytes.append("defghijk", 8);
    }
    catch (std::bad_alloc const&)
    {
      threw[0] = true;
    }
    try
    {
      bytes.resize(1000);
    }
    catch (std::bad_alloc const&)
    {
      threw[1] = true;
    }
    try
    {
      apByteArray const copy(bytes);
    }
    catch (std::bad_alloc const&)
    {
      threw[2] = true;
    }
  }
  EXPECT_TRUE(threw[0]);
  EXPECT_TRUE(threw[1]);
  EXPECT_TRUE(threw[2]);
  EXPECT_TRUE(bytes == old);
}
