#pragma once

#include "JobOutput.h"
#include "Verb.h"
#include "VerbOptions.h"

#include <axsEditor.h>

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// What the verbs that edit documents have in common: which documents, where they are written to, and what is said when
/// it cannot be done. Several documents may be edited at a time.
class EditVerb
{
public:
  /// Makes one edit with the editor, which returns how many nodes it is about.
  using Edit = std::function<std::size_t(axsEditor& editor)>;

  /// The arguments of the verb that have no option's name: the documents, and after them what else the verb takes.
  std::vector<std::string> arguments;

  /// Adds the options to the verb; this object must live as long. `after_files` names what follows the documents.
  void add_to(VerbOptions& verb, std::vector<std::pair<std::string, std::string>> const& after_files);

  /// Takes the last of the arguments; empty if that would leave no document.
  std::string take_last();

  /// Edits all documents; the exit code. `about` is what messages name first.
  int run(std::string const& about, Edit const& edit);

  /// --before, --after, --into and --into-first, each with an expression; see axsEditPlace.
  struct Target
  {
    axsEditPlace place = axsEditPlace::after;
    std::string xpath;
  };
  void add_targets(VerbOptions& verb);

  /// The one of them that was given; of none or several, with an empty expression.
  Target target() const;

private:
  std::string complaint() const;
  int edit_one(std::string const& file, Edit const& edit, JobOutput& output);
  int tell(std::string const& file, axsEditor const& editor);
  bool is_in_place(std::string const& file) const { return output_name.empty() && file != "-"; }

  std::string subject;
  std::string output_name;
  std::vector<std::string> spaces;
  axsXPathPrefixes prefixes;
  bool in_place = false;
  unsigned jobs = 1;
  std::string targets[4];
  std::atomic<bool> has_told{false};
};
