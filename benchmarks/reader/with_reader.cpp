#include "Task.h"

#include <axmSimpleXmlFactory.h>

namespace
{
std::string_view view(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}

std::vector<utString> strings(std::vector<std::string> const& names)
{
  std::vector<utString> made;
  for (std::string const& name : names)
    made.emplace_back(name.c_str());
  return made;
}

class Walk
{
public:
  Walk(axmAbstractXmlReader& walked, Task const& task, Digest& found)
    : reader(walked),
      path(strings(task.path)),
      attributes(strings(task.attributes)),
      children(strings(task.children)),
      digest(found)
  {
  }

  void visit(std::size_t depth)
  {
    if (depth == path.size())
      return read_record();
    for (; reader.down_to(path[depth]); reader.up())
      visit(depth + 1);
  }

private:
  void read_record()
  {
    for (utString const& name : attributes)
      digest.add(view(reader.attribute(name, none)));
    for (utString const& name : children)
      if (reader.down_to(name) || reader.down_to(name)) // one that failed goes back to the first child
      {
        digest.add(view(reader.text_node()));
        reader.up();
      }
  }

  axmAbstractXmlReader& reader;
  std::vector<utString> const path;
  std::vector<utString> const attributes;
  std::vector<utString> const children;
  Digest& digest;
  utString const none;
};
}

bool extract_with_reader(std::string const& file, Task const& task, Digest& digest)
{
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
  if (!reader->read_file() || !reader->down_to(task.path.front().c_str()))
    return false;
  Walk(*reader, task, digest).visit(1);
  return !reader->has_error_occurred();
}
