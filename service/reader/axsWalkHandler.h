#pragma once

#include "axsNameTable.h"
#include "axsParseHandler.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What a reader wants to know of what its parser tells: the element that it looks for with its attributes, the text that
/// it gathers, and how many elements are open.
class axsWalkHandler final : public axsParseHandler
{
public:
  /// The attributes of one start tag, kept. Its memory is used again.
  class Attributes
  {
  public:
    void assign(axsStartTag const& tag);

    /// Null if there is none of that name, as it is written.
    std::string_view const* find(std::string_view name) const noexcept;

  private:
    struct Attribute
    {
      axsName const* name;
      std::string_view value;
    };

    std::vector<Attribute> attributes;
    std::string values;
  };

  /// From now on the attributes of the next element that begins are kept in `to` if its name is `name`; any name will do
  /// where that is null.
  void look_for(std::string_view const* name, Attributes& to) noexcept;

  /// What began since then.
  bool has_begun() const noexcept { return first != nullptr; }
  bool has_found() const noexcept { return is_found; }
  std::string_view first_name() const noexcept;

  /// From now on texts are added to `to`; nowhere if it is null.
  void gather(std::string* to) noexcept { texts = to; }

  /// How many elements are open.
  std::uint64_t depth() const noexcept { return open; }

  std::string const& declared_encoding() const noexcept { return encoding; }

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void declaration(std::string_view, std::string_view given, std::string_view) override { encoding = given; }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override;
  void end_element() override { --open; }
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

private:
  axsNameTable names;
  std::string encoding;
  std::string_view const* wanted = nullptr;
  Attributes* found = nullptr;
  axsName const* first = nullptr;
  bool is_found = false;
  std::string* texts = nullptr;
  std::uint64_t open = 0;
};
