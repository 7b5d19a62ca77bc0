// Schema documents of any bytes: each compiles, or is refused with a place in it; and what compiles once does so again.

#include <axsSchemaCompiler.h>
#include <axsSchemaComponents.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::string_view const text(reinterpret_cast<char const*>(data), size);
  bool compiles[2] = {};
  for (bool& does : compiles)
  {
    axsSchemaCompiler compiler;
    compiler.add_text("fuzz.xsd", text);
    does = compiler.compile() != nullptr;
    if (does != compiler.errors().empty())
      std::abort();
    for (axsSchemaErrors::Error const& error : compiler.errors())
      if (error.message.empty() || error.place.file > compiler.files().size())
        std::abort();
  }
  if (compiles[0] != compiles[1])
    std::abort();
  return 0;
}
