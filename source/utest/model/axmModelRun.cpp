#include "axmModelRun.h"

#include "../axmUtestFile.h"
#include "axmCommentNode.h"
#include "axmModelSource.h"
#include "axmTextNode.h"
#include "axmUtestUtils.h"

#include <utAssert.h>

#include <exception>
#include <utility>

using Action = axmModelAction;
using Verdict = axmModelVerdict;
using Kind = axmModelKind;

namespace
{
apString narrow(std::wstring const& text)
{
  return apString(std::wstring_view(text));
}

apByteArray bytes_of(std::string const& text)
{
  return apByteArray(text.data(), text.size());
}
}

class axmModelRun::Assertions : public utAssertListener
{
public:
  Assertions() : replaced(ut_set_assert_listener(this)) {}
  ~Assertions() override { ut_set_assert_listener(replaced); }
  void assertion_failed(char const*, char const*, int) override { ++count; }

  int count = 0;

private:
  utAssertListener* const replaced;
};

axmModelRun::axmModelRun(axmDocumentFactory& given, int given_period)
  : factory(given),
    period(given_period),
    path(axmUtestUtils::uniquify_filename(APSTRING("./model"), APSTRING("xml"))),
    assertions(std::make_unique<Assertions>())
{
}

axmModelRun::~axmModelRun() = default;

bool axmModelRun::execute(axmModelStep const& step)
{
  if (!found.empty())
    return false;
  if (!is_ready(step) || is_open(step))
    return true;
  ++steps_done;
  return perform_unless_it_throws(step);
}

bool axmModelRun::perform_unless_it_throws(axmModelStep const& step)
{
  try
  {
    return perform(step) && compare_after(step);
  }
  catch (std::exception const& exception)
  {
    return differ({axmModelStep::no_slot, {}}, "the last step", "that nothing is thrown", exception.what());
  }
}

bool axmModelRun::is_ready(axmModelStep const& step) const
{
  for (int const used : {step.a, step.b, step.c})
  {
    if (used == axmModelStep::no_slot)
      continue;
    auto const index = static_cast<std::size_t>(used);
    if (index >= slots.size() || (slots[index].handle == nullptr && slots[index].list == nullptr))
      return false;
  }
  return true;
}

// Whether an attribute has children, and may be given some, the contract does not say.
bool axmModelRun::is_open(axmModelStep const& step) const
{
  if (number(step.a) == axmModel::none || model.node(number(step.a)).kind != Kind::attribute)
    return false;
  switch (step.action)
  {
  case Action::append:
  case Action::insert:
  case Action::replace:
  case Action::remove:
  case Action::first:
  case Action::last:
  case Action::item:
  case Action::children:
    return true;
  default:
    return false;
  }
}

bool axmModelRun::perform(axmModelStep const& step)
{
  switch (step.action)
  {
  case Action::create_document:
    return create_document(step);
  case Action::load:
  case Action::load_from_file:
    return load(step);
  case Action::load_failing:
    return load_failing(step);
  case Action::reload:
  case Action::reload_from_file:
    return reload(step);
  case Action::reload_xml:
    return reload_xml(step);
  case Action::create_element:
    return keep(
      step, document(step.a)->createElement(narrow(step.name)), model.create_element(number(step.a), step.name));
  case Action::create_text:
    return keep(
      step, document(step.a)->createTextNode(narrow(step.text)), model.create_text(number(step.a), step.text));
  case Action::create_comment:
    return keep(
      step, document(step.a)->createComment(narrow(step.text)), model.create_comment(number(step.a), step.text));
  default:
    return perform_on_nodes(step);
  }
}

bool axmModelRun::perform_on_nodes(axmModelStep const& step)
{
  switch (step.action)
  {
  case Action::append:
  case Action::insert:
  case Action::replace:
    return put(step);
  case Action::remove:
    return remove(step);
  case Action::set_text:
    return set_text(step);
  case Action::parent:
  case Action::first:
  case Action::last:
  case Action::next:
  case Action::previous:
  case Action::item:
  case Action::root:
  case Action::owner:
    return go(step);
  case Action::drop:
    slot(step.a) = Slot();
    return true;
  default:
    return perform_on_attributes(step);
  }
}

bool axmModelRun::perform_on_attributes(axmModelStep const& step)
{
  switch (step.action)
  {
  case Action::set_attribute:
  case Action::remove_attribute:
    return set_attribute(step);
  case Action::attribute_node:
  {
    auto const map = handle(step.a)->getAttributes();
    return keep(step, map != nullptr ? map->getNamedItem(narrow(step.name)) : nullptr,
      model.find_attribute(number(step.a), step.name));
  }
  case Action::remove_attribute_node:
    return remove_attribute_node(step);
  case Action::set_attribute_node:
    return set_attribute_node(step);
  default:
    return perform_on_lists(step);
  }
}

bool axmModelRun::perform_on_lists(axmModelStep const& step)
{
  bool const is_new = step.action == Action::children || step.action == Action::by_name;
  return is_new ? make_list(step) : list_step(step);
}

axmModelRun::Slot& axmModelRun::slot(int given)
{
  auto const index = static_cast<std::size_t>(given);
  if (index >= slots.size())
    slots.resize(index + 1);
  return slots[index];
}

axmModelRun::Node axmModelRun::handle(int given) const
{
  return given == axmModelStep::no_slot ? nullptr : slots[static_cast<std::size_t>(given)].handle;
}

int axmModelRun::number(int given) const
{
  return given == axmModelStep::no_slot ? axmModel::none : slots[static_cast<std::size_t>(given)].number;
}

axmModelRun::Document axmModelRun::document(int given) const
{
  return std::dynamic_pointer_cast<axmDocument>(handle(given));
}

axmModelRun::Element axmModelRun::element(int given) const
{
  return std::dynamic_pointer_cast<axmElement>(handle(given));
}

// A slot that holds the node, `no_slot` if none does.
int axmModelRun::handle_of(int wanted) const
{
  for (std::size_t index = 0; index < slots.size(); ++index)
    if (slots[index].number == wanted && slots[index].handle != nullptr)
      return static_cast<int>(index);
  return axmModelStep::no_slot;
}

// What a step gave goes to its slot, if there is to be a node and is one.
bool axmModelRun::keep(axmModelStep const& step, Node const& given, int given_number, bool is_item)
{
  Place const place = {step.slot, {}};
  if (!same(place, "!= nullptr", given_number != axmModel::none, given != nullptr))
    return false;
  if (given == nullptr)
    return true;
  Slot& kept = slot(step.slot);
  kept.number = given_number;
  kept.handle = given;
  kept.is_item = is_item;
  return true;
}

bool axmModelRun::create_document(axmModelStep const& step)
{
  return keep(step, factory.createDocument(narrow(step.name)), model.create_document(step.name));
}

axmModelRun::Document axmModelRun::loaded(std::string const& text, bool from_file)
{
  axmParseError error;
  Document result;
  if (from_file)
  {
    axmUtestFile const removed_at_the_end(path);
    axmUtestUtils::write_data(path, text.c_str());
    result = factory.loadDocument(path, axmLoadOptions(), error);
  }
  else
    result = factory.loadDocument(bytes_of(text), axmLoadOptions(), error);
  if ((result != nullptr) != error.invalid())
    differ({axmModelStep::no_slot, {}}, "error.invalid() after a load",
      result != nullptr ? "true, for it succeeded" : "false, for it failed", error.invalid() ? "true" : "false");
  return result;
}

bool axmModelRun::load(axmModelStep const& step)
{
  axmModelSource const source = axm_model_source(model, step.index);
  Document const result = loaded(source.text, step.action == Action::load_from_file);
  return found.empty() && keep(step, result, source.document);
}

bool axmModelRun::load_failing(axmModelStep const& step)
{
  utString const text = narrow(step.text).to_utf8();
  Document const result = loaded(text.c_str(), false);
  return found.empty() && none({axmModelStep::no_slot, {}}, "the load of what is no document", result);
}

axmModelRun::Document axmModelRun::saved_and_loaded(axmModelStep const& step, bool& is_saved)
{
  axmParseError error;
  if (step.action == Action::reload_from_file)
  {
    axmUtestFile const removed_at_the_end(path);
    is_saved = factory.saveDocument(document(step.a), path);
    return is_saved ? factory.loadDocument(path, axmLoadOptions(), error) : nullptr;
  }
  apByteArray output;
  is_saved = factory.saveDocument(document(step.a), output);
  return is_saved ? factory.loadDocument(output, axmLoadOptions(), error) : nullptr;
}

bool axmModelRun::reload(axmModelStep const& step)
{
  Verdict const verdict = model.may_save(number(step.a));
  bool is_saved = false;
  Document const result = saved_and_loaded(step, is_saved);
  if (verdict == Verdict::free)
    return true;
  Place const place = {step.a, {}};
  if (!same(place, "factory->saveDocument()", verdict == Verdict::done, is_saved))
    return false;
  return !is_saved || keep(step, result, model.reload(number(step.a)));
}

bool axmModelRun::reload_xml(axmModelStep const& step)
{
  Kind const kind = model.node(number(step.a)).kind;
  if ((kind != Kind::document && kind != Kind::element) || model.may_save(number(step.a)) != Verdict::done)
    return true;
  utString const text = handle(step.a)->get_xml().to_utf8();
  Document const result = loaded(text.c_str(), false);
  return found.empty() && keep(step, result, model.reload(number(step.a)));
}

bool axmModelRun::put(axmModelStep const& step)
{
  bool const is_replace = step.action == Action::replace;
  int const child = number(step.b);
  int const other = number(step.c);
  Verdict const verdict =
    is_replace ? model.may_replace(number(step.a), child, other) : model.may_insert(number(step.a), child, other);
  bool const was_attached = child != axmModel::none && model.parent(child) != axmModel::none;
  int const reports_before = assertions->count;
  Node result;
  if (step.action == Action::append)
    result = handle(step.a)->appendChild(handle(step.b));
  else if (is_replace)
    result = handle(step.a)->replaceChild(handle(step.b), handle(step.c));
  else
    result = handle(step.a)->insertBefore(handle(step.b), handle(step.c));

  Place const place = {step.a, {}};
  char const* const question = is_replace                      ? "->replaceChild()"
                               : step.action == Action::append ? "->appendChild()"
                                                               : "->insertBefore()";
  if (verdict != Verdict::free && !same(place, question, verdict == Verdict::done, result != nullptr))
    return false;
  if (result == nullptr)
    return true;
  if (is_replace)
    model.replace(number(step.a), child, other);
  else
    model.insert(number(step.a), child, other);
  if (verdict == Verdict::done && was_attached && assertions->count == reports_before)
    return differ(place, question, "an assertion, for a node that has a parent is moved", "none");
  return one(place, question, is_replace ? *handle(step.c) : *handle(step.b), result);
}

bool axmModelRun::remove(axmModelStep const& step)
{
  Node const result = handle(step.a)->removeChild(handle(step.b));
  Place const place = {step.a, {}};
  bool const is_right = model.may_remove(number(step.a), number(step.b));
  if (!same(place, "->removeChild() != nullptr", is_right, result != nullptr))
    return false;
  if (!is_right)
    return true;
  model.remove(number(step.b));
  return one(place, "->removeChild()", *handle(step.b), result);
}

bool axmModelRun::set_text(axmModelStep const& step)
{
  handle(step.a)->set_text(narrow(step.text));
  model.set_text(number(step.a), step.text);
  return true;
}

bool axmModelRun::set_attribute(axmModelStep const& step)
{
  Element const target = element(step.a);
  bool const is_element = model.node(number(step.a)).kind == Kind::element;
  if (step.action == Action::set_attribute)
  {
    target->setAttribute(narrow(step.name), narrow(step.text));
    if (is_element)
      model.set_attribute(number(step.a), step.name, step.text);
    return true;
  }
  target->removeAttribute(narrow(step.name));
  int const removed = is_element ? model.find_attribute(number(step.a), step.name) : axmModel::none;
  if (removed != axmModel::none)
    model.remove_attribute(removed);
  return true;
}

bool axmModelRun::remove_attribute_node(axmModelStep const& step)
{
  auto const map = handle(step.a)->getAttributes();
  int const removed = model.find_attribute(number(step.a), step.name);
  Node const result = map != nullptr ? map->removeNamedItem(narrow(step.name)) : nullptr;
  if (removed != axmModel::none)
    model.remove_attribute(removed);
  return keep(step, result, removed);
}

bool axmModelRun::set_attribute_node(axmModelStep const& step)
{
  auto const map = handle(step.a)->getAttributes();
  Place const place = {step.a, {}};
  if (!same(place, "->getAttributes() != nullptr", true, map != nullptr))
    return false;
  int const given = number(step.b);
  Verdict const verdict = model.may_set_named_item(number(step.a), given);
  Node const result = map->setNamedItem(handle(step.b));
  if (verdict == Verdict::refused)
    return none(place, "->getAttributes()->setNamedItem()", result);
  if (verdict == Verdict::free)
  {
    // Whether it was taken shows in the map; one that was in it already may be the result or not.
    Node const present = map->getNamedItem(narrow(model.node(given).name));
    if (present != nullptr && *present == *handle(step.b))
      model.set_named_item(number(step.a), given);
    return true;
  }
  return keep(step, result, model.set_named_item(number(step.a), given));
}

bool axmModelRun::go(axmModelStep const& step)
{
  Node const from = handle(step.a);
  int const at = number(step.a);
  std::vector<int> const& children = model.node(at).children;
  auto const child = [&children](std::size_t index)
  { return index < children.size() ? children[index] : axmModel::none; };
  switch (step.action)
  {
  case Action::parent:
    return keep(step, from->getParentNode(), model.parent(at));
  case Action::first:
    return keep(step, from->getFirstChild(), child(0));
  case Action::last:
    return keep(step, from->getLastChild(), child(children.size() - 1));
  case Action::next:
    return keep(step, from->getNextSibling(), model.next(at));
  case Action::previous:
    return keep(step, from->getPreviousSibling(), model.previous(at));
  case Action::root:
    return keep(step, document(step.a)->getDocumentElement(), model.root(at));
  case Action::owner:
    return model.node(at).document == axmModel::unknown ||
           keep(step, from->getOwnerDocument(), model.node(at).document);
  default:
  {
    List const list = from->getChildNodes();
    if (list == nullptr)
      return !model.is_parent(at) || same({step.a, {}}, "->getChildNodes() != nullptr", true, false);
    int const wanted = step.index < 0 ? axmModel::none : child(static_cast<std::size_t>(step.index));
    return keep(step, list->at(step.index), wanted, true);
  }
  }
}

bool axmModelRun::make_list(axmModelStep const& step)
{
  bool const by_name = step.action == Action::by_name;
  List const list =
    by_name ? document(step.a)->getElementsByTagName(narrow(step.name)) : handle(step.a)->getChildNodes();
  bool const is_needed = by_name || model.is_parent(number(step.a));
  if (list == nullptr)
    return same({step.a, {}}, "a list", is_needed, false);
  Slot& kept = slot(step.slot);
  kept.list = list;
  kept.list_of = number(step.a);
  kept.list_name = step.name;
  kept.cursor = -1;
  if (by_name)
    kept.list_found = model.elements_by_name(number(step.a), step.name);
  return true;
}

bool axmModelRun::list_step(axmModelStep const& step)
{
  if (slots[static_cast<std::size_t>(step.a)].list == nullptr)
    return true;
  Slot const used = slots[static_cast<std::size_t>(step.a)];
  Place const place = {step.a, {}};
  if (step.action == Action::list_reset)
  {
    used.list->reset();
    slot(step.a).cursor = -1;
    return same(place, "->invalid() after reset()", true, used.list->invalid());
  }
  std::vector<int> const items = present_items(used);
  int const length = static_cast<int>(items.size());
  int const cursor = used.cursor == length ? 0 : used.cursor + 1;
  slot(step.a).cursor = cursor;
  bool const is_valid = cursor < length;
  if (step.action == Action::list_step)
  {
    bool const moved = ++*used.list;
    return same(place, "->operator++()", is_valid, moved) &&
           same(place, "->invalid()", !is_valid, used.list->invalid());
  }
  Node const result = used.list->next_node();
  return keep(step, result, is_valid ? items[static_cast<std::size_t>(cursor)] : axmModel::none, true);
}
