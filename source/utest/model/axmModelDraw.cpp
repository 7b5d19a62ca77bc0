#include "axmModelDraw.h"

#include <iterator>

using Action = axmModelAction;
using Kind = axmModelKind;
using Topic = axmModelTopic;

namespace
{
wchar_t const* const names[] = {
  L"a", L"b", L"c", L"a", L"b", L"A", L"x.y-z_1", L"\u0444", L"\u00E4b", L"n:a", L"\U00010437"};
wchar_t const* const bad_names[] = {
  L"", L"1a", L"a b", L"-a", L".a", L"a<", L"a&b", L"a/b", L"\u00D7", L" a", L"a ", L"a\n", L"a\u2028", L"\"a"};
wchar_t const* const attribute_names[] = {L"k", L"l", L"K", L"id", L"k", L"\u0444", L"name", L"xml:lang", L"n:k"};
wchar_t const* const texts[] = {L"", L"", L"", L" ", L"x", L"y", L"  ", L"\n", L"\t", L"&<>\"'", L"]]>", L"a\r\nb",
  L"\r", L"\U00010437", L"\u00A0", L"\u2003", L"\uFFFD", L"\u00E9\u0444\u20AC", L"&lt;&amp;&#65;", L" x ", L"0",
  L"\u0085", L"--", L"a-", L"true", L"\x01", L"\uFFFE", L"\u3000"};
wchar_t const* const comment_texts[] = {
  L"", L" ", L"remark", L"&<>", L"--", L"a-", L"a - b", L"\u0444", L"]]>", L"\x02", L"a\rb"};
wchar_t const* const contents[] = {L"", L"content", L"x", L" x", L"x ", L"?", L"?>", L"k='v'", L"\u0444", L"\x02"};
wchar_t const* const failing[] = {L"", L"text", L"<a>", L"<a></b>", L"<a b='1' b='2'/>", L"<a/><b/>", L"<a>&x;</a>",
  L"<a b='<'/>", L"<a><!-- -- --></a>", L"<a\x01/>", L"<a>]]></a>", L"<?xml version='1.0'?>"};

struct Weight
{
  Action action;
  // For each topic but the last one, which takes all of them at once.
  int weights[4];
};

Weight const table[] = {
  {Action::create_document, {1, 1, 1, 2}},
  {Action::load, {1, 1, 1, 8}},
  {Action::load_from_file, {0, 0, 0, 2}},
  {Action::load_failing, {0, 0, 0, 3}},
  {Action::reload, {0, 1, 0, 8}},
  {Action::reload_from_file, {0, 0, 0, 2}},
  {Action::reload_xml, {0, 1, 0, 4}},
  {Action::create_element, {9, 2, 6, 6}},
  {Action::create_text, {5, 0, 2, 5}},
  {Action::create_comment, {3, 0, 1, 3}},
  {Action::append, {14, 2, 8, 12}},
  {Action::insert, {14, 0, 6, 4}},
  {Action::replace, {10, 0, 4, 3}},
  {Action::remove, {8, 1, 5, 3}},
  {Action::set_text, {4, 2, 2, 6}},
  {Action::set_attribute, {1, 18, 0, 10}},
  {Action::remove_attribute, {0, 6, 0, 2}},
  {Action::attribute_node, {0, 8, 0, 1}},
  {Action::remove_attribute_node, {0, 7, 0, 0}},
  {Action::set_attribute_node, {1, 10, 0, 1}},
  {Action::parent, {3, 0, 2, 1}},
  {Action::first, {4, 1, 3, 4}},
  {Action::last, {3, 0, 2, 2}},
  {Action::next, {4, 0, 2, 4}},
  {Action::previous, {3, 0, 2, 1}},
  {Action::item, {4, 1, 4, 4}},
  {Action::root, {2, 3, 1, 4}},
  {Action::owner, {1, 1, 1, 1}},
  {Action::children, {1, 0, 10, 1}},
  {Action::by_name, {0, 0, 5, 1}},
  {Action::list_step, {0, 0, 8, 0}},
  {Action::list_reset, {0, 0, 5, 0}},
  {Action::list_next, {0, 0, 12, 1}},
  {Action::drop, {3, 2, 3, 2}},
};

int weight_of(Weight const& row, Topic topic)
{
  if (topic != Topic::everything)
    return row.weights[static_cast<int>(topic)];
  int sum = 0;
  for (int const weight : row.weights)
    sum += weight;
  return sum;
}
}

axmModelDraw::axmModelDraw(Topic given, std::uint64_t seed) : axmModelDraw(given, axmModelRandom(seed)) {}

axmModelDraw::axmModelDraw(Topic given, axmModelRandom const& numbers)
  : topic(given),
    random(numbers),
    steps(10 + random.below(50))
{
}

template <class Wanted>
int axmModelDraw::choose(axmModelRun const& run, Wanted wanted)
{
  Slots const& slots = run.all_slots();
  std::vector<int> found;
  for (std::size_t index = 0; index < slots.size(); ++index)
    if (wanted(slots[index]))
      found.push_back(static_cast<int>(index));
  return found.empty() ? axmModelStep::no_slot : random.one_of(found);
}

int axmModelDraw::any_node(axmModelRun const& run)
{
  return choose(run, [](axmModelRun::Slot const& slot) { return slot.handle != nullptr; });
}

// The node after or before the one in `slot`, if any slot holds it.
int axmModelDraw::neighbour_of(axmModelRun const& run, int slot)
{
  axmModel const& model = run.state();
  int const number = run.all_slots()[static_cast<std::size_t>(slot)].number;
  int const wanted = random.once_in(2) ? model.next(number) : model.previous(number);
  return choose(
    run, [wanted](axmModelRun::Slot const& other) { return other.handle != nullptr && other.number == wanted; });
}

int axmModelDraw::any_list(axmModelRun const& run)
{
  return choose(run, [](axmModelRun::Slot const& slot) { return slot.list != nullptr; });
}

int axmModelDraw::node_of(axmModelRun const& run, Kind kind)
{
  axmModel const& model = run.state();
  return choose(run,
    [&](axmModelRun::Slot const& slot) {
      return slot.handle != nullptr && model.node(slot.number).kind == kind && (kind == Kind::element || !slot.is_item);
    });
}

int axmModelDraw::mostly(axmModelRun const& run, Kind kind)
{
  int const found = random.once_in(8) ? axmModelStep::no_slot : node_of(run, kind);
  return found != axmModelStep::no_slot ? found : any_node(run);
}

// A child of what is in `slot`, if any slot holds one.
int axmModelDraw::child_of(axmModelRun const& run, int slot)
{
  if (slot == axmModelStep::no_slot)
    return slot;
  int const parent = run.all_slots()[static_cast<std::size_t>(slot)].number;
  axmModel const& model = run.state();
  return choose(run,
    [&](axmModelRun::Slot const& other) { return other.handle != nullptr && model.parent(other.number) == parent; });
}

Action axmModelDraw::action()
{
  int sum = 0;
  for (Weight const& row : table)
    sum += weight_of(row, topic);
  int chosen = random.below(sum);
  for (Weight const& row : table)
  {
    chosen -= weight_of(row, topic);
    if (chosen < 0)
      return row.action;
  }
  return Action::append;
}

axmModelStep axmModelDraw::next(axmModelRun const& run)
{
  axmModelStep step;
  step.slot = made++;
  bool const has_document = node_of(run, Kind::document) != axmModelStep::no_slot;
  step.action = has_document ? action() : (random.once_in(3) ? Action::create_document : Action::load);
  step.index = random.below(1000000);
  step.name = random.one_of(names);
  if (has_document && may_add_last(run))
    add_last(step, run);
  else
    fill(step, run);
  bool const is_new = step.action == Action::create_element || step.action == Action::create_text ||
                      step.action == Action::create_comment;
  last_made = is_new ? step.slot : axmModelStep::no_slot;
  return step;
}

// Most of what is made gets into a tree, so that trees grow.
bool axmModelDraw::may_add_last(axmModelRun const& run)
{
  auto const made_last = static_cast<std::size_t>(last_made);
  return last_made != axmModelStep::no_slot && made_last < run.all_slots().size() &&
         run.all_slots()[made_last].handle != nullptr && !random.once_in(4);
}

void axmModelDraw::add_last(axmModelStep& step, axmModelRun const& run)
{
  step.a = mostly(run, Kind::element);
  step.b = last_made;
  Action const ways[] = {Action::append, Action::append, Action::insert, Action::insert, Action::replace};
  step.action = random.one_of(ways);
  if (step.action != Action::append)
    step.c = child_of(run, step.a);
}

void axmModelDraw::fill(axmModelStep& step, axmModelRun const& run)
{
  switch (step.action)
  {
  case Action::create_document:
    if (random.once_in(12))
      step.name = random.one_of(bad_names);
    return;
  case Action::load:
  case Action::load_from_file:
    return;
  case Action::load_failing:
    step.text = random.one_of(failing);
    return;
  case Action::create_element:
    if (random.once_in(12))
      step.name = random.one_of(bad_names);
    step.a = node_of(run, Kind::document);
    return;
  case Action::create_text:
    step.a = node_of(run, Kind::document);
    step.text = random.one_of(texts);
    return;
  case Action::create_comment:
    step.a = node_of(run, Kind::document);
    step.text = random.one_of(comment_texts);
    return;
  case Action::reload:
  case Action::reload_from_file:
  case Action::root:
    step.a = node_of(run, Kind::document);
    return;
  case Action::reload_xml:
    step.a = random.once_in(2) ? node_of(run, Kind::document) : mostly(run, Kind::element);
    return;
  case Action::by_name:
    step.a = node_of(run, Kind::document);
    return;
  case Action::append:
  case Action::insert:
  case Action::replace:
  case Action::remove:
    fill_put(step, run);
    return;
  case Action::set_text:
    step.a = random.once_in(3) ? any_node(run) : node_of(run, Kind::element);
    step.a = step.a == axmModelStep::no_slot ? any_node(run) : step.a;
    step.text = text(run, step.a);
    return;
  case Action::set_attribute:
  case Action::remove_attribute:
  case Action::attribute_node:
  case Action::remove_attribute_node:
  case Action::set_attribute_node:
    step.a = node_of(run, Kind::element);
    step.b = random.once_in(8) ? any_node(run) : node_of(run, Kind::attribute);
    step.name = random.one_of(attribute_names);
    step.text = random.once_in(2) ? L"v" : random.one_of(texts);
    if (step.a == axmModelStep::no_slot)
      step.action = Action::load;
    if (step.action != Action::set_attribute_node)
      step.b = axmModelStep::no_slot;
    return;
  case Action::list_step:
  case Action::list_reset:
  case Action::list_next:
    step.a = any_list(run);
    if (step.a != axmModelStep::no_slot)
      return;
    step.action = Action::children;
    step.a = mostly(run, Kind::element);
    step.name.clear();
    return;
  case Action::children:
    step.a = mostly(run, Kind::element);
    step.name.clear();
    return;
  case Action::item:
    step.a = mostly(run, Kind::element);
    step.index = random.below(6) - 1;
    return;
  case Action::drop:
    step.a = random.once_in(3) && any_list(run) != axmModelStep::no_slot ? any_list(run) : any_node(run);
    return;
  default:
    step.a = any_node(run);
    return;
  }
}

void axmModelDraw::fill_put(axmModelStep& step, axmModelRun const& run)
{
  step.a = random.once_in(6) ? node_of(run, Kind::document) : mostly(run, Kind::element);
  // What happens among the children of one node is where most can go wrong; first they are to be in slots.
  axmModelNode const& parent = run.state().node(run.all_slots()[static_cast<std::size_t>(step.a)].number);
  bool const has_no_slots = !parent.children.empty() && child_of(run, step.a) == axmModelStep::no_slot;
  if (has_no_slots || random.once_in(10))
  {
    step.action = Action::item;
    step.index = random.below(4);
    return;
  }
  bool const is_of_child = random.below(10) < (step.action == Action::remove ? 8 : 4);
  step.b = is_of_child ? child_of(run, step.a) : any_node(run);
  if (random.once_in(4))
    step.b = child_of(run, step.b);
  bool const has_other = step.action == Action::replace || (step.action == Action::insert && !random.once_in(5));
  if (has_other)
    step.c = random.once_in(6) ? any_node(run) : child_of(run, step.a);
  if (step.c != axmModelStep::no_slot && random.once_in(4))
    step.b = neighbour_of(run, step.c);
  if (random.once_in(25))
    step.b = axmModelStep::no_slot;
  // To replace a node by itself means nothing.
  auto const number = [&run](int slot)
  { return slot == axmModelStep::no_slot ? axmModel::none : run.all_slots()[static_cast<std::size_t>(slot)].number; };
  if (step.action == Action::replace && number(step.b) == number(step.c))
    step.action = Action::append;
  if (step.action == Action::append || step.action == Action::remove)
    step.c = axmModelStep::no_slot;
}

std::wstring axmModelDraw::text(axmModelRun const& run, int slot)
{
  Kind const kind = run.state().node(run.all_slots()[static_cast<std::size_t>(slot)].number).kind;
  if (kind == Kind::comment)
    return random.one_of(comment_texts);
  return kind == Kind::instruction ? random.one_of(contents) : random.one_of(texts);
}
