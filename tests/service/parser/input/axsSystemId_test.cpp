#include "axsSystemId.h"

#include "../../Engine.h"

#include <filesystem>

namespace
{
std::string resolved(std::string const& base, std::string const& reference)
{
  utString const path = axsSystemId::resolve(apPath(base.c_str()), reference).path();
  return std::string(path.c_str(), static_cast<std::size_t>(path.length()));
}
}

TEST(axsSystemId, is_relative_to_the_file_that_has_it)
{
  EXPECT_EQ(resolved("", "a.ent"), "a.ent");
  EXPECT_EQ(resolved("doc.xml", "a.ent"), "a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "a.ent"), "x/a.ent");
  EXPECT_EQ(resolved("/x/y/doc.xml", "z/a.ent"), "/x/y/z/a.ent");
  EXPECT_EQ(resolved("../doc.xml", "a.ent"), "../a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "1:a.ent"), "x/1:a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "_:a.ent"), "x/_:a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "|:a.ent"), "x/|:a.ent");
}

TEST(axsSystemId, has_no_steps_that_lead_nowhere)
{
  EXPECT_EQ(resolved("x/doc.xml", "./a.ent"), "x/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "../a.ent"), "a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "../../a.ent"), "../a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "y/./..//z/a.ent"), "x/z/a.ent");
  EXPECT_EQ(resolved("/x/doc.xml", "../../../a.ent"), "/a.ent");
  EXPECT_EQ(resolved("", "/x/../y/a.ent"), "/y/a.ent");
  EXPECT_EQ(resolved("../../doc.xml", "../a.ent"), "../../../a.ent");
}

TEST(axsSystemId, may_be_absolute)
{
  EXPECT_EQ(resolved("x/doc.xml", "/y/a.ent"), "/y/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "C:/y/a.ent"), "C:/y/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "z:/y/a.ent"), "z:/y/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "/"), "/");
}

TEST(axsSystemId, may_be_a_url_of_a_file)
{
  EXPECT_EQ(resolved("x/doc.xml", "file:///y/a%20b.ent"), "/y/a b.ent");
  EXPECT_EQ(resolved("x/doc.xml", "file:/y/a.ent"), "/y/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "FILE://localhost/y/../a.ent"), "/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "file:///C:/y/a.ent"), "C:/y/a.ent");
  EXPECT_EQ(resolved("x/doc.xml", "file:a.ent"), "");
  EXPECT_EQ(resolved("x/doc.xml", "file:"), "");
  EXPECT_EQ(resolved("x/doc.xml", "file://localhost"), "");
}

TEST(axsSystemId, is_never_on_a_network)
{
  for (char const* const reference : {"http://localhost/a.ent", "https://localhost/a.ent", "ftp://localhost/a.ent",
         "HTTP:a.ent", "urn:x:y", "//host/a.ent", "\\\\host\\a.ent", "file://host/a.ent", "file:////host/a.ent",
         "/\\host/a.ent", "data:,x", "svn+ssh://localhost/a.ent", ""})
    EXPECT_EQ(resolved("x/doc.xml", reference), "") << reference;
}

TEST(axsSystemId, is_taken_as_written_where_such_a_file_is)
{
  EXPECT_EQ(resolved("", "axs%20system%41id.ent"), "axs systemAid.ent");
  TestFile const file("axs%20system%41id.ent", "x");
  EXPECT_EQ(resolved("", "axs%20system%41id.ent"), "axs%20system%41id.ent");
  EXPECT_EQ(resolved("", "file:///axs%20system%41id.ent"), "/axs systemAid.ent");
}

TEST(axsSystemId, decodes_what_is_encoded)
{
  EXPECT_EQ(axsSystemId::decoded("a%20b%C3%A4%c3%a4"), "a b\xC3\xA4\xC3\xA4");
  EXPECT_EQ(axsSystemId::decoded("%"), "%");
  EXPECT_EQ(axsSystemId::decoded("%4"), "%4");
  EXPECT_EQ(axsSystemId::decoded("%4G%G4%%41"), "%4G%G4%A");
  EXPECT_EQ(axsSystemId::decoded("%::%``%gg%//"), "%::%``%gg%//");
  // What has a zero byte in it names nothing.
  EXPECT_FALSE(axsSystemId::resolve(apPath(), "a%00.ent").exists());
}
