#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Writes JSON (RFC 8259) piece by piece. Who calls keeps to its grammar. Texts are well-formed UTF-8.
class axsJsonWriter
{
public:
  using Write = std::function<bool(std::string_view)>;

  /// `spaces` for each level, each value on its own line; all on one line without blanks if it is 0. `target` must live
  /// longer.
  axsJsonWriter(unsigned spaces, Write const& target) : indent(spaces), write(target) {}

  void begin_object() { begin('{'); }
  void end_object() { end('}'); }
  void begin_array() { begin('['); }
  void end_array() { end(']'); }
  void key(std::string_view name);
  void text(std::string_view value);
  void null();

  /// To be called at the end.
  void finish();

  /// Whether more is wanted.
  bool is_wanted() const noexcept { return wanted; }

private:
  void begin(char bracket);
  void end(char bracket);
  void next();
  void new_line();
  void quote(std::string_view value);
  void flush(std::size_t limit);

  unsigned const indent;
  Write const& write;
  // Of the open objects and arrays, whether something is in them.
  std::vector<bool> open;
  bool is_after_key = false;
  bool wanted = true;
  std::string out;
};
