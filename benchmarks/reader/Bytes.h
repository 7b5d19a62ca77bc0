#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

// The bytes of a file with a NUL after them, read into memory that nobody wrote to before.
class Bytes
{
public:
  explicit Bytes(std::string const& file)
  {
    std::FILE* const stream = std::fopen(file.c_str(), "rb");
    if (stream == nullptr)
      return;
    std::fseek(stream, 0, SEEK_END);
    length = static_cast<std::size_t>(std::ftell(stream));
    std::rewind(stream);
    memory.reset(static_cast<char*>(std::malloc(length + 1)));
    length = std::fread(memory.get(), 1, length, stream);
    memory.get()[length] = '\0';
    std::fclose(stream);
  }

  char* data() { return memory.get(); }
  std::size_t size() const { return length; }

private:
  struct Free
  {
    void operator()(char* block) const { std::free(block); }
  };

  std::unique_ptr<char, Free> memory;
  std::size_t length = 0;
};
