#pragma once

#include "axsCanonicalForm.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsStartTag.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Writes what a parser tells in its canonical form.
class axsCanonicalWriter final : public axsParseHandler
{
public:
  /// Both must live longer.
  axsCanonicalWriter(axsCanonicalOptions const& wanted, axsCanonicalForm::Write const& target);

  /// Writes what is left. Throws axsReadError where `target` takes no more, as the events do.
  void finish() { flush(0); }

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void declaration(std::string_view version, std::string_view encoding, std::string_view standalone) override;
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;

private:
  using Declarations = std::map<std::string_view, std::string_view>;

  void check(axsTagAttribute const& declaration) const;
  Declarations declarations_of(axsStartTag const& tag) const;
  void declare(axsStartTag const& tag);
  void write_attributes(axsStartTag const& tag);
  void begin_outside();
  void end_outside();
  bool is_inclusive(std::string_view prefix) const;
  void flush(std::size_t limit);
  [[noreturn]] void fail(char const* message) const;

  axsCanonicalOptions const& options;
  axsCanonicalForm::Write const& write;
  axsNameTable names;
  axsLocator const* locator = nullptr;
  std::string pending;
  // The names of the open elements; what their tags have declared, the innermost at the end; and which they are.
  std::vector<axsName const*> open;
  std::map<std::string, std::vector<std::string>, std::less<>> written;
  std::vector<std::pair<std::size_t, std::vector<std::string>*>> in_force;
  bool has_root = false;
};
