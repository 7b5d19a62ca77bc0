#include "Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace
{
// Those that everyone has.
std::string const verbs[] = {"canon", "check", "delete", "outline", "diff", "format", "convert", "insert", "move",
  "rename", "select", "set", "split", "table", "conform", "completion"};

bool contains(std::string const& text, std::string const& part)
{
  return text.find(part) != std::string::npos;
}

std::size_t longest_line(std::string const& text)
{
  std::size_t longest = 0;
  for (std::size_t begin = 0; begin < text.size();)
  {
    std::size_t const end = std::min(text.find('\n', begin), text.size());
    longest = std::max(longest, end - begin);
    begin = end + 1;
  }
  return longest;
}
}

TEST(axm_program, says_its_version_first_and_then_how_it_was_built)
{
  std::string const text = run_axm("version", {"--version"}).out;
  EXPECT_EQ(text.find("axm "), 0u);
  for (char const* const part : {"\ncompiler: ", "\nsystem: ", "\nengine: ", "\nlibraries: CLI11 "})
    EXPECT_TRUE(contains(text, part)) << text;
}

TEST(axm_program, explains_each_verb_in_lines_of_at_most_100_columns)
{
  std::string const help = run_axm("help", {"--help"}).out;
  EXPECT_LE(longest_line(help), 100u);
  EXPECT_FALSE(contains(help, "conform-worker"));
  for (std::string const& verb : verbs)
  {
    EXPECT_TRUE(contains(help, "\n  " + verb + " ")) << verb;
    std::string const text = run_axm("help", {verb, "--help"}).out;
    EXPECT_LE(longest_line(text), 100u) << text;
    EXPECT_TRUE(contains(text, "\nUsage: axm " + verb + " [OPTIONS]")) << text;
    EXPECT_TRUE(contains(text, "\nExamples:\n  ")) << text;
  }
}

TEST(axm_program, knows_no_page_of_what_is_no_verb)
{
  EXPECT_EQ(run_axm("page", {"--man", "none"}).exit_code, 2);
  EXPECT_TRUE(contains(run_axm("page", {"--man", "axm"}).out, "\\fBaxm\\-select\\fR(1)\n"));
}

TEST(axm_program, has_a_page_for_each_verb_with_its_options_and_examples)
{
  for (std::string const& verb : verbs)
  {
    ProgramRun const run = run_axm("page", {"--man", verb});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out.find(".TH AXM"), 0u);
    EXPECT_TRUE(contains(run.out, "\n.SH EXAMPLES\n.nf\n")) << run.out;
    EXPECT_TRUE(contains(run.out, "\\-\\-help\\fR")) << run.out;
  }
  EXPECT_TRUE(contains(run_axm("page", {"--man", "table"}).out, "\\fB\\-\\-format\\fR \\fIcsv|tsv|jsonl\\fR\n"));
}

TEST(axm_check, takes_several_files_at_a_time_and_says_what_is_wrong_in_their_order)
{
  std::vector<std::string> arguments = {"check", "--jobs", "4"};
  std::string expected;
  std::vector<std::unique_ptr<TemporaryFile>> files;
  for (int i = 0; i < 40; ++i)
  {
    std::string const name = "jobs_" + std::to_string(i) + ".xml";
    bool const is_bad = i % 3 == 0;
    // The first ones take the longest.
    std::string const filler(static_cast<std::size_t>(40 - i) * 5000, ' ');
    files.push_back(std::make_unique<TemporaryFile>(name, "<a>" + filler + (is_bad ? "</b>" : "</a>")));
    arguments.push_back(name);
    if (is_bad)
      expected += name + "\n";
  }
  ProgramRun const run = run_axm("jobs", arguments);
  EXPECT_EQ(run.exit_code, 1);
  std::string named;
  for (std::size_t at = run.err.find("jobs_"); at != std::string::npos; at = run.err.find("\njobs_", at))
  {
    at += run.err[at] == '\n' ? 1 : 0;
    named += run.err.substr(at, run.err.find(':', at) - at) + "\n";
  }
  EXPECT_EQ(named, expected);
}

#if !defined(_WIN32)
namespace
{
bool is_installed(std::string const& program)
{
  return std::system(("command -v " + program + " > /dev/null 2>&1").c_str()) == 0;
}

// What a command of the shell writes, errors as well.
std::string output_of(std::string const& command)
{
  TemporaryFile const out("command.out", "");
  std::system(("{ " + command + "; } > command.out 2>&1").c_str());
  return contents_of(out.name);
}
}

TEST(axm_program, reads_what_is_compressed_and_standard_input)
{
  TemporaryFile const file("piped.xml", "<a><b>1</b></a>");
  std::string const select = std::string("\"") + AXM_PROGRAM + "\" select ";
  EXPECT_EQ(output_of(select + "- //b < piped.xml"), "1\n");
  EXPECT_EQ(output_of("gzip -c piped.xml > piped.xml.gz; " + select + "piped.xml.gz //b; rm piped.xml.gz"), "1\n");
  TemporaryFile const bad("piped_bad.xml", "<a>\n</b>");
  EXPECT_EQ(output_of(select + "- //b < piped_bad.xml").find("standard input:2:"), 0u);
}

TEST(axm_program, has_pages_of_which_formatters_do_not_complain)
{
  for (std::string const& verb : verbs)
  {
    TemporaryFile const page("page.1", run_axm("page", {"--man", verb}).out);
    for (std::string const command : {"mandoc -T lint -W warning", "groff -man -ww -Tutf8 -z"})
    {
      bool const can_be_run = is_installed(command.substr(0, command.find(' ')));
      EXPECT_EQ(can_be_run ? output_of(command + " page.1") : "", "") << verb;
    }
  }
}

TEST(axm_completion, completes_verbs_options_and_values_in_bash)
{
  TemporaryFile const script("axm.bash", run_axm("completion", {"completion", "bash"}).out);
  auto const complete = [](std::string const& words, int at)
  {
    TemporaryFile const program("complete.sh", "source ./axm.bash\nCOMP_WORDS=(" + words + ")\nCOMP_CWORD=" +
                                                 std::to_string(at) + "\n_axm\necho \"${COMPREPLY[@]}\"\n");
    return output_of("bash complete.sh");
  };
  EXPECT_EQ(complete("axm ch", 1), "check\n");
  EXPECT_EQ(complete("axm table --form", 2), "--format\n");
  EXPECT_EQ(complete("axm table a.xml --format ''", 4), "csv tsv jsonl\n");
  EXPECT_EQ(complete("axm completion z", 2), "zsh\n");
  // A file is left to the shell.
  EXPECT_EQ(complete("axm check --schema ''", 3), "\n");
}

TEST(axm_completion, completes_verbs_options_and_values_in_fish)
{
  std::string const text = run_axm("completion", {"completion", "fish"}).out;
  EXPECT_TRUE(contains(text, "complete -c axm -n '__fish_seen_subcommand_from table' -l format -x -a 'csv tsv jsonl'"));
  if (!is_installed("fish"))
    return;
  TemporaryFile const script("axm.fish", text);
  auto const complete = [](std::string const& line)
  {
    TemporaryFile const program("complete.fish", "source axm.fish\ncomplete -C '" + line + "'\n");
    return output_of("HOME=$PWD fish --no-config complete.fish");
  };
  EXPECT_EQ(complete("axm chec").find("check\t"), 0u) << complete("axm chec");
  EXPECT_EQ(complete("axm table --form").find("--format\t"), 0u);
  EXPECT_TRUE(contains(complete("axm table --format "), "jsonl\t"));
}

TEST(axm_completion, gives_the_functions_of_zsh_verbs_options_and_values)
{
  std::string const text = run_axm("completion", {"completion", "zsh"}).out;
  EXPECT_EQ(text.find("#compdef axm\n"), 0u);
  if (!is_installed("zsh"))
    return;
  TemporaryFile const script("_axm.zsh", text);
  auto const complete = [](std::string const& words, int at)
  {
    TemporaryFile const program("complete.zsh", "compdef() {}\n_describe() { print -rl -- \"$verbs[@]\" "
                                                "}\n_arguments() { print -rl -- \"$@\" }\nsource ./_axm.zsh\n"
                                                "words=(" +
                                                  words + ")\nCURRENT=" + std::to_string(at) + "\n_axm\n");
    return output_of("zsh -f complete.zsh");
  };
  EXPECT_TRUE(contains(complete("axm ''", 2), "\ncompletion:Write a script")) << complete("axm ''", 2);
  EXPECT_TRUE(contains(complete("axm --man sel", 3), "\nselect:Write")) << complete("axm --man sel", 3);
  EXPECT_TRUE(contains(complete("axm table ''", 3), ":value:(csv tsv jsonl)\n"));
  EXPECT_TRUE(contains(complete("axm --help table ''", 4), ":value:(csv tsv jsonl)\n"));
  EXPECT_TRUE(contains(complete("axm check ''", 3), ":value:{ compset -P \"*=\"; _files }\n"));
  EXPECT_TRUE(contains(complete("axm check ''", 3), "*--no-namespace-schema=["));
}

// In an interactive shell: the lines as they stand after the tabulator.
TEST(axm_completion, completes_lines_as_they_are_typed_in_zsh)
{
  if (!is_installed("zsh"))
    return;
  TemporaryFile const script("_axm", run_axm("completion", {"completion", "zsh"}).out);
  TemporaryFile const schema("other.xsd", "");
  std::string program = R"sh(
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell 'PS1= RPS1=; fpath=($PWD $fpath); autoload -Uz compinit; compinit -D -u'
zpty -w shell 'show() { print -r -- "<$BUFFER>"; BUFFER= }; zle -N show; bindkey "^X" show; print R""EADY'
zpty -r -m shell said '*READY*'
)sh";
  for (char const* const line :
    {"axm ch", "axm --man sel", "axm check --schemas", "axm check --schema urn:x=oth", "axm table --format j"})
    program += "zpty -w -n shell $'" + std::string(line) +
               "\\t\\x18'\nzpty -r -m shell said '*<*>*'\nprint -r -- \"${${said##*<}%%>*}|\"\n";
  TemporaryFile const typing("type.zsh", program);
  EXPECT_EQ(output_of("TERM=vt100 zsh -f type.zsh"),
    "axm check |\naxm --man select |\naxm check --schemas-only |\naxm check --schema urn:x=other.xsd |\n"
    "axm table --format jsonl |\n");
}
#endif
