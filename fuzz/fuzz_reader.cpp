// The streaming reader over any bytes, on a walk that the bytes themselves choose: it must end and stay in its memory.

#include <apITarnFilecoPrf.h>
#include <axmSimpleXmlFactory.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <sstream>

namespace
{
class MemoryFile : public apITarnFile
{
public:
  MemoryFile(std::uint8_t const* bytes, int size) : first(bytes), length(size) {}

  bool seek(int offset, int origin) override
  {
    position = offset + (origin == 0 ? 0 : origin == 1 ? position : length);
    return true;
  }
  int tell() override { return position; }
  bool rewind() override { return seek(0, 0); }
  int read(void* buffer, int, int count) override
  {
    int const taken = std::min(count, length - position);
    std::memcpy(buffer, first + position, static_cast<std::size_t>(taken));
    position += taken;
    return taken;
  }

private:
  std::uint8_t const* first;
  int length;
  int position = 0;
};
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  char const* const names[] = {"a", "b", "", "Invalid", "a/", "p:a"};
  int const steps = size > 0 ? std::min<int>(data[size - 1], 64) : 0;

  apITarnFilecoPrf const file(new MemoryFile(data, static_cast<int>(size)));
  auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file);
  reader->read_file();
  for (int i = 0; i < steps; ++i)
  {
    unsigned const choice = data[static_cast<std::size_t>(i) % size];
    utString const name(names[choice / 6 % 6]);
    switch (choice % 6)
    {
    case 0:
    case 1:
      reader->down_to(name);
      break;
    case 2:
      reader->up();
      break;
    case 3:
      reader->attribute(name, ut_lit("none"));
      break;
    case 4:
      reader->read_file();
      break;
    default:
      reader->text_node();
    }
  }
  std::ostringstream errors;
  reader->dump_error(errors);
  return 0;
}
