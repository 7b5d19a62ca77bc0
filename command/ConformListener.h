#pragma once

#include <utUnitTestConsole.h>
#include <utUnitTestListener.h>

#include <string>

/// Writes to standard output what utUnitTestConsole writes and, where standard error is a terminal, the group under way in
/// one line there that is written again and again and cleared at the end.
class ConformListener : public utUnitTestListener
{
public:
  ConformListener();

  void reported(utUnitTestReport const& report) override;
  void printed(char const* text) override;
  void finished() override;

private:
  void show(std::string const& line);

  bool const terminal;
  utUnitTestConsole console;
  std::string shown;
  long checks = 0;
};
