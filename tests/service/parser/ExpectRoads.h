#pragma once

#include "BothRoads.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

/// The scanner takes them, and the parser agrees.
inline void expect_taken(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
  {
    BothRoads const roads(document);
    EXPECT_TRUE(roads.scanned()) << document.substr(0, 300);
    EXPECT_EQ(roads.difference(), "") << document.substr(0, 300);
  }
}

/// They are right, but not for the scanner.
inline void expect_left(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
  {
    BothRoads const roads(document);
    EXPECT_FALSE(roads.scanned()) << document.substr(0, 300);
    EXPECT_TRUE(roads.parsed()) << document.substr(0, 300);
  }
}

/// They are wrong.
inline void expect_refused(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
  {
    BothRoads const roads(document);
    EXPECT_FALSE(roads.scanned()) << document.substr(0, 300);
    EXPECT_FALSE(roads.parsed()) << document.substr(0, 300);
  }
}
