#pragma once

#include "axmParseError.h"
#include "axmUtf8.h"

#include <memory>
#include <ostream>
#include <string>
#include <utility>

namespace axm
{
/// Why something failed, in UTF-8, and where. Line and column are counted from 1, 0 where not known.
struct error
{
  std::string message;
  std::string file = {};
  int line = 0;
  int column = 0;

  /// In one line, as compilers have it: "file:line:column: message", without what is not known.
  std::string to_string() const
  {
    std::string place = file;
    for (int const number : {line, column})
      if (number > 0)
        place += (place.empty() ? "" : ":") + std::to_string(number);
    return place.empty() ? message : place + ": " + message;
  }
};

inline std::ostream& operator<<(std::ostream& out, error const& failure)
{
  return out << failure.to_string();
}

inline error to_error(axmParseError const& failure)
{
  return {utf8(failure.message()), utf8(failure.url()), failure.line_number() > 0 ? failure.line_number() : 0,
    failure.column_number() > 0 ? failure.column_number() : 0};
}

/// A value or the reason why there is none.
///
///     if (auto const document = axm::load_file("books.xml"))
///       use(**document);
///     else
///       std::cerr << document.error() << '\n';
template <class T>
class [[nodiscard]] result
{
public:
  result(T given) : held(std::move(given)), good(true) {}
  result(axm::error reason) : failure(std::move(reason)) {}

  bool has_value() const noexcept { return good; }
  explicit operator bool() const noexcept { return good; }

  /// To be asked for only where there is one.
  T const& value() const noexcept { return held; }
  T const& operator*() const noexcept { return held; }
  T const* operator->() const noexcept { return &held; }

  /// Refused: a document that could not be loaded would go on as none.
  template <class U>
  operator std::shared_ptr<U>() const
  {
    static_assert(
      sizeof(U*) == 0, "a result is asked first, as in if (document), and gives what it holds with *document");
    return nullptr;
  }

  /// Empty where there is a value.
  axm::error const& error() const noexcept { return failure; }

private:
  T held{};
  axm::error failure;
  bool good = false;
};
}
