#include "Contender.h"

#include <axmSimpleXmlFactory.h>

namespace
{
// A task in the words of the reader.
struct Wanted
{
  explicit Wanted(Element const& element)
    : name(element.name.c_str()),
      field(element.field),
      has_text(element.has_text),
      is_single(element.is_single),
      children(element.children.begin(), element.children.end())
  {
    for (std::string const& attribute : element.attributes)
      attributes.emplace_back(attribute.c_str());
  }

  utString name;
  int field;
  std::vector<utString> attributes;
  bool has_text;
  bool is_single;
  std::vector<Wanted> children;
};

class Walk
{
public:
  Walk(axmAbstractXmlReader& walked, Digest& found) : reader(walked), digest(found) {}

  void read(Wanted const& element)
  {
    int field = element.field;
    for (utString const& name : element.attributes)
    {
      utString const value = reader.attribute(name, absent);
      if (value.has_storage())
        digest.add(field, value.view());
      ++field;
    }
    if (element.has_text)
      digest.add_text(field, reader.text_node().view());
    for (Wanted const& child : element.children)
      while (reader.down_to(child.name))
      {
        read(child);
        reader.up();
        if (child.is_single)
          break;
      }
  }

private:
  axmAbstractXmlReader& reader;
  Digest& digest;
  utString const absent;
};
}

bool extract_with_reader(std::string const& file, Task const& task, Digest& digest)
{
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
  Wanted const root(task.root);
  if (!reader->read_file() || !reader->down_to(root.name))
    return false;
  Walk(*reader, digest).read(root);
  return !reader->has_error_occurred();
}
