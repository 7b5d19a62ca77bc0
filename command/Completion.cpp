#include "Completion.h"

#include "OptionRow.h"

#include <CLI/CLI.hpp>

#include <vector>

namespace
{
std::string words_of(std::vector<std::string> const& words)
{
  std::string text;
  for (std::string const& word : words)
    text += (text.empty() ? "" : " ") + word;
  return text;
}

// The option names and, after them, the choices of positional arguments.
std::string words_of(CLI::App const& verb)
{
  std::vector<std::string> words;
  for (OptionRow const& row : OptionRow::all_of(verb))
  {
    std::vector<std::string> const& all = row.is_positional ? row.choices : row.names;
    words.insert(words.end(), all.begin(), all.end());
  }
  return words_of(words);
}

std::string verb_names(CLI::App const& app)
{
  std::vector<std::string> names;
  for (CLI::App const* const verb : shown_verbs(app))
    names.push_back(verb->get_name());
  return words_of(names);
}

// The text with a backslash before each of the characters.
std::string with_backslashes(std::string const& text, char const* characters)
{
  std::string safe;
  for (char const c : text)
  {
    if (std::string(characters).find(c) != std::string::npos)
      safe += '\\';
    safe += c;
  }
  return safe;
}

// In single quotes of a shell of the family of sh.
std::string in_quotes(std::string const& text)
{
  std::string safe = "'";
  for (char const c : text)
    if (c == '\'')
      safe += "'\\''";
    else
      safe += c;
  return safe + "'";
}

std::string bash_values(OptionRow const& row)
{
  std::string names;
  for (std::string const& name : row.names)
    names += (names.empty() ? "" : "|") + name;
  if (row.choices.empty())
    return "        " + names + ") return ;;\n";
  return "        " + names + ") COMPREPLY=($(compgen -W \"" + words_of(row.choices) + "\" -- \"$cur\")); return ;;\n";
}

std::string zsh_action(OptionRow const& row)
{
  if (!row.choices.empty())
    return "(" + words_of(row.choices) + ")";
  if (row.takes_file_of_something())
    return R"({ compset -P "*="; _files })";
  return row.takes_file() ? "_files" : "";
}

std::string zsh_option(OptionRow const& row)
{
  std::string const action = zsh_action(row);
  std::string text;
  if (row.is_positional)
    return " \\\n        " + in_quotes("*:" + row.names.front() + ":" + (row.choices.empty() ? "_files" : action));
  for (std::string const& name : row.names)
  {
    std::string spec = "*" + name;
    if (!row.value.empty())
      spec += name.compare(0, 2, "--") == 0 ? "=" : "+";
    spec += "[" + with_backslashes(row.text, "[]:\\") + "]";
    if (!row.value.empty())
      spec += ":value:" + action;
    text += " \\\n        " + in_quotes(spec);
  }
  return text;
}

std::string fish_option(std::string const& condition, OptionRow const& row)
{
  std::string text = "complete -c axm" + condition;
  for (std::string const& name : row.names)
    text += name.compare(0, 2, "--") == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1);
  if (!row.choices.empty())
    text += " -x -a '" + words_of(row.choices) + "'";
  else if (!row.value.empty())
    text += row.takes_file() ? " -r -F" : " -x";
  return text + " -d '" + with_backslashes(row.text, "'\\") + "'\n";
}
}

std::string Completion::script(CLI::App const& app, std::string const& shell)
{
  return shell == "bash" ? bash(app) : shell == "zsh" ? zsh(app) : fish(app);
}

// Where nothing is found, names of files are completed.
std::string Completion::bash(CLI::App const& app)
{
  std::string text = R"(# Completion of the command axm for bash: source it, or put it where bash-completion looks.
_axm()
{
  local cur="${COMP_WORDS[COMP_CWORD]}" prev="${COMP_WORDS[COMP_CWORD-1]}" verb="" words="" i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; ++i)); do
    if [[ "${COMP_WORDS[i]}" != -* ]]; then
      verb="${COMP_WORDS[i]}"
      break
    fi
  done
  case "$verb" in
)";
  text += "    '') words=\"" + verb_names(app) + " " + words_of(app) + "\" ;;\n";
  for (CLI::App const* const verb : shown_verbs(app))
  {
    text += "    " + verb->get_name() + ")\n      case \"$prev\" in\n";
    for (OptionRow const& row : OptionRow::all_of(*verb))
      if (!row.is_positional && !row.value.empty())
        text += bash_values(row);
    text += "      esac\n      words=\"" + words_of(*verb) + "\" ;;\n";
  }
  return text + R"(  esac
  COMPREPLY=($(compgen -W "$words" -- "$cur"))
  # Without a letter of a name to go by, files are what is wanted.
  [[ -z "$cur" && -n "$verb" ]] && COMPREPLY=($(compgen -f -- "$cur"))
  return 0
}
complete -o default -F _axm axm
)";
}

std::string Completion::zsh(CLI::App const& app)
{
  std::string text = R"(#compdef axm
# Completion of the command axm for zsh: a file named _axm in a folder of fpath, or source it after compinit.
_axm()
{
  local -a verbs
  verbs=(
)";
  for (CLI::App const* const verb : shown_verbs(app))
    text += "    " + in_quotes(verb->get_name() + ":" + with_backslashes(verb->get_description(), ":\\")) + "\n";
  text += R"(  )
  # As in "axm --man select", options may stand before the verb.
  local i=2
  while (( i < CURRENT )) && [[ "$words[i]" == -* ]]; do
    (( ++i ))
  done
  if (( i == CURRENT )); then
    _describe -t verbs verb verbs
    _arguments)";
  for (OptionRow const& row : OptionRow::all_of(app))
    text += zsh_option(row);
  text += R"(
    return
  fi
  local verb="$words[i]"
  shift $(( i - 1 )) words
  (( CURRENT -= i - 1 ))
  case "$verb" in
)";
  for (CLI::App const* const verb : shown_verbs(app))
  {
    text += "    " + verb->get_name() + ")\n      _arguments -s";
    bool has_rest = false;
    for (OptionRow const& row : OptionRow::all_of(*verb))
    {
      // There is one rule for all that are no options.
      if (!row.is_positional || !has_rest)
        text += zsh_option(row);
      has_rest = has_rest || row.is_positional;
    }
    text += " ;;\n";
  }
  return text + R"(  esac
}
if [[ "${funcstack[1]}" == _axm ]]; then
  _axm "$@"
else
  compdef _axm axm
fi
)";
}

std::string Completion::fish(CLI::App const& app)
{
  std::string text =
    "# Completion of the command axm for fish: a file named axm.fish in a folder of fish_complete_path.\n";
  for (CLI::App const* const verb : shown_verbs(app))
    text += "complete -c axm -f -n __fish_use_subcommand -a " + verb->get_name() + " -d '" +
            with_backslashes(verb->get_description(), "'\\") + "'\n";
  for (OptionRow const& row : OptionRow::all_of(app))
    text += fish_option(" -n __fish_use_subcommand", row);
  for (CLI::App const* const verb : shown_verbs(app))
    for (OptionRow const& row : OptionRow::all_of(*verb))
    {
      std::string const condition = " -n '__fish_seen_subcommand_from " + verb->get_name() + "'";
      if (!row.is_positional)
        text += fish_option(condition, row);
      else if (!row.choices.empty())
        text += "complete -c axm" + condition + " -f -a '" + words_of(row.choices) + "'\n";
    }
  return text;
}
