#include "axmModel.h"

#include "axmModelText.h"

#include <algorithm>
#include <utility>

using Verdict = axmModelVerdict;
using Kind = axmModelKind;

int axmModel::create_document(std::wstring const& root_name)
{
  if (!axmModelText::is_name(root_name))
    return none;
  int const document = create_bare_document();
  insert(document, create_element(document, root_name), none);
  return document;
}

int axmModel::create_bare_document()
{
  int const document = make(Kind::document, none, L"", L"");
  at(document).document = document;
  return document;
}

int axmModel::create_element(int document, std::wstring const& name)
{
  return axmModelText::is_name(name) ? make(Kind::element, document, name, L"") : none;
}

int axmModel::create_text(int document, std::wstring const& data)
{
  return make(Kind::text, document, L"", data);
}

int axmModel::create_comment(int document, std::wstring const& data)
{
  return make(Kind::comment, document, L"", data);
}

int axmModel::create_instruction(int document, std::wstring const& target, std::wstring const& content)
{
  return make(Kind::instruction, document, target, content);
}

int axmModel::make(Kind kind, int document, std::wstring const& name, std::wstring const& value)
{
  nodes.push_back({kind, name, value, document, none, {}, {}});
  return size() - 1;
}

bool axmModel::is_parent(int number) const
{
  return node(number).kind == Kind::element || node(number).kind == Kind::document;
}

bool axmModel::is_child(int number, int of_parent) const
{
  return number != none && parent(number) == of_parent;
}

// Only elements and documents hold children. An element holds all kinds but documents and attributes; a document holds
// comments, instructions and one element. Nothing goes below itself.
Verdict axmModel::may_stand(int parent_number, int child, int replaced) const
{
  if (child == none || !is_parent(parent_number))
    return Verdict::refused;
  axmModelNode const& holding = node(parent_number);
  axmModelNode const& given = node(child);
  if (given.kind == Kind::document || given.kind == Kind::attribute || is_below(parent_number, child))
    return Verdict::refused;
  if (holding.kind == Kind::document)
  {
    int const present = root(parent_number);
    bool const would_be_second = present != none && present != replaced && present != child;
    if (given.kind == Kind::text || (given.kind == Kind::element && would_be_second))
      return Verdict::refused;
  }
  bool const is_own = given.document == holding.document && given.document != unknown;
  return is_own ? Verdict::done : Verdict::free;
}

Verdict axmModel::may_insert(int parent_number, int child, int before) const
{
  if (before != none && !is_child(before, parent_number))
    return Verdict::refused;
  Verdict const verdict = may_stand(parent_number, child, none);
  // What stands before itself already is there.
  return verdict == Verdict::done && child == before ? Verdict::free : verdict;
}

Verdict axmModel::may_replace(int parent_number, int child, int old) const
{
  if (!is_child(old, parent_number))
    return Verdict::refused;
  Verdict const verdict = may_stand(parent_number, child, old);
  return verdict == Verdict::done && child == old ? Verdict::free : verdict;
}

bool axmModel::may_remove(int parent_number, int child) const
{
  return is_child(child, parent_number);
}

void axmModel::insert(int parent_number, int child, int before)
{
  if (child == before)
    return;
  detach(child);
  if (node(child).document != node(parent_number).document)
    disown(child);
  std::vector<int>& children = at(parent_number).children;
  auto const place = before == none ? children.end() : std::find(children.begin(), children.end(), before);
  children.insert(place, child);
  at(child).holder = parent_number;
}

void axmModel::replace(int parent_number, int child, int old)
{
  if (child == old)
    return;
  insert(parent_number, child, old);
  remove(old);
}

void axmModel::remove(int child)
{
  detach(child);
}

int axmModel::set_text(int number, std::wstring const& text)
{
  if (node(number).kind == Kind::document)
    return none;
  if (node(number).kind != Kind::element)
  {
    at(number).value = text;
    return none;
  }
  while (!node(number).children.empty())
    remove(node(number).children.back());
  int const made = create_text(node(number).document, text);
  insert(number, made, none);
  return made;
}

int axmModel::set_attribute(int element, std::wstring const& name, std::wstring const& value)
{
  int const present = find_attribute(element, name);
  if (present != none)
  {
    at(present).value = value;
    return present;
  }
  int const made = make(Kind::attribute, node(element).document, name, value);
  at(made).holder = element;
  at(element).attributes.push_back(made);
  return made;
}

int axmModel::find_attribute(int element, std::wstring const& name) const
{
  for (int const attribute : node(element).attributes)
    if (node(attribute).name == name)
      return attribute;
  return none;
}

void axmModel::remove_attribute(int attribute)
{
  detach(attribute);
}

// An attribute that is in an element, or of another document, may be taken or refused.
Verdict axmModel::may_set_named_item(int element, int given) const
{
  if (given == none || node(given).kind != Kind::attribute)
    return Verdict::refused;
  axmModelNode const& attribute = node(given);
  bool const is_own = attribute.document == node(element).document && attribute.document != unknown;
  return is_own && attribute.holder == none ? Verdict::done : Verdict::free;
}

int axmModel::set_named_item(int element, int attribute)
{
  int const present = find_attribute(element, node(attribute).name);
  if (present == attribute)
    return none;
  if (present != none)
    detach(present);
  detach(attribute);
  if (node(attribute).document != node(element).document)
    at(attribute).document = unknown;
  at(attribute).holder = element;
  at(element).attributes.push_back(attribute);
  return present;
}

void axmModel::detach(int number)
{
  int const holder = node(number).holder;
  if (holder == none)
    return;
  bool const is_attribute = node(number).kind == Kind::attribute;
  std::vector<int>& held = is_attribute ? at(holder).attributes : at(holder).children;
  held.erase(std::find(held.begin(), held.end(), number));
  at(number).holder = none;
}

void axmModel::disown(int top)
{
  for (int const below : subtree(top))
  {
    at(below).document = unknown;
    for (int const attribute : node(below).attributes)
      at(attribute).document = unknown;
  }
}

int axmModel::parent(int number) const
{
  return node(number).kind == Kind::attribute ? none : node(number).holder;
}

int axmModel::index(int child) const
{
  std::vector<int> const& children = node(parent(child)).children;
  return static_cast<int>(std::find(children.begin(), children.end(), child) - children.begin());
}

int axmModel::next(int number) const
{
  int const holder = parent(number);
  if (holder == none || node(holder).children.back() == number)
    return none;
  return node(holder).children[static_cast<std::size_t>(index(number)) + 1];
}

int axmModel::previous(int number) const
{
  int const holder = parent(number);
  if (holder == none || node(holder).children.front() == number)
    return none;
  return node(holder).children[static_cast<std::size_t>(index(number)) - 1];
}

int axmModel::root(int document) const
{
  for (int const child : node(document).children)
    if (node(child).kind == Kind::element)
      return child;
  return none;
}

bool axmModel::is_below(int number, int top) const
{
  for (int above = number; above != none; above = parent(above))
    if (above == top)
      return true;
  return false;
}

std::vector<int> axmModel::subtree(int top) const
{
  std::vector<int> found;
  std::vector<int> waiting = {top};
  while (!waiting.empty())
  {
    int const number = waiting.back();
    waiting.pop_back();
    found.push_back(number);
    std::vector<int> const& children = node(number).children;
    waiting.insert(waiting.end(), children.rbegin(), children.rend());
  }
  return found;
}

std::vector<int> axmModel::elements_by_name(int document, std::wstring const& name) const
{
  std::vector<int> found;
  for (int const number : subtree(document))
    if (node(number).kind == Kind::element && node(number).name == name)
      found.push_back(number);
  return found;
}

std::wstring axmModel::text(int number) const
{
  if (!is_parent(number))
    return node(number).value;
  std::wstring result;
  for (int const below : subtree(number))
    if (node(below).kind == Kind::text)
      result += node(below).value;
  return result;
}

std::wstring axmModel::node_name(int number) const
{
  switch (node(number).kind)
  {
  case Kind::document:
    return L"#document";
  case Kind::text:
    return L"#text";
  case Kind::comment:
    return L"#comment";
  default:
    return node(number).name;
  }
}

// A save succeeds when what it writes can be loaded again as what it was. Where that hangs on prefixes, it may do either.
Verdict axmModel::may_save(int top) const
{
  if (node(top).kind == Kind::document && root(top) == none)
    return Verdict::refused;
  Verdict verdict = Verdict::done;
  for (int const number : subtree(top))
  {
    std::vector<int> written = node(number).attributes;
    written.push_back(number);
    for (int const one : written)
    {
      Verdict const of_this = may_write(one, top);
      if (of_this == Verdict::refused)
        return of_this;
      if (of_this == Verdict::free)
        verdict = of_this;
    }
  }
  return verdict;
}

// What stands in markup as it is: a return comes back as a line feed, and white space after a target is no content.
bool axmModel::may_write_markup(axmModelNode const& written) const
{
  if (written.value.find(L'\r') != std::wstring::npos)
    return false;
  if (written.kind == Kind::comment)
    return (written.value + L'-').find(L"--") == std::wstring::npos;
  bool const begins_later = !written.value.empty() && axmModelText::is_white(written.value.substr(0, 1));
  return !begins_later && written.value.find(L"?>") == std::wstring::npos;
}

Verdict axmModel::may_write(int number, int top) const
{
  axmModelNode const& written = node(number);
  bool const is_markup = written.kind == Kind::comment || written.kind == Kind::instruction;
  if (!axmModelText::is_storable(written.value) || (is_markup && !may_write_markup(written)))
    return Verdict::refused;
  return is_in_namespace(number, top) ? Verdict::done : Verdict::free;
}

// Whether the prefix of an element's or attribute's name, if it has one, is declared between that and `top`.
bool axmModel::is_in_namespace(int number, int top) const
{
  std::wstring const& name = node(number).name;
  std::size_t const colon = name.find(L':');
  bool const is_element = node(number).kind == Kind::element;
  if (colon == std::wstring::npos || name.substr(0, colon) == L"xml")
    return true;
  if (name.substr(0, colon) == L"xmlns")
    return !node(number).value.empty();
  for (int above = is_element ? number : node(number).holder; above != none;
       above = above == top ? none : parent(above))
    if (int const declared = find_attribute(above, L"xmlns:" + name.substr(0, colon)); declared != none)
      return !node(declared).value.empty();
  return false;
}

int axmModel::reload(int top)
{
  int const copy = create_bare_document();
  // Where to copy from and to; the children of each before those of the next one.
  std::vector<std::pair<int, int>> waiting = {
    {top, node(top).kind == Kind::document ? copy : add_copy(top, copy, copy)}};
  while (!waiting.empty())
  {
    auto const [from, to] = waiting.back();
    waiting.pop_back();
    copy_children(from, to, copy);
    std::vector<int> elements;
    for (int const child : node(from).children)
      if (node(child).kind == Kind::element)
        elements.push_back(child);
    std::size_t number = 0;
    for (int const child : node(to).children)
      if (node(child).kind == Kind::element)
        waiting.emplace_back(elements[number++], child);
  }
  return copy;
}

// Texts beside each other come back as one; what is white space only does not, but for a single space.
void axmModel::copy_children(int from, int to, int document)
{
  std::wstring text;
  std::vector<int> const children = node(from).children;
  for (int const child : children)
  {
    axmModelNode const original = node(child);
    if (original.kind == Kind::text)
    {
      text += original.value;
      continue;
    }
    add_text(to, document, text);
    text.clear();
    add_copy(child, to, document);
  }
  add_text(to, document, text);
}

// The node with its attributes, without what it holds.
int axmModel::add_copy(int number, int to, int document)
{
  axmModelNode const original = node(number);
  int const made = make(original.kind, document, original.name, original.value);
  insert(to, made, none);
  for (int const attribute : original.attributes)
    set_attribute(made, std::wstring(node(attribute).name), std::wstring(node(attribute).value));
  return made;
}

void axmModel::add_text(int to, int document, std::wstring const& text)
{
  if (!axmModelText::is_white(text) || text == L" ")
    insert(to, create_text(document, text), none);
}
