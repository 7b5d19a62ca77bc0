#include "ManualPage.h"

#include "OptionRow.h"

#include <CLI/CLI.hpp>

#include <cctype>
#include <sstream>

namespace
{
// A text of one line as it is to be shown: no character of it is a request.
std::string escaped(std::string const& text)
{
  std::string safe;
  for (char const c : text)
    if (c == '\\')
      safe += "\\e";
    else if (c == '-' || c == '`' || c == '\'' || c == '^' || c == '~')
      safe += c == '-' ? "\\-" : c == '`' ? "\\(ga" : c == '\'' ? "\\(aq" : c == '^' ? "\\(ha" : "\\(ti";
    else
      safe += c;
  return !safe.empty() && safe[0] == '.' ? "\\&" + safe : safe;
}

std::string upper(std::string text)
{
  for (char& c : text)
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

std::string head(std::string const& name, std::string description)
{
  while (!description.empty() && description.back() == '.')
    description.pop_back();
  return ".TH " + upper(name) + " 1 \"" AXM_DATE "\" \"axm " AXM_VERSION "\" \"User Commands\"\n.SH NAME\n" + name +
         " \\- " + escaped(description) + "\n";
}

std::string option(OptionRow const& row)
{
  std::string names;
  for (std::string const& name : row.names)
    names += (names.empty() ? "\\fB" : ", \\fB") + escaped(name) + "\\fR";
  if (!row.value.empty() && !row.is_positional)
    names += " \\fI" + escaped(row.value) + "\\fR";
  std::string text;
  for (std::string const& line : wrapped(row.text, 80))
    text += escaped(line) + "\n";
  return ".TP\n" + names + "\n" + text;
}

std::string options(CLI::App const& verb)
{
  std::string text;
  for (bool const is_positional : {true, false})
    for (OptionRow const& row : OptionRow::all_of(verb))
      if (row.is_positional == is_positional)
        text += option(row);
  return ".SH OPTIONS\n" + text;
}

enum class Section
{
  none,
  notes,
  examples,
  exit_status
};

// What stands before a line that is not indented. After the examples, it is about the verb again.
std::string begin_paragraph(std::string const& line, bool is_after_empty, Section& section)
{
  if (line.compare(0, 13, "The exit code") == 0)
  {
    section = Section::exit_status;
    return ".SH EXIT STATUS\n";
  }
  if (section == Section::none || section == Section::examples)
  {
    section = Section::notes;
    return ".SH NOTES\n";
  }
  return is_after_empty ? ".PP\n" : "";
}

// The paragraphs after the options: what is indented is shown line by line, examples and exit codes have sections of
// their own.
std::string paragraphs(std::string const& footer)
{
  std::string text;
  Section section = Section::none;
  std::istringstream lines(footer);
  bool is_verbatim = false;
  bool is_after_empty = false;
  for (std::string line; std::getline(lines, line);)
  {
    bool const is_indented = line.compare(0, 2, "  ") == 0;
    if (is_verbatim && !is_indented)
      text += ".fi\n";
    if (line.empty())
    {
      is_verbatim = false;
      is_after_empty = true;
      continue;
    }
    if (line == "Examples:")
    {
      text += ".SH EXAMPLES\n";
      section = Section::examples;
    }
    else
    {
      if (!is_indented)
        text += begin_paragraph(line, is_after_empty, section);
      if (is_indented && !is_verbatim)
        text += ".nf\n";
      text += escaped(line) + "\n";
    }
    is_verbatim = is_indented;
    is_after_empty = false;
  }
  return text + (is_verbatim ? ".fi\n" : "");
}
}

std::string ManualPage::of_program(CLI::App const& app)
{
  std::string text = head("axm", app.get_description()) + ".SH SYNOPSIS\n.B axm\n[\\fIOPTIONS\\fR] \\fIVERB\\fR ...\n";
  text += ".SH VERBS\n";
  for (CLI::App const* const verb : shown_verbs(app))
    text += ".TP\n\\fBaxm\\-" + escaped(verb->get_name()) + "\\fR(1)\n" + escaped(verb->get_description()) + "\n";
  return text + options(app) + ".SH NOTES\n" + escaped(app.get_footer()) + "\n";
}

std::string ManualPage::of_verb(CLI::App const& verb)
{
  std::string text = head("axm-" + verb.get_name(), verb.get_description());
  text += ".SH SYNOPSIS\n.B axm " + escaped(verb.get_name()) + "\n[\\fIOPTIONS\\fR]";
  for (OptionRow const& row : OptionRow::all_of(verb))
    if (row.is_positional)
      text += " \\fI" + escaped(row.in_usage()) + "\\fR";
  text += "\n.SH DESCRIPTION\n" + escaped(verb.get_description()) + "\n" + options(verb);
  return text + paragraphs(verb.get_footer()) + ".SH SEE ALSO\n.BR axm (1)\n";
}
