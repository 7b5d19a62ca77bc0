#include "axsWindow.h"

#include "axsByteBlock.h"
#include "axsSource.h"

#include <cstring>
#include <utility>

namespace
{
std::size_t const usual_room = 65536;

std::unique_ptr<char[]> make_bytes(std::size_t room)
{
  return std::make_unique<char[]>(room + 1 + axsByteBlock::size);
}
}

axsWindow::axsWindow(axsSource& given) : source(given), bytes(make_bytes(usual_room)), room(usual_room)
{
  fill();
}

char const* axsWindow::advance(char const* from)
{
  std::size_t const kept = static_cast<std::size_t>(end() - from);
  passed += filled - kept;
  if (kept > room / 2)
  {
    std::unique_ptr<char[]> larger = make_bytes(room * 2);
    std::memcpy(larger.get(), from, kept);
    bytes = std::move(larger);
    room *= 2;
  }
  else
    std::memmove(bytes.get(), from, kept);
  filled = kept;
  fill();
  return bytes.get();
}

void axsWindow::fill()
{
  while (!last && filled < room)
  {
    std::size_t const count = source.read(bytes.get() + filled, room - filled);
    filled += count;
    last = count == 0;
  }
  bytes[filled] = '\0';
}
