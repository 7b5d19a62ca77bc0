#pragma once

#include "VerbOptions.h"

#include <string>
#include <vector>

/// The options that several verbs have, with one name and one text each. What they write to must live as long as the verb.
namespace CommonOptions
{
/// FILE...: at least one.
VerbOption add_files(VerbOptions& verb, std::vector<std::string>& files);

/// -j, --jobs N: see FileJobs.
VerbOption add_jobs(VerbOptions& verb, unsigned& jobs);

/// --ns P=URI, any number of times; see Namespaces.h.
VerbOption add_namespaces(VerbOptions& verb, std::vector<std::string>& spaces);

/// --output FILE; empty where it is not given.
VerbOption add_output(VerbOptions& verb, std::string& output);

/// --color WHEN; see Colours. `when` is "auto" to begin with.
VerbOption add_colour(VerbOptions& verb, std::string& when);
}
