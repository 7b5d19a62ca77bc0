#include <axsCodePage.h>

#include <gtest/gtest.h>

TEST(axsCodePage, names_are_known_whatever_their_case_and_punctuation)
{
  EXPECT_EQ(axsCodePage::number_of("Shift_JIS"), 932u);
  EXPECT_EQ(axsCodePage::number_of("shift-jis"), 932u);
  EXPECT_EQ(axsCodePage::number_of("EUC-KR"), 949u);
  EXPECT_EQ(axsCodePage::number_of("GB18030"), 54936u);
  EXPECT_EQ(axsCodePage::number_of("TIS-620"), 874u);
}

TEST(axsCodePage, some_names_say_their_number)
{
  EXPECT_EQ(axsCodePage::number_of("IBM037"), 37u);
  EXPECT_EQ(axsCodePage::number_of("cp850"), 850u);
  EXPECT_EQ(axsCodePage::number_of("windows-874"), 874u);
  EXPECT_EQ(axsCodePage::number_of("CP99999"), 99999u);
}

TEST(axsCodePage, all_others_have_none)
{
  for (char const* const name : {"", "cp", "IBM", "windows-", "cp123456", "cp12x", "x-cp850", "850", "EBCDIC-CP-US"})
    EXPECT_EQ(axsCodePage::number_of(name), 0u) << name;
}
