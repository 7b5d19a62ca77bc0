#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

class axsPatternProgram;
class axsPatternPool;

/// A regular expression of XML Schema (Part 2, appendix F), compiled. Whatever the expression, a value is matched in a time
/// that is linear in its length. Immutable to its users: any number of threads may match with one.
class axsPattern
{
public:
  struct Fault
  {
    std::size_t character = 0; // of the expression, counted from 1
    std::string text;
  };

  /// Null, with the fault told, if the text is no regular expression, or one whose counts multiply to more than can be
  /// built. Takes a time and memory linear in the length of the text and the counts within that bound.
  static std::unique_ptr<axsPattern const> compile(std::string_view text, Fault& fault);

  axsPattern(axsPattern const&) = delete;
  axsPattern& operator=(axsPattern const&) = delete;
  ~axsPattern();

  /// Whether the whole of `value`, in UTF-8, is matched (cvc-pattern-valid).
  bool matches(std::string_view value) const;

  std::string const& text() const noexcept { return source; }

private:
  axsPattern(std::string_view text, std::unique_ptr<axsPatternProgram const> program);

  std::string source;
  std::unique_ptr<axsPatternProgram const> program;
  std::unique_ptr<axsPatternPool> pool;
};
