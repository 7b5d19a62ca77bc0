#pragma once

#include <clocale>
#include <gtest/gtest.h>

/// Sets a locale of the C library for its lifetime, and "C" again after it. One at a time.
class TestLocale
{
public:
  /// One whose decimal point is a comma.
#if defined(_WIN32)
  static constexpr char const* comma = "German_Germany.1252";
#else
  static constexpr char const* comma = "de_DE.UTF-8";
#endif

  /// One whose decimal point, U+066B, takes two bytes.
  static constexpr char const* two_byte_point = "ps_AF.UTF-8";

  explicit TestLocale(char const* name)
  {
    if (std::setlocale(LC_ALL, name) == nullptr)
      ADD_FAILURE() << "there is no locale " << name;
  }
  TestLocale(TestLocale const&) = delete;
  TestLocale& operator=(TestLocale const&) = delete;
  ~TestLocale()
  {
    std::setlocale(LC_ALL, "C");
  }
};
