#pragma once

// Which change of the engine is chosen, by the environment variable AXM_MUTANT, and which ones a run comes by: the bytes of
// the file AXM_MUTANTS_SEEN, one a change, become 1. Included by changed sources only; see schemata.py.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

#pragma GCC diagnostic ignored "-Wnarrowing"
#pragma GCC diagnostic warning "-Wconversion"
#pragma GCC diagnostic warning "-Wsign-conversion"
#pragma GCC diagnostic warning "-Wfloat-conversion"
#pragma GCC diagnostic warning "-Wparentheses"
#pragma GCC diagnostic warning "-Wunused-value"
#pragma GCC diagnostic warning "-Wunused-parameter"
#pragma GCC diagnostic warning "-Wunused-variable"
#pragma GCC diagnostic warning "-Wunused-but-set-variable"
#pragma GCC diagnostic warning "-Wunused-but-set-parameter"
#pragma GCC diagnostic warning "-Wunused-result"
#pragma GCC diagnostic warning "-Wunused-function"
#pragma GCC diagnostic warning "-Wtype-limits"
#pragma GCC diagnostic warning "-Wmaybe-uninitialized"
#pragma GCC diagnostic warning "-Wuninitialized"
#pragma GCC diagnostic warning "-Wempty-body"
#pragma GCC diagnostic warning "-Wdangling-else"
#pragma GCC diagnostic warning "-Wmisleading-indentation"
#pragma GCC diagnostic warning "-Wbool-compare"
#pragma GCC diagnostic warning "-Wbool-operation"
#pragma GCC diagnostic warning "-Wint-in-bool-context"
#pragma GCC diagnostic warning "-Wextra"
#pragma GCC diagnostic warning "-Wlogical-op"
#pragma GCC diagnostic warning "-Wsign-compare"
#pragma GCC diagnostic warning "-Warray-bounds"
#pragma GCC diagnostic warning "-Wstringop-overflow"
#pragma GCC diagnostic warning "-Wstringop-overread"
#pragma GCC diagnostic warning "-Waggressive-loop-optimizations"
#pragma GCC diagnostic warning "-Wreturn-type"
#pragma GCC diagnostic warning "-Wsequence-point"
#pragma GCC diagnostic warning "-Wtautological-compare"
#pragma GCC diagnostic warning "-Wduplicated-branches"

constexpr int axm_max_mutants = 1 << 16;

inline int axm_chosen_mutant()
{
  char const* const number = std::getenv("AXM_MUTANT");
  return number == nullptr ? -1 : std::atoi(number);
}

inline unsigned char* axm_mutants_seen()
{
  char const* const name = std::getenv("AXM_MUTANTS_SEEN");
  int const file = name == nullptr ? -1 : open(name, O_RDWR | O_CREAT, 0666);
  if (file < 0 || ftruncate(file, axm_max_mutants) != 0)
    return nullptr;
  return static_cast<unsigned char*>(mmap(nullptr, axm_max_mutants, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0));
}

inline bool axm_mutant(int number)
{
  static int const chosen = axm_chosen_mutant();
  static unsigned char* const seen = axm_mutants_seen();
  if (seen != nullptr)
    seen[number] = 1;
  return number == chosen;
}
