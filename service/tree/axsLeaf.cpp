#include "axsLeaf.h"

#include "axsTree.h"

#include <climits>
#include <cstring>

void axsLeaf::set_text(std::string_view text)
{
  // The old text may be where the new one goes, or be the new one.
  ExternalText* const old = is_external() ? external() : nullptr;
  if (text.size() <= room_units * unit)
  {
    if (!text.empty())
      std::memmove(room(), text.data(), text.size());
    text_length = static_cast<std::uint16_t>(text.size());
  }
  else
  {
    new (room()) ExternalText*(make_external(text));
    text_length = length_of_external;
  }
  if (old != nullptr)
    tree().arena().release(old, old->size());
}

void axsLeaf::free_text() noexcept
{
  if (is_external())
    tree().arena().release(external(), external()->size());
}

axsLeaf::ExternalText* axsLeaf::make_external(std::string_view text)
{
  // What is longer could not be handed out.
  if (text.size() > INT_MAX / sizeof(wchar_t) - 64)
    throw std::bad_alloc();
  auto* const made = new (tree().arena().allocate(sizeof(ExternalText) + text.size())) ExternalText{text.size()};
  std::memcpy(made->bytes(), text.data(), text.size());
  return made;
}
