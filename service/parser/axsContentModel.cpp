#include "axsContentModel.h"

#include "axsDeclarationReader.h"
#include "axsMessages.h"

#include <vector>

namespace
{
class Reading
{
public:
  explicit Reading(axsDeclarationReader& given) : reader(given) {}

  std::string read();

private:
  void read_mixed();
  void read_children();
  void read_occurrence();
  bool take(char c);
  bool end_groups();
  void read_separator();

  axsDeclarationReader& reader;
  std::string model;
  // What separates the parts of each open group; zero as long as it has one only.
  std::vector<char> separators;
};

bool Reading::take(char c)
{
  if (!reader.is_at(c))
    return false;
  model += c;
  return reader.take({&c, 1});
}

void Reading::read_occurrence()
{
  if (!take('?') && !take('*'))
    take('+');
}

std::string Reading::read()
{
  for (char const* const word : {"EMPTY", "ANY"})
    if (reader.take(word))
      return word;
  if (!take('('))
    reader.unexpected(axsMessages::content_expected);
  reader.spaces();
  if (reader.take("#PCDATA"))
    read_mixed();
  else
    read_children();
  return std::move(model);
}

// After "(#PCDATA" ([51] Mixed)
void Reading::read_mixed()
{
  model += "#PCDATA";
  bool has_names = false;
  while (true)
  {
    reader.spaces();
    if (take(')'))
    {
      if (!take('*') && has_names)
        reader.unexpected(axsMessages::mixed_end);
      return;
    }
    if (!take('|'))
      reader.unexpected(axsMessages::mixed_end);
    reader.spaces();
    model += reader.qualified_name(axsMessages::content_name);
    has_names = true;
  }
}

// After the first "(" ([47] children to [50] seq)
void Reading::read_children()
{
  separators.push_back(0);
  while (true)
  {
    reader.spaces();
    if (take('('))
    {
      separators.push_back(0);
      continue;
    }
    model += reader.qualified_name(axsMessages::content_name);
    read_occurrence();
    if (end_groups())
      return;
    read_separator();
  }
}

// Whether the outermost one ended.
bool Reading::end_groups()
{
  reader.spaces();
  while (take(')'))
  {
    read_occurrence();
    separators.pop_back();
    if (separators.empty())
      return true;
    reader.spaces();
  }
  return false;
}

void Reading::read_separator()
{
  char const found = reader.is_at(',') ? ',' : '|';
  if (!reader.is_at(found))
    reader.unexpected(axsMessages::content_separator);
  char& separator = separators.back();
  if (separator != 0 && separator != found)
    reader.unexpected(axsMessages::content_mixture);
  separator = found;
  take(found);
}
}

std::string axsContentModel::read(axsDeclarationReader& reader)
{
  return Reading(reader).read();
}
