#pragma once

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class axsName;

/// What a document type declares of attributes that a reader acts on, valid or not: defaults, and the types whose values are
/// tokens (XML 1.0, 3.3.2 and 3.3.3). The names are those of one document.
class axsDeclaredAttributes
{
public:
  struct Default
  {
    axsName const* name;
    /// In UTF-8, normalised.
    std::string value;
  };

  /// Of the elements of one name.
  struct Element
  {
    /// In the order of their declarations.
    std::vector<Default> defaults;
    /// Each attribute that has a default or tokens, and whether it has a default and whether it has tokens.
    struct Kind
    {
      bool has_default = false;
      bool has_tokens = false;
    };
    std::unordered_map<axsName const*, Kind> kinds;
  };

  /// Throw std::bad_alloc when memory runs out.
  void declare_default(axsName const& element, axsName const& attribute, std::string value)
  {
    Element& declared = elements[&element];
    declared.kinds[&attribute].has_default = true;
    declared.defaults.push_back({&attribute, std::move(value)});
  }
  void declare_tokens(axsName const& element, axsName const& attribute)
  {
    elements[&element].kinds[&attribute].has_tokens = true;
  }

  bool empty() const noexcept { return elements.empty(); }

  /// What is declared for the elements of that name, null for nothing.
  Element const* of(axsName const& element) const noexcept
  {
    auto const found = elements.find(&element);
    return found == elements.end() ? nullptr : &found->second;
  }

private:
  std::unordered_map<axsName const*, Element> elements;
};
