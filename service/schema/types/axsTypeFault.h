#pragma once

#include "axsTypeChecker.h"

#include <string>
#include <string_view>

/// What is wrong with a value, in words for those who write documents: of which type it is not, and what that asks for.
class axsTypeFault
{
public:
  /// `text` is not a value of `type`; both live as long as this.
  axsTypeFault(axsSimpleType const& type, std::string_view text, axsValueContext const& context);

  /// The words. `rule`, unless null, is set to the name of the constraint that is not kept.
  std::string words(char const** rule) const;

  /// A text as it is shown in messages: its beginning, if it is long.
  static std::string shown(std::string_view text);

private:
  std::string words_of_built_in(axsSimpleType const& built_in, axsTypeChecker::Verdict const& why) const;
  std::string words_of_own(axsTypeChecker::Verdict const& why) const;
  static std::string reason(axsTypeChecker::Verdict const& why);
  static std::string reason_of_item(axsTypeChecker::Verdict why);
  static std::string reason_of_facet(axsTypeChecker::Verdict const& why);

  axsSimpleType const& type;
  std::string_view text;
  axsValueContext const& context;
  axsTypeChecker::Verdict verdict;
};
