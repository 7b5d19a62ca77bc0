#pragma once

#include "BothRoads.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

/// The parser takes them, and the judge agrees.
inline void expect_taken(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
  {
    BothRoads const roads(document);
    EXPECT_TRUE(roads.scanned()) << document.substr(0, 300);
    EXPECT_EQ(roads.difference(), "") << document.substr(0, 300);
  }
}

/// The parser takes them, which the judge does not, or not in the same way.
inline void expect_taken_alone(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
  {
    BothRoads const roads(document);
    EXPECT_TRUE(roads.scanned()) << document.substr(0, 300);
    EXPECT_NE(roads.difference(), "") << document.substr(0, 300);
  }
}

/// They are wrong. A judge may let things pass.
inline void expect_refused(std::initializer_list<std::string> documents)
{
  for (std::string const& document : documents)
    EXPECT_FALSE(BothRoads(document).scanned()) << document.substr(0, 300);
}
