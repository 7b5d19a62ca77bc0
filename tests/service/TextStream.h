#pragma once

#include <axsByteStream.h>

#include <apString.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// A text as a stream.
class TextStream final : public axsByteStream
{
public:
  explicit TextStream(std::string given) : text(std::move(given)) {}

  std::size_t read(char* to, std::size_t size) override
  {
    std::size_t const count = text.copy(to, size, done);
    done += count;
    return count;
  }

  apString fault() const override { return apString(); }

private:
  std::string text;
  std::size_t done = 0;
};

/// Takes pieces of a text and puts them together in `text`, which must live longer.
inline auto appending_to(std::string& text)
{
  return [&text](std::string_view piece)
  {
    text += piece;
    return true;
  };
}
