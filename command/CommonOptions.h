#pragma once

#include <CLI/App.hpp>

#include <string>
#include <vector>

/// The options that several verbs have, with one name and one text each. What they write to must live as long as the verb.
namespace CommonOptions
{
/// FILE...: at least one.
CLI::Option* add_files(CLI::App& verb, std::vector<std::string>& files);

/// -j, --jobs N: see FileJobs.
CLI::Option* add_jobs(CLI::App& verb, unsigned& jobs);

/// --ns P=URI, any number of times; see Namespaces.h.
CLI::Option* add_namespaces(CLI::App& verb, std::vector<std::string>& spaces);

/// --output FILE; empty where it is not given.
CLI::Option* add_output(CLI::App& verb, std::string& output);

/// --color WHEN; see Colours. `when` is "auto" to begin with.
CLI::Option* add_colour(CLI::App& verb, std::string& when);
}
