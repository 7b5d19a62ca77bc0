#include "BuiltInEngine.h"

#include "InputStream.h"

#include <apPath.h>
#include <axsNodeLines.h>
#include <axsRegister.h>
#include <axsSaving.h>
#include <axsXPath.h>

#include <cstdio>
#include <utility>

std::shared_ptr<axmDocumentFactory> built_in_engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

std::string built_in_obstacle(axmDocument const& document)
{
  return axsSaving::obstacle(document).to_utf8().c_str();
}

namespace
{
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Reads all that `read`, which is given where and how much, has.
template <class Read>
apByteArray all_of(Read read)
{
  std::size_t const piece = 256 * 1024;
  apByteArray bytes;
  std::size_t size = 0;
  for (std::size_t count = piece; count > 0; size += count)
  {
    bytes.resize(size + piece);
    count = read(bytes.data() + size, piece);
  }
  bytes.resize(size);
  return bytes;
}
}

InputBytes built_in_bytes(std::string const& file, bool is_wanted)
{
  InputBytes input;
  InputStream stream(file);
  if (!stream.is_plain_file())
  {
    input.bytes = all_of([&](char* to, std::size_t size) { return stream.read(to, size); });
    input.fault = stream.fault().to_utf8().view();
    input.is_read = input.fault.empty();
    return input;
  }
  if (!is_wanted)
    return input;
  File const plain(apPath(file.c_str()).file_open(apPath::read_mode()), &std::fclose);
  if (plain == nullptr)
    return input;
  input.bytes = all_of([&](char* to, std::size_t size) { return std::fread(to, 1, size, plain.get()); });
  input.is_read = std::ferror(plain.get()) == 0;
  return input;
}

XPathAnswer built_in_answer(axmNode& context, std::string const& xpath, Namespaces const& namespaces)
{
  XPathAnswer answer;
  axsXPath::Value value;
  axsXPathError error;
  if (!axsXPath::evaluate(context, apString(xpath.c_str()), namespaces, value, error))
    answer.fault = error.message + ", at character " + std::to_string(error.position);
  else if (value.type != axsXPathType::node_set)
    answer.value = value.text.to_utf8().view();
  else
    answer.nodes = std::move(value.nodes);
  return answer;
}

std::vector<int> built_in_lines(
  axmDocument const& document, apByteArray const& bytes, std::vector<std::shared_ptr<axmNode>> const& nodes)
{
  return axsNodeLines::find(document, bytes, axmLoadOptions(axmValidateNone), nodes);
}
