#include "RowContender.h"

#include <axsRecordReader.h>
#include <axsXmlFactory.h>

#include <optional>

bool rows_with_record_reader(RowTask const& task, RowDigest& digest)
{
  axsRecordReader::Request request;
  request.path = task.path_text;
  request.columns = task.columns;
  axmParseError error;
  return axsRecordReader(request).read(apPath(task.file.c_str()), axmLoadOptions(), error,
    [&](axsRecordReader::Row const& row)
    {
      digest.begin_row();
      for (std::size_t i = 0; i < row.size(); ++i)
        digest.add(i, row[i]);
      return true;
    });
}

namespace
{
// A task in the words of the reader.
struct Element
{
  explicit Element(RowTask::Wanted const& wanted)
    : name(wanted.name.c_str()),
      texts(wanted.texts),
      children(wanted.children.begin(), wanted.children.end())
  {
    for (RowTask::Wanted::Attribute const& attribute : wanted.attributes)
      attributes.emplace_back(utString(attribute.name.c_str()), attribute.column);
  }

  utString name;
  std::vector<std::pair<utString, std::size_t>> attributes;
  std::vector<std::size_t> texts;
  std::vector<Element> children;
};

class Walk
{
public:
  Walk(RowTask const& task, axmAbstractXmlReader& walked, RowDigest& found)
    : reader(walked),
      digest(found),
      record(task.record),
      values(task.columns.size())
  {
    for (std::string const& name : task.path)
      path.emplace_back(name.c_str());
  }

  void read(std::size_t level)
  {
    while (reader.down_to(path[level]))
    {
      if (level + 1 < path.size())
        read(level + 1);
      else
        read_record();
      reader.up();
    }
  }

private:
  void read_record()
  {
    for (std::optional<utString>& value : values)
      value.reset();
    read_element(record);
    digest.begin_row();
    for (std::size_t i = 0; i < values.size(); ++i)
      digest.add(i, values[i] ? std::optional<std::string_view>(values[i]->view()) : std::nullopt);
  }

  // Of a child, the first of its name.
  void read_element(Element const& element)
  {
    for (auto const& [name, column] : element.attributes)
      if (utString const value = reader.attribute(name, absent); value.has_storage())
        values[column] = value;
    for (std::size_t const column : element.texts)
      values[column] = reader.text_node();
    for (Element const& child : element.children)
    {
      // What stands before the child of before is not found by a search that goes on.
      bool const is_found = reader.down_to(child.name) || reader.down_to(child.name);
      if (!is_found)
        continue;
      read_element(child);
      reader.up();
    }
  }

  axmAbstractXmlReader& reader;
  RowDigest& digest;
  Element record;
  std::vector<utString> path;
  std::vector<std::optional<utString>> values;
  utString const absent;
};
}

bool rows_with_xml_reader(RowTask const& task, RowDigest& digest)
{
  auto const reader = axsXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(task.file.c_str()));
  if (!reader->read_file())
    return false;
  Walk(task, *reader, digest).read(0);
  return !reader->has_error_occurred();
}
