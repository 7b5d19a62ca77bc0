#pragma once

#include "axsNameTable.h"
#include "axsOutlinePath.h"
#include "axsParseHandler.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

/// Counts what a parser tells of; see axsOutline.
class axsOutlineHandler final : public axsParseHandler
{
public:
  axsOutlineHandler(std::size_t path_bound, std::size_t depth_bound) : max_paths(path_bound), max_depth(depth_bound) {}

  /// To be called before each document.
  void begin();

  /// What another one has counted counts here, too.
  void add(axsOutlineHandler const& other);

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

  std::vector<axsOutlinePath> paths() const;
  std::uint64_t left_out() const noexcept { return passed; }

private:
  static constexpr std::size_t none = ~std::size_t{0};

  struct Attribute
  {
    axsName const* name;
    std::uint64_t count;
  };

  struct Path
  {
    axsName const* name;
    std::size_t parent;
    std::size_t depth;
    std::uint64_t count = 0;
    std::uint64_t texts = 0;
    std::vector<Attribute> attributes;
    std::vector<std::size_t> children;
  };

  struct Open
  {
    std::size_t path;
    bool has_text;
  };

  // A path and a name: of what follows it, or of its attributes.
  struct Key
  {
    std::size_t path;
    axsName const* name;

    bool operator==(Key const& other) const noexcept { return path == other.path && name == other.name; }
  };

  struct KeyHash
  {
    std::size_t operator()(Key const& key) const noexcept { return std::hash<void const*>()(key.name) * 31 + key.path; }
  };

  using Places = std::unordered_map<Key, std::size_t, KeyHash>;

  std::size_t find_path(std::size_t parent, axsName const& name);
  void count_attribute(std::size_t path, axsName const& name, std::uint64_t count);

  std::size_t const max_paths;
  std::size_t const max_depth;
  axsNameTable names;
  std::vector<Path> all;
  std::vector<std::size_t> roots;
  Places places;
  Places attribute_places;
  std::vector<Open> open;
  // How many elements are open that have no path, and how many there have been.
  std::uint64_t open_without_path = 0;
  std::uint64_t passed = 0;
};
