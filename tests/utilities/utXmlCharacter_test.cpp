#include <utXmlCharacter.h>

#include <gtest/gtest.h>

#include <string>

TEST(utXmlCharacter_, knows_the_characters_of_xml)
{
  struct
  {
    char32_t first;
    char32_t last;
    bool is;
  } const ranges[] = {{0, 8, false}, {9, 0xA, true}, {0xB, 0xC, false}, {0xD, 0xD, true}, {0xE, 0x1F, false},
    {0x20, 0xD7FF, true}, {0xD800, 0xDFFF, false}, {0xE000, 0xFFFD, true}, {0xFFFE, 0xFFFF, false},
    {0x10000, 0x10FFFF, true}, {0x110000, 0x110100, false}, {0xFFFFFFFE, 0xFFFFFFFF, false}};
  for (auto const& range : ranges)
    for (char32_t code = range.first;; ++code)
    {
      ASSERT_EQ(utXmlCharacter::is_character(code), range.is) << std::hex << static_cast<unsigned long>(code);
      if (code == range.last)
        break;
    }
}

TEST(utXmlCharacter_, knows_white_space)
{
  std::string const space = " \t\r\n";
  for (char32_t code = 0; code < 0x3100; ++code)
    EXPECT_EQ(utXmlCharacter::is_space(code), code < 0x80 && space.find(static_cast<char>(code)) != std::string::npos)
      << static_cast<unsigned long>(code);
  for (int byte = -128; byte < 128; ++byte)
    EXPECT_EQ(utXmlCharacter::is_space(static_cast<char>(byte)), byte > 0 && utXmlCharacter::is_space(char32_t(byte)))
      << byte;
}
