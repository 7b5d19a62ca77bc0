#include "CommonOptions.h"

#include "Namespaces.h"
#include "OutputFile.h"

#include <CLI/CLI.hpp>

CLI::Option* CommonOptions::add_files(CLI::App& verb, std::vector<std::string>& files)
{
  return verb.add_option("FILE", files, "The documents; - is standard input, and .gz, .xz and .zst are decompressed")
    ->type_name("FILE")
    ->required();
}

CLI::Option* CommonOptions::add_jobs(CLI::App& verb, unsigned& jobs)
{
  return verb
    .add_option("-j,--jobs", jobs, "How many files to work on at a time (1 without it), 0 for as many as processors")
    ->type_name("N")
    ->check(CLI::Range(0, 1024));
}

CLI::Option* CommonOptions::add_namespaces(CLI::App& verb, std::vector<std::string>& spaces)
{
  return verb
    .add_option("--ns", spaces, "A prefix for a namespace, for documents with a default one, too; may be given again")
    ->type_name("P=URI")
    ->check(wrong_namespace)
    ->allow_extra_args(false);
}

CLI::Option* CommonOptions::add_output(CLI::App& verb, std::string& output)
{
  return verb.add_option("--output", output, "The file to write, whole or not at all; standard output without it")
    ->type_name("FILE")
    ->check(OutputFile::wrong_name);
}

CLI::Option* CommonOptions::add_colour(CLI::App& verb, std::string& when)
{
  return verb
    .add_option(
      "--color", when, "Whether to write in colours: auto (the default) does on a terminal, unless NO_COLOR is set")
    ->check(CLI::IsMember({"auto", "always", "never"}));
}
