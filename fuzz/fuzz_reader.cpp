// The streaming reader over any bytes, on a walk that the input chooses: it must end and stay in its memory, and a second
// reader on the same walk must have the same answers.
// What follows a line of four hyphens is the walk, a step a line, whose first letter says which: `d NAME` down to, `u` up,
// `a NAME` an attribute, `t` the text, `r` the file is read again, `e NAME` each element of that name with its text and its
// attribute k. Where there are no hyphens, it is the walk that is below.

#include <apITarnFilecoPrf.h>
#include <axmSimpleXmlFactory.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>

namespace
{
char const usual_walk[] = "d a\na b\nt\nd \na x\nu\nd Invalid\nu\nr\nd a/\nd p:a\nt\nu\nu\n";

class MemoryFile : public apITarnFile
{
public:
  explicit MemoryFile(std::string_view text) : bytes(text) {}

  bool seek(int offset, int origin) override
  {
    position = offset + (origin == 0 ? 0 : origin == 1 ? position : length());
    return true;
  }
  int tell() override { return position; }
  bool rewind() override { return seek(0, 0); }
  int read(void* buffer, int, int count) override
  {
    int const taken = std::min(count, length() - position);
    std::memcpy(buffer, bytes.data() + position, static_cast<std::size_t>(taken));
    position += taken;
    return taken;
  }

private:
  int length() const { return static_cast<int>(bytes.size()); }

  std::string_view bytes;
  int position = 0;
};

class Walk
{
public:
  explicit Walk(std::string_view document)
    : reader(
        axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, apITarnFilecoPrf(new MemoryFile(document))))
  {
    said(reader->read_file());
    said(reader->encoding());
  }

  void step(std::string_view line)
  {
    std::string_view const rest = line.substr(std::min<std::size_t>(line.size(), 2));
    utString const name(rest.data(), static_cast<int>(rest.size()));
    switch (line.empty() ? '\0' : line.front())
    {
    case 'd':
      return said(reader->down_to(name));
    case 'u':
      return reader->up();
    case 'a':
      return said(reader->attribute(name, ut_lit("none")));
    case 't':
      return said(reader->text_node());
    case 'r':
      return said(reader->read_file());
    case 'e':
      return each(name);
    default:
      return;
    }
  }

  std::string answers()
  {
    reader->dump_error(out);
    return out.str();
  }

private:
  void each(utString const& name)
  {
    for (int count = 0; count < 1000 && !reader->has_error_occurred() && reader->down_to(name); ++count)
    {
      said(reader->attribute(ut_lit("k"), ut_lit("none")));
      said(reader->text_node());
      reader->up();
    }
  }

  void said(bool answer) { out << (answer ? "yes\n" : "no\n"); }
  void said(utString const& answer) { out << answer.view() << '\n'; }

  std::unique_ptr<axmAbstractXmlReader> reader;
  std::ostringstream out;
};

std::string walk(std::string_view document, std::string_view steps)
{
  Walk made(document);
  for (int count = 0; count < 200 && !steps.empty(); ++count)
  {
    std::size_t const end = std::min(steps.find('\n'), steps.size());
    made.step(steps.substr(0, end));
    steps.remove_prefix(std::min(end + 1, steps.size()));
  }
  return made.answers();
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::string_view const input(reinterpret_cast<char const*>(data), size);
  std::string_view const hyphens = "\n----\n";
  std::size_t const end = input.find(hyphens);
  std::string_view const document = input.substr(0, end);
  std::string_view const steps = end == std::string_view::npos ? usual_walk : input.substr(end + hyphens.size());
  if (walk(document, steps) != walk(document, steps))
    std::abort();
  return 0;
}
