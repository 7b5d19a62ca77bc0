#include "CommonOptions.h"

#include "Namespaces.h"
#include "OutputFile.h"

VerbOption CommonOptions::add_files(VerbOptions& verb, std::vector<std::string>& files)
{
  return verb.add("FILE", files, "The documents; - is standard input, and .gz, .xz and .zst are decompressed")
    .value_name("FILE")
    .required();
}

VerbOption CommonOptions::add_jobs(VerbOptions& verb, unsigned& jobs)
{
  return verb.add("-j,--jobs", jobs, "How many files to work on at a time (1 without it), 0 for as many as processors")
    .value_name("N")
    .in_range(0, 1024);
}

VerbOption CommonOptions::add_namespaces(VerbOptions& verb, std::vector<std::string>& spaces)
{
  return verb.add("--ns", spaces, "A prefix for a namespace, for documents with a default one, too; may be given again")
    .value_name("P=URI")
    .checked_by(wrong_namespace)
    .one_at_a_time();
}

VerbOption CommonOptions::add_output(VerbOptions& verb, std::string& output)
{
  return verb.add("--output", output, "The file to write, whole or not at all; standard output without it")
    .value_name("FILE")
    .checked_by(OutputFile::wrong_name);
}

VerbOption CommonOptions::add_colour(VerbOptions& verb, std::string& when)
{
  return verb
    .add("--color", when, "Whether to write in colours: auto (the default) does on a terminal, unless NO_COLOR is set")
    .one_of({"auto", "always", "never"});
}
