#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// A program that loads the document a.xml of a folder and saves it, changed, in its place, and the locale it does so in.
struct FaultSubject
{
  char const* name; // "Command" or "Library"
  char const* locale;

  /// The command that works on `file`.
  std::vector<std::string> command(std::string const& file) const;
};

void PrintTo(FaultSubject const& subject, std::ostream* out);

/// A test of such a program, with a folder of its own.
class FaultTest : public testing::TestWithParam<FaultSubject>
{
protected:
  FaultTest();
  ~FaultTest() override;

  void put(std::string const& name, std::string const& text) const;
  std::string at(std::string const& name) const;

  /// The names of what is in the folder, sorted.
  std::vector<std::string> entries() const;

  std::string path(std::string const& name) const { return (folder / name).string(); }

  std::filesystem::path const folder;

  /// Larger than what streams keep back, before and after the change.
  std::string const old_document;
  std::string const new_document;
};

/// All of them.
std::vector<FaultSubject> fault_subjects();
std::string name_of_subject(testing::TestParamInfo<FaultSubject> const& subject);
