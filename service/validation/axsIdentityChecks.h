#pragma once

#include "axsIdentityConstraint.h"
#include "axsIdentityMatcher.h"
#include "axsIdentityReferences.h"
#include "axsIdentityTable.h"
#include "axsIdentityValues.h"
#include "axsPlace.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

struct axsElementDecl;
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
  struct Plan;

  // What is open of a constraint that others may refer to.
  struct Key
  {
    std::size_t number;
    Plan* plan = nullptr; // its own, once an element with it has begun
    std::vector<Plan*> referring;
    std::size_t references = 0; // how many scopes refer to it
  };

  struct Plan
  {
    explicit Plan(axsIdentityConstraint const& given) : constraint(&given), selector(given.selector) {}

    axsIdentityConstraint const* constraint;
    Key* key = nullptr; // of a keyref what that refers to
    axsIdentityMatcher selector;
    std::vector<axsIdentityMatcher> fields;
    std::size_t depth_of_fields = 0;
    bool has_deep_fields = false;
    std::vector<std::size_t> selections; // with deep fields: those that are open, by their numbers
    std::vector<std::size_t> scopes;     // that are open, by their numbers
    std::size_t origin = 0;              // the innermost level from which it leads deep to the element that began last
    axsIdentityValues values;            // of one that is deep and no keyref

    bool is_reference() const noexcept { return constraint->category == axsIdentityConstraint::Category::keyref; }
    // Whether ".//" is an alternative of the selector: what that selects in an element is selected in all those around it
    // that have the constraint, too.
    bool is_deep() const noexcept { return selector.is_deep(); }
    bool is_open() const noexcept { return !scopes.empty(); }
  };

  // An element with a constraint. Levels count the open elements from 1, from the outermost one with a constraint on.
  struct Scope
  {
    std::size_t level;
    Plan* plan;
    axsKnownName const* name;
    std::size_t first_deep;                                 // how many values of any depth the plan had before
    std::unique_ptr<axsIdentityTable> table;                // of a key; null without values, as the next ones
    std::unique_ptr<axsIdentityReferences> references;      // of a keyref: what its own alternatives select here
    std::unique_ptr<axsIdentityReferences> deep_references; // and what ".//" does, here and in the elements within
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
    bool is_deep; // by ".//"
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

  // The level of an element and the number of a key.
  using LevelAndKey = std::pair<std::size_t, std::size_t>;

  Plan& plan_of(axsIdentityConstraint const& constraint);
  Key& key_of(axsIdentityConstraint const& constraint);
  void open_scopes(axsElementDecl const& decl, axsKnownName const& name);
  void open_scope(Plan& plan, axsKnownName const& name);
  static bool is_covered(Plan const& plan) noexcept;
  axsIdentityTable& table_of(Scope& scope);
  void select(axsKnownName const& name, std::function<axsPlace()> const& place);
  void select_in(std::size_t scope, bool is_deep, axsKnownName const& name, axsPlace place);
  void await_fields();
  void deselect();
  template <class Visit, class Leads>
  void for_each_led_here(Visit visit, Leads leads_deep);
  Field* found_field(Selection& selection, std::size_t field);
  void set(Selection& selection, Field& field, Value const& value);
  void complete(Selection& selection);
  axsPlace const* add_key(Selection const& selection, std::string const& key);
  bool has_all_fields(Selection const& selection) const;
  void report_duplicate(Selection const& selection, axsPlace first);
  void check_references(Scope& scope);
  void check_references(Scope const& scope, axsIdentityReferences& references);
  axsIdentityTable const* table_at(Key const& key, std::size_t level);
  void gather(Scope& scope);
  void close_scopes();
  void close_scope();
  static void hand_out(std::unique_ptr<axsIdentityReferences> references, Scope& around);
  void hand_up(Key const& key, axsIdentityTable&& table);
  void look_again(Key const& key, std::string_view value);

  Report report;
  std::unordered_map<axsIdentityConstraint const*, std::unique_ptr<Plan>> plans;
  std::unordered_map<axsIdentityConstraint const*, Key> keys_by_constraint;
  std::vector<Key const*> keys;
  std::vector<axsKnownName const*> open;
  std::vector<Scope> scopes;
  std::vector<Plan*> deep_plans; // that have scopes
  std::size_t depth_of_selectors = 0;
  std::vector<Selection> selections;
  std::size_t depth_of_fields = 0;
  std::vector<Plan*> plans_with_deep_fields; // that have selections
  std::vector<Awaited> awaited;
  // What the elements within an open one have as keys that it refers to.
  std::map<LevelAndKey, std::unique_ptr<axsIdentityTable>> inherited;
  bool attributes_wanted = false;
};
