#pragma once

#include <axsSchemaCompiler.h>
#include <axsSchemaComponents.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Schema documents in a folder of the test's own, which goes with it.
class SchemaFiles
{
public:
  SchemaFiles() : folder(std::filesystem::path("schema_files") / unique_name())
  {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  SchemaFiles(SchemaFiles const&) = delete;
  SchemaFiles& operator=(SchemaFiles const&) = delete;
  ~SchemaFiles()
  {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  apPath path(std::string const& name) const { return apPath((folder / name).u8string().c_str()); }

  /// Writes a file as it is given.
  void write(std::string const& name, std::string_view text) const
  {
    std::filesystem::create_directories((folder / name).parent_path());
    std::ofstream file(folder / name, std::ios::binary);
    file << text;
  }

  /// Writes a schema document: its children begin in line 2.
  void schema(std::string const& name, std::string const& children, std::string const& attributes = {}) const
  {
    write(name, "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'" +
                  (attributes.empty() ? "" : " " + attributes) + ">\n" + children + "\n</xs:schema>\n");
  }

  /// Compiles the documents together; null if anything is wrong, which errors() tells then.
  std::shared_ptr<axsSchemaComponents const> compile(std::vector<std::string> const& names)
  {
    axsSchemaCompiler compiler;
    for (std::string const& name : names)
      compiler.add(path(name));
    std::shared_ptr<axsSchemaComponents const> schema = compiler.compile();
    told.clear();
    for (axsSchemaErrors::Error const& error : compiler.errors())
    {
      std::string const file =
        error.place.file == 0 ? std::string()
                              : std::filesystem::u8path(compiler.files()[error.place.file - 1]).filename().u8string();
      told.push_back(file + ':' + std::to_string(error.place.line) + ": " + error.message);
    }
    EXPECT_EQ(schema == nullptr, !told.empty());
    return schema;
  }

  /// "file:line: message" each.
  std::vector<std::string> const& errors() const noexcept { return told; }

  std::string first_error() const { return told.empty() ? std::string() : told.front(); }

private:
  static std::string unique_name()
  {
    testing::TestInfo const& test = *testing::UnitTest::GetInstance()->current_test_info();
    return std::string(test.test_suite_name()) + '.' + test.name();
  }

  std::filesystem::path folder;
  std::vector<std::string> told;
};

/// The first error of a schema document that has these children; empty if there is none.
inline std::string error_of_schema(std::string const& children, std::string const& attributes = {})
{
  SchemaFiles files;
  files.schema("s.xsd", children, attributes);
  files.compile({"s.xsd"});
  return files.first_error();
}

/// A rule with a schema document that keeps to it and one that breaks it, and what is told of that one.
struct SchemaRule
{
  char const* rule;
  char const* good;
  char const* wrong;
  char const* message;
};

inline void expect_rules(std::vector<SchemaRule> const& rules, std::string const& attributes = {})
{
  for (SchemaRule const& rule : rules)
  {
    EXPECT_EQ(error_of_schema(rule.good, attributes), "") << rule.rule << ' ' << rule.good;
    EXPECT_EQ(error_of_schema(rule.wrong, attributes), std::string("s.xsd:") + rule.message)
      << rule.rule << ' ' << rule.wrong;
  }
}
