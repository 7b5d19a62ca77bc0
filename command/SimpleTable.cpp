#include "SimpleTable.h"

#include "Columns.h"

#include <axmSimpleXmlFactory.h>

#include <memory>
#include <sstream>
#include <vector>

namespace
{
// What the reader has to say, in one line.
std::string errors_of(axmAbstractXmlReader const& reader)
{
  std::ostringstream out;
  reader.dump_error(out);
  std::string text = out.str();
  while (!text.empty() && text.back() == '\n')
    text.pop_back();
  // For most characters that a document must have, the reader's own text is empty.
  return text.empty() ? "a character that must be there is missing" : text;
}

std::string why_not_read(axmAbstractXmlReader& reader)
{
  if (reader.has_error_occurred())
    return "no XML declaration with a version stands at the very beginning, byte-order mark included (" +
           errors_of(reader) + ")";
  if (reader.encoding().case_compare(ut_lit("utf-16")) == 0)
    return "is in UTF-16, which this reader does not read";
  return "cannot be read";
}

// The walk over the records of one document.
class Rows
{
public:
  Rows(axmAbstractXmlReader& walked, TableRequest const& request, TableOutput& written)
    : reader(walked),
      columns(request.columns),
      output(written)
  {
    for (std::string const& name : split_path(request.path))
      path.emplace_back(name.c_str());
  }

  void write()
  {
    // The outermost element is entered once: left, it would be found again.
    if (reader.down_to(path.front()))
      visit(1);
  }

private:
  // In an element `depth` names down the path; the depth is that of the path, not that of the document.
  void visit(std::size_t depth)
  {
    if (depth == path.size())
      return write_record();
    for (; reader.down_to(path[depth]) && output.good(); reader.up())
      visit(depth + 1);
  }

  void write_record()
  {
    Columns::Values const texts = columns.read(reader);
    if (reader.has_error_occurred())
      return;
    values.clear();
    for (auto const& text : texts)
      values.push_back(text ? Value(text->view()) : Value());
    output.write(values);
  }

  axmAbstractXmlReader& reader;
  std::vector<utString> path;
  Columns const columns;
  TableOutput& output;
  std::vector<Value> values;
};
}

std::string SimpleTable::complaint(TableRequest const& request)
{
  if (request.path[0] == '/')
    return "the path '" + request.path + "' begins with '/'; the names from the root to the record stand without one";
  if (split_path(request.path).empty())
    return "the path '" + request.path + "' has an empty name in it";
  return Columns::complaint(request.columns);
}

std::string SimpleTable::write(std::string const& file, TableRequest const& request, TableOutput& output)
{
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
  if (!reader->read_file())
    return why_not_read(*reader);
  Rows(*reader, request, output).write();
  if (!reader->has_error_occurred())
    return {};
  return errors_of(*reader) + "; rows read before that: " + std::to_string(output.rows());
}
