#include "Engine.h"

#include <cstdlib>
#include <filesystem>

namespace
{
axmLoadOptions resolving()
{
  axmLoadOptions options(axmValidateNone);
  options.set_disable_entity_resolution(false);
  return options;
}

std::string references(int count)
{
  std::string text = "<!DOCTYPE r [<!ENTITY e 'x'>]><r>";
  for (int i = 0; i < count; ++i)
    text += "&e;";
  return text + "</r>";
}

// Entities that stand for `factor` of the one before each, the first for `size` characters.
std::string growing(int size, int factor, int levels, std::string const& content)
{
  std::string text = "<!DOCTYPE r [<!ENTITY e0 '" + std::string(static_cast<std::size_t>(size), 'x') + "'>";
  for (int level = 1; level <= levels; ++level)
  {
    text += "<!ENTITY e" + std::to_string(level) + " '";
    for (int i = 0; i < factor; ++i)
      text += "&e" + std::to_string(level - 1) + ";";
    text += "'>";
  }
  return text + "]>" + content;
}
}

TEST(axsSafety, the_limit_of_expansions_is_exact)
{
  EXPECT_EQ(load(references(50000))->get_text().length(), 50000);
  EXPECT_NE(narrow(error_of(references(50001)).message()).find("50000"), std::string::npos);
  axmLoadOptions options(axmValidateNone);
  options.set_entity_expansion_limit(3);
  EXPECT_NE(load(references(3), options), nullptr);
  error_of(references(4), options);
  for (int const none : {0, -1, -2147483647 - 1})
  {
    options.set_entity_expansion_limit(none);
    EXPECT_NE(load("<r>&amp;&#65;</r>", options), nullptr);
    error_of(references(1), options);
  }
}

TEST(axsSafety, expansion_is_bounded_in_size)
{
  // 1000 references to 100,000 characters each are far below the limit in number.
  EXPECT_NE(narrow(error_of(growing(100000, 32, 2, "<r>&e2;</r>")).message()).find("too large"), std::string::npos);
  error_of(growing(100000, 32, 3, "<r a='&e3;'/>"));
  EXPECT_EQ(load(growing(100000, 10, 1, "<r>&e1;</r>"))->get_text().length(), 1000000);
}

TEST(axsSafety, an_entity_that_contains_itself_fails)
{
  error_of("<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>");
  error_of("<!DOCTYPE r [<!ENTITY a '&a;'>]><r b='&a;'/>");
}

TEST(axsSafety, a_document_that_needs_an_external_entity_fails_by_default)
{
  TestFile const entity("engine_entity.txt", "secret");
  for (char const* const text : {"<!DOCTYPE r [<!ENTITY e SYSTEM 'engine_entity.txt'>]><r>&e;</r>",
         "<!DOCTYPE r [<!ENTITY % e SYSTEM 'engine_entity.txt'>%e;]><r/>"})
  {
    axmParseError const error = error_of(text);
    EXPECT_NE(narrow(error.message()).find("engine_entity.txt"), std::string::npos) << narrow(error.message());
    EXPECT_EQ(error.line_number(), 1);
  }
  EXPECT_NE(load("<!DOCTYPE r [<!ENTITY e SYSTEM 'engine_entity.txt'>]><r/>"), nullptr);
}

TEST(axsSafety, resolution_reads_local_files_only)
{
  TestFile const entity("engine %20 entity.txt", "<b>text</b>");
  TestFile const document(
    "engine_resolving.xml", "<!DOCTYPE r [<!ENTITY e SYSTEM 'engine %20 entity.txt'>]><r>&e;</r>");
  axmParseError error;
  auto const loaded = engine()->loadDocument(document.path(), resolving(), error);
  ASSERT_NE(loaded, nullptr) << narrow(error.message());
  EXPECT_EQ(narrow(loaded->getDocumentElement()->get_xml()), "<r><b>text</b></r>");

  for (char const* const address : {"http://localhost:1/x", "file://host/x", "//host/x", "ftp://localhost/x",
         "C:/no_such_folder/x.txt", "no_such_entity.txt", "/no_such_folder/x.txt"})
  {
    std::string const text = "<!DOCTYPE r [<!ENTITY e SYSTEM '" + std::string(address) + "'>]><r>&e;</r>";
    EXPECT_NE(narrow(error_of(text, resolving()).message()).find(address), std::string::npos);
  }
}

TEST(axsSafety, resolution_takes_a_file_by_any_path_that_is_here)
{
  TestFile const entity("engine_entity.txt", "here");
  std::string const folder = std::filesystem::current_path().generic_string();
  std::string const url = "file://" + std::string(folder[0] == '/' ? "" : "/") + folder;
  for (std::string const& address : {std::string("engine_entity.txt"), std::string("./no_such/../engine_entity.txt"),
         folder + "/engine_entity.txt", folder + "/no_such/../engine_entity.txt", url + "/engine%5fentity.txt"})
  {
    auto const loaded = load("<!DOCTYPE r [<!ENTITY e SYSTEM '" + address + "'>]><r>&e;</r>", resolving());
    ASSERT_NE(loaded, nullptr) << address;
    EXPECT_EQ(narrow(loaded->getDocumentElement()->get_xml()), "<r>here</r>") << address;
  }
}

TEST(axsSafety, resolution_opens_no_folders_and_devices)
{
  for (std::string const& address : {std::string("."), std::string("/dev/zero")})
  {
    std::string const text = "<!DOCTYPE r [<!ENTITY e SYSTEM '" + address + "'>]><r>&e;</r>";
    EXPECT_NE(error_of(text, resolving()).message(), apString()) << address;
  }
}

TEST(axsSafety, an_error_in_an_entity_has_its_place_there)
{
  TestFile const entity("engine_broken_entity.txt", "one\n<b></c>");
  axmParseError const error =
    error_of("<!DOCTYPE r [<!ENTITY e SYSTEM 'engine_broken_entity.txt'>]><r>&e;</r>", resolving());
  EXPECT_EQ(narrow(error.url()), entity.name);
  EXPECT_EQ(error.line_number(), 2);
}

TEST(axsSafety, an_external_subset_is_never_read_and_what_it_may_declare_is_not_made_up)
{
  for (axmLoadOptions const& options : {axmLoadOptions(axmValidateNone), resolving()})
  {
    EXPECT_NE(load("<!DOCTYPE r SYSTEM 'http://localhost:1/x.dtd'><r/>", options), nullptr);
    error_of("<!DOCTYPE r SYSTEM 'x.dtd'><r>&e;</r>", options);
    error_of("<!DOCTYPE r SYSTEM 'x.dtd' [<!ENTITY f ''>]><r a='&e;'/>", options);
  }
}

TEST(axsSafety, hostile_nesting_is_no_danger)
{
  std::string const many(200000, '(');
  std::string const closing(200000, ')');
  axmParseError error;
  engine()->loadDocument(
    bytes("<!DOCTYPE a [<!ELEMENT a " + many + "a" + closing + ">]><a/>"), axmLoadOptions(), error);
  std::string open;
  for (int i = 0; i < 300000; ++i)
    open += "<a b='";
  error_of(open);
  std::string unclosed;
  for (int i = 0; i < 300000; ++i)
    unclosed += "<a>";
  error_of(unclosed);
}

TEST(axsSafety, many_attributes_take_no_time_to_speak_of)
{
  std::string text = "<r";
  for (int i = 0; i < 50000; ++i)
    text += " a" + std::to_string(i) + "='1'";
  auto const root = load_root(text + "/>");
  EXPECT_EQ(root->getAttributes()->getLength(), 50000);
}
