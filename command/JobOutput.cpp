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
  std::cerr << said.str();
  said.str(std::string());
}
