#pragma once

#include <atomic>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#if defined(__has_include)
#  if __has_include(<sys/single_threaded.h>)
#    include <sys/single_threaded.h>
#    define CO_KNOWS_SINGLE_THREADED
#  endif
#endif

/// The storage of a text: characters with a length, closed by a NUL that does not count.
///
/// Copies share one block of memory, which goes with the last of them. The count is atomic, so copies may be made, used
/// and dropped by several threads, while one and the same object belongs to one thread at a time. The characters are
/// written once, before the first copy is made. An object that was moved from can only be destroyed. Running out of memory
/// is std::bad_alloc.
template <class C>
class coSharedText
{
public:
  /// Room for `length` characters (0 or more) that the caller writes through writable().
  explicit coSharedText(int length) : block(Block::make(length)) {}

  coSharedText(coSharedText const& other) noexcept : block(other.block) { keep(); }
  coSharedText(coSharedText&& other) noexcept : block(std::exchange(other.block, nullptr)) {}
  coSharedText& operator=(coSharedText const&) = delete;
  ~coSharedText() { drop(); }

  int length() const noexcept { return block->length; }

  /// The characters and the closing NUL.
  C const* data() const noexcept { return block->text(); }

  /// The characters, to be written before the first copy is made.
  C* writable() noexcept { return block->text(); }

  /// The length of a text of `characters`; throws std::bad_alloc where that is more than a length can say.
  static int checked_length(std::size_t characters)
  {
    if (characters > INT_MAX)
      throw std::bad_alloc();
    return static_cast<int>(characters);
  }

private:
  struct Block
  {
    std::atomic<int> owners;
    int length;

    C* text() noexcept { return reinterpret_cast<C*>(this + 1); }

    static Block* make(int length)
    {
      std::size_t const characters = static_cast<std::size_t>(length) + 1;
      if (characters > (SIZE_MAX - sizeof(Block)) / sizeof(C))
        throw std::bad_alloc();
      void* const memory = std::malloc(sizeof(Block) + characters * sizeof(C));
      if (memory == nullptr)
        throw std::bad_alloc();
      Block* const made = new (memory) Block{{1}, length};
      made->text()[length] = C();
      return made;
    }
  };

  // Whether the process is known to have this thread only: then counting needs no locked instruction, which costs more
  // than all else that copying a text takes.
  static bool is_only_thread() noexcept
  {
#if defined(CO_KNOWS_SINGLE_THREADED)
    return __libc_single_threaded != 0;
#else
    return false;
#endif
  }

  void keep() noexcept
  {
    if (is_only_thread())
      block->owners.store(block->owners.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    else
      block->owners.fetch_add(1, std::memory_order_relaxed);
  }

  void drop() noexcept
  {
    if (block == nullptr)
      return;
    // The only owner there is cannot be joined by another one meanwhile, and reading costs less than counting.
    int const owners = block->owners.load(std::memory_order_acquire);
    if (owners == 1)
      std::free(block);
    else if (is_only_thread())
      block->owners.store(owners - 1, std::memory_order_relaxed);
    else if (block->owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
      std::free(block);
  }

  Block* block;
};

#undef CO_KNOWS_SINGLE_THREADED
