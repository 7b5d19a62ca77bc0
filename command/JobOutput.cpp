#include "JobOutput.h"

#include <iostream>

JobOutput::JobOutput(OutputFile& file, std::atomic<std::size_t> const& turn, std::size_t number, Progress* progress)
  : target(file),
    current(turn),
    position(number),
    shown(progress)
{
}

void JobOutput::write(std::string_view bytes)
{
  if (!is_turn())
  {
    waiting += bytes;
    return;
  }
  if (!waiting.empty())
  {
    target.write(waiting);
    waiting = std::string();
  }
  target.write(bytes);
}

void JobOutput::show_bytes(std::uint64_t bytes)
{
  if (shown != nullptr)
    shown->show_bytes(static_cast<long long>(bytes));
}

void JobOutput::flush()
{
  write({});
  // Standard output would be flushed first, and where that fails, nobody would know why.
  if (std::string const text = said.str(); !text.empty())
    std::cerr << text;
  said.str(std::string());
}
