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

/// They are wrong, though the judge lets them pass.
inline void expect_refused_alone(std::initializer_list<std::string> documents)
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
