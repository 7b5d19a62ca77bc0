#pragma once

#include "axsIdentityMatcher.h"
#include "axsIdentityTable.h"
#include "axsPlace.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct axsElementDecl;
struct axsIdentityConstraint;
struct axsKnownName;

/// Checks the identity constraints of a document (Part 1, 3.11.4 cvc-identity-constraint) while its elements go by. Time and
/// memory grow with the number of values; an element costs what the constraints cost that may select it.
class axsIdentityChecks
{
public:
  using Report = std::function<void(std::string const& message, axsPlace place)>;

  /// A value as it stands in the document, and as its type has it (axsValue::bytes).
  struct Value
  {
    std::string_view text;
    std::string_view bytes;
  };

  explicit axsIdentityChecks(Report given) : report(std::move(given)) {}

  /// Whether constraints are in force: only then the operations but begin() are to be called.
  bool is_active() const noexcept { return !open.empty(); }

  /// An element begins; to be called if the declaration has constraints or others are in force. `place` is asked only if
  /// the element is selected.
  void begin(axsKnownName const& name, axsElementDecl const* decl, std::function<axsPlace()> const& place);

  /// Whether the values of the attributes of the element that began last are asked for.
  bool wants_attributes() const noexcept { return attributes_wanted; }
  void attribute(std::string_view name_space, std::string_view local, Value const& value);

  /// Whether the value of the innermost element is asked for.
  bool wants_value() const noexcept { return !awaited.empty() && awaited.back().level == open.size(); }

  /// The value of the innermost element, or why it has none.
  enum class Without
  {
    is_nil,
    is_not_valid,
    is_complex
  };

  void value(Value const& value, bool is_nillable);
  void no_value(Without reason);

  /// It ends.
  void end();

private:
  struct Plan
  {
    axsIdentityConstraint const* constraint;
    axsIdentityMatcher selector;
    std::vector<axsIdentityMatcher> fields;
    std::size_t depth_of_fields = 0;
    bool has_deep_fields = false;
  };

  // An element with a constraint. Levels count the open elements from 1, from the outermost one with a constraint on.
  struct Scope
  {
    std::size_t level;
    Plan const* plan;
    axsKnownName const* name;
    std::unique_ptr<axsIdentityTable> table;
    std::vector<std::string> texts; // of a keyref: the values as they stand in the document
  };

  struct Field
  {
    std::string bytes;
    bool is_found = false;
    bool is_void = false; // has no value, though it was found
  };

  // An element that a selector has selected.
  struct Selection
  {
    std::size_t level;
    std::size_t scope;
    axsKnownName const* name;
    axsPlace place;
    std::vector<Field> fields;
    std::string text;
  };

  // The value of an open element is that of a field.
  struct Awaited
  {
    std::size_t level;
    std::size_t selection;
    std::size_t field;
  };

  // What the elements within one have as keys that it refers to.
  struct Inherited
  {
    std::size_t level;
    axsIdentityConstraint const* key;
    std::unique_ptr<axsIdentityTable> table;
  };

  Plan const& plan_of(axsIdentityConstraint const& constraint);
  void open_scopes(axsElementDecl const& decl, axsKnownName const& name);
  bool is_covered(Plan const& plan, axsElementDecl const& decl) const;
  bool is_referred_to(axsIdentityConstraint const& key) const;
  void select(axsKnownName const& name, std::function<axsPlace()> const& place);
  void await_fields();
  template <class Visit>
  void for_each_near(Visit visit);
  Field* found_field(Selection& selection, std::size_t field);
  void set(Selection& selection, Field& field, Value const& value);
  void complete(Selection& selection);
  bool has_all_fields(Selection const& selection) const;
  void report_duplicate(Selection const& selection, axsPlace first);
  void check_references(Scope const& scope);
  axsIdentityTable const* table_of(axsIdentityConstraint const& key, std::size_t level);
  void close_scopes();
  void hand_up(axsIdentityConstraint const& key, std::unique_ptr<axsIdentityTable> table, std::size_t level);

  Report report;
  std::unordered_map<axsIdentityConstraint const*, std::unique_ptr<Plan>> plans;
  std::vector<axsKnownName const*> open;
  std::vector<Scope> scopes;
  std::vector<std::size_t> deep_scopes; // those whose selectors lead to any depth
  std::size_t depth_of_selectors = 0;
  std::vector<Selection> selections;
  std::size_t depth_of_fields = 0;
  std::size_t selections_with_deep_fields = 0;
  std::vector<Awaited> awaited;
  std::vector<Inherited> inherited;
  bool attributes_wanted = false;
};
