#pragma once

#include <string>
#include <string_view>

class axsInputStack;

/// The XML declaration at the beginning of a document (2.8, [23] XMLDecl) or the text declaration at that of an external
/// entity (4.3.1, [77] TextDecl).
class axsXmlDeclaration
{
public:
  enum class Kind
  {
    document,
    text
  };

  /// Whether a declaration stands at `p`.
  static bool begins(char const* p);

  /// Reads the one that begins where `input` is, which goes on after it. Throws as the input does.
  axsXmlDeclaration(axsInputStack& input, Kind kind);

  /// Empty where the declaration does not say it.
  std::string const& version() const noexcept { return version_number; }
  std::string const& encoding() const noexcept { return encoding_name; }
  std::string const& standalone() const noexcept { return standalone_word; }

private:
  std::string read_value(char const*& p) const;
  void read_version(char const*& p);
  void read_encoding(char const*& p);
  void read_standalone(char const*& p);

  axsInputStack const& in;
  std::string version_number;
  std::string encoding_name;
  std::string standalone_word;
};
