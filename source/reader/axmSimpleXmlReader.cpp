#include "axmSimpleXmlReader.h"

#include "axmElementWalk.h"
#include "axmException.h"

#include <apMemory.h>

#include <climits>
#include <new>
#include <ostream>
#include <vector>

axmSimpleXmlReader::axmSimpleXmlReader(apITarnFilecoPrf const& given)
  : encoding_name(axmAbstractXmlReader::encoding()),
    file(given)
{
}

axmSimpleXmlReader::~axmSimpleXmlReader() = default;

bool axmSimpleXmlReader::read_file()
{
  int const size = file_size();
  if (size < 0)
    return false;
  auto const entered = walk == nullptr ? std::vector<axmElementWalk::Entered>() : walk->entered();
  if (!read_bytes(size) || !read_declaration())
    return false;
  for (axmElementWalk::Entered const& element : entered)
  {
    add_cursor(positions.count());
    walk->enter_again(element);
  }
  return true;
}

utString axmSimpleXmlReader::encoding()
{
  return encoding_name;
}

void axmSimpleXmlReader::up()
{
  if (error_flag)
    return;
  if (positions.count() == 0)
    return error_has_occurred(ut_lit("Incorrect xml nesting"));
  try
  {
    walk->up();
  }
  catch (axmException const& error)
  {
    error_has_occurred(error.explanation());
  }
}

bool axmSimpleXmlReader::down_to(utString const& name)
{
  if (error_flag)
    return false;
  if (!initial_position)
  {
    error_has_occurred(ut_lit("No xml file has been read"));
    return false;
  }
  try
  {
    if (!walk->has_cursor())
      add_cursor(positions.count());
    return walk->down_to(name);
  }
  catch (axmException const& error)
  {
    error_has_occurred(error.explanation());
    return false;
  }
}

utString axmSimpleXmlReader::attribute(utString const& name, utString const& default_value)
{
  if (!is_inside())
    return default_value;
  try
  {
    return walk->attribute(name, default_value);
  }
  catch (axmException const& error)
  {
    error_has_occurred(error.explanation());
    return default_value;
  }
}

utString axmSimpleXmlReader::text_node()
{
  if (!is_inside())
    return ut_lit("");
  try
  {
    return walk->text_node();
  }
  catch (axmException const& error)
  {
    error_has_occurred(error.explanation());
    return ut_lit("");
  }
}

bool axmSimpleXmlReader::has_error_occurred() const
{
  return error_flag;
}

void axmSimpleXmlReader::dump_error(std::ostream& out) const
{
  for (int i = 0; i < errors.count(); ++i)
    out << errors[i];
}

void axmSimpleXmlReader::error_has_occurred(utString const& message)
{
  errors[errors.count()] = message;
  error_flag = true;
}

// The size of the file, which then stands at its beginning; negative if it cannot be told or has no room in memory.
int axmSimpleXmlReader::file_size()
{
  if (file.get() == nullptr || !file->seek(0, 2))
    return -1;
  int const size = file->tell();
  return size < INT_MAX && file->rewind() ? size : -1;
}

bool axmSimpleXmlReader::read_bytes(int size)
{
  // No cursor may outlive the text it reads.
  positions.shrink(0, 0);
  initial_position.reset();
  walk.reset();
  if (!buffer.expand(size + 1))
    throw std::bad_alloc();
  apMemory::will_fill(buffer.data(), static_cast<std::size_t>(size) + 1);
  if (file->read(buffer.data(), 1, size) != size)
    return false;
  buffer.set_count(size + 1);
  buffer[size] = '\0';
  return true;
}

bool axmSimpleXmlReader::read_declaration()
{
  try
  {
    axmInitialPositionXcoPrg declaration(new axmInitialPositionX(buffer.data()));
    encoding_name = declaration->encoding();
    if (encoding_name.case_compare(ut_lit("utf-16")) == 0)
      return false;
    initial_position.swap(declaration);
    walk = std::make_unique<axmElementWalk>(buffer.data(), buffer.count() - 1, *initial_position, positions);
    return true;
  }
  catch (axmException const& error)
  {
    error_has_occurred(error.explanation());
    return false;
  }
}

// Whether there is an element to read from; an error if not.
bool axmSimpleXmlReader::is_inside()
{
  if (error_flag)
    return false;
  if (positions.count() > 0)
    return true;
  error_has_occurred(ut_lit("Incorrect xml nesting"));
  return false;
}

// Puts a cursor in the slot above the stack, where an earlier walk may have left one, and hands it to the walk.
void axmSimpleXmlReader::add_cursor(int depth)
{
  axmPositionXcoPageArrPrgcoPrg& slot = positions[depth];
  positions.shrink(depth, 0);
  if (!slot)
    slot = new axmPositionX(nullptr);
  walk->add_cursor(*slot);
}
