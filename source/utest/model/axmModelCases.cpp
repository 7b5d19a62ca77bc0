#include "axmModelCases.h"

#include "axmModel.h"
#include "axmModelSource.h"

using Action = axmModelAction;
using Steps = std::vector<axmModelStep>;

namespace
{
constexpr int none = axmModelStep::no_slot;

// What a neighbour is. An instruction cannot be made, so it comes with the document, and there is only one.
struct Kind
{
  Action action;
  wchar_t const* text;
};

Kind const kinds[] = {{Action::create_element, L""}, {Action::create_text, L""}, {Action::create_text, L" "},
  {Action::create_text, L"x"}, {Action::create_comment, L""}, {Action::create_comment, L"c"}, {Action::first, L""}};

// An edit of the two neighbours and a third node: which operation, on which of them.
struct Edit
{
  Action action;
  int b;
  int c;
};

// The slots, in the order of the steps.
enum Slot
{
  document,
  root,
  left,
  right,
  third,
  parent
};

Edit const edits[] = {{Action::remove, left, none}, {Action::remove, right, none}, {Action::append, third, none},
  {Action::append, left, none}, {Action::append, right, none}, {Action::insert, third, left},
  {Action::insert, third, right}, {Action::insert, right, left}, {Action::insert, left, right},
  {Action::insert, left, none}, {Action::replace, third, left}, {Action::replace, third, right},
  {Action::replace, left, right}, {Action::replace, right, left}, {Action::insert, third, root},
  {Action::set_text, none, none}};

// The number of a document that begins with an instruction.
int number_with_instruction()
{
  for (int number = 0;; ++number)
  {
    axmModel model;
    int const made = axm_model_source(model, number).document;
    if (model.node(model.node(made).children.front()).kind == axmModelKind::instruction)
      return number;
  }
}

class Sequence
{
public:
  explicit Sequence(int number)
  {
    add(Action::load).index = number;
    add(Action::root).a = document;
  }

  void add_node(Kind const& kind)
  {
    axmModelStep& step = add(kind.action);
    step.a = document;
    step.name = L"e";
    step.text = kind.text;
  }

  void add_edit(Action action, int of, int b, int c)
  {
    axmModelStep& step = add(action);
    step.a = of;
    step.b = b;
    step.c = c;
    step.text = L"t";
  }

  void add_attribute(wchar_t const* name, wchar_t const* value, Action action = Action::set_attribute)
  {
    add_attribute_of(root, name, value, action);
  }

  void add_attribute_of(int of, wchar_t const* name, wchar_t const* value, Action action = Action::set_attribute)
  {
    axmModelStep& step = add(action);
    step.a = of;
    step.name = name;
    step.text = value;
  }

  void add_text(int of, wchar_t const* text)
  {
    axmModelStep& step = add(Action::set_text);
    step.a = of;
    step.text = text;
  }

  // The slot of the latest step.
  int last() const { return static_cast<int>(steps.size()) - 1; }

  void add_all_copies()
  {
    for (Action const action : {Action::reload, Action::reload_from_file, Action::reload_xml})
      add(action).a = document;
    add(Action::reload_xml).a = root;
  }

  void add_copies(bool is_document)
  {
    if (is_document)
      add(Action::reload).a = document;
    add(Action::reload_xml).a = is_document ? document : parent;
  }

  Steps steps;

private:
  axmModelStep& add(Action action)
  {
    steps.emplace_back();
    steps.back().action = action;
    steps.back().slot = static_cast<int>(steps.size()) - 1;
    return steps.back();
  }
};

// Left and right below a new element or, where they can stand there, on either side of the root.
Steps sequence(int number, Kind const (&nodes)[3], bool is_document, Edit const& edit)
{
  Sequence made(number);
  for (Kind const& kind : nodes)
    made.add_node(kind);
  made.add_node({Action::create_element, L""});
  int const of = is_document ? document : parent;
  made.add_edit(Action::insert, of, left, is_document ? root : none);
  made.add_edit(Action::append, of, right, none);
  made.add_edit(edit.action, of, edit.b, edit.c);
  made.add_copies(is_document);
  return made.steps;
}

int number_of_instructions(Kind const (&nodes)[3])
{
  int number = 0;
  for (Kind const& kind : nodes)
    number += kind.action == Action::first ? 1 : 0;
  return number;
}
}

namespace
{
// The slots of a family: three children of one parent, and one of another.
enum FamilySlot
{
  eldest = 2,
  middle,
  youngest,
  stranger,
  here,
  there
};

int const members[] = {eldest, middle, youngest, stranger};

// An edit of a family: the operation, the parent that it is one of, and the children.
struct FamilyEdit
{
  Action action;
  int of;
  int b;
  int c;
};

// Every one that can be asked for, that of a child and itself left out.
std::vector<FamilyEdit> family_edits()
{
  std::vector<FamilyEdit> found;
  for (int const of : {static_cast<int>(here), static_cast<int>(there)})
    for (int const b : members)
    {
      found.push_back({Action::remove, of, b, none});
      found.push_back({Action::append, of, b, none});
      for (int const c : members)
        if (b != c)
          for (Action const action : {Action::insert, Action::replace})
            found.push_back({action, of, b, c});
    }
  for (int const of : {static_cast<int>(root), static_cast<int>(here), static_cast<int>(eldest)})
    found.push_back({Action::set_text, of, none, none});
  return found;
}

// Gives an element an attribute of a prefix and children, and so an element among them, down to so many levels: what moves
// with it or loses something shows.
void fill(Sequence& made, int element, int levels)
{
  made.add_attribute_of(element, L"xml:k", L"v");
  for (int level = 0; level < levels; ++level)
  {
    bool const is_last = level + 1 == levels;
    made.add_node({is_last ? Action::create_text : Action::create_element, L"x"});
    int const child = made.last();
    made.add_edit(Action::append, element, child, none);
    made.add_node({Action::create_comment, L"c"});
    made.add_edit(Action::append, element, made.last(), none);
    element = child;
  }
}

Steps family(int number, Kind const (&nodes)[4], FamilyEdit const& edit)
{
  Sequence made(number);
  for (Kind const& kind : nodes)
    made.add_node(kind);
  made.add_node({Action::create_element, L""});
  made.add_node({Action::create_element, L""});
  for (int const child : {eldest, middle, youngest})
    made.add_edit(Action::append, here, child, none);
  made.add_edit(Action::append, there, stranger, none);
  made.add_edit(Action::append, root, here, none);
  for (int index = 0; index < 4; ++index)
    if (nodes[index].action == Action::create_element)
      fill(made, members[index], index == 0 ? 4 : 1);
  made.add_edit(edit.action, edit.of, edit.b, edit.c);
  return made.steps;
}

void add_families(std::vector<Steps>& found, int number)
{
  Kind const element = {Action::create_element, L""};
  Kind const text = {Action::create_text, L"x"};
  Kind const comment = {Action::create_comment, L"c"};
  Kind const instruction = {Action::first, L""};
  std::vector<FamilyEdit> const every_edit = family_edits();
  for (Kind const& first : {element, text})
    for (Kind const& second : {element, text, comment, instruction})
      for (Kind const& third : {element, text})
        for (Kind const& other : {element, text})
        {
          Kind const nodes[] = {first, second, third, other};
          for (FamilyEdit const& edit : every_edit)
            found.push_back(family(number, nodes, edit));
        }
}
}

std::vector<Steps> axm_model_neighbours()
{
  int const number = number_with_instruction();
  std::vector<Steps> found;
  for (Kind const& first : kinds)
    for (Kind const& second : kinds)
      for (Kind const& other : kinds)
      {
        Kind const nodes[] = {first, second, other};
        if (number_of_instructions(nodes) > 1)
          continue;
        for (bool const is_document : {false, true})
          for (Edit const& edit : edits)
            found.push_back(sequence(number, nodes, is_document, edit));
      }
  add_families(found, number);
  return found;
}

namespace
{
wchar_t const* const texts[] = {L"", L" ", L"  ", L"\t", L"\n", L"\r", L"\r\n", L"a\rb", L"a\tb\nc", L" a", L"a ",
  L"\na", L"&", L"<", L">", L"\"", L"'", L"\"'", L"&lt;", L"&#65;", L"&amp;amp;", L"&x;", L"%p;", L"]]>", L"]]", L"]",
  L"<a>", L"</r>", L"<![CDATA[a]]>", L"<!--a-->", L"--", L"-", L"a-", L"-a", L"->", L"?>", L"?", L"<?a?>", L"/>", L"=",
  L"\x01", L"\x08", L"\x0B", L"\x1F", L"\x7F", L"\u0080", L"\u0085", L"\u00A0", L"\u2028", L"\u3000", L"\uFEFF",
  L"\uFEFFa", L"\uFFFD", L"\uFFFE", L"\uFFFF", L"\uD7FF", L"\uE000", L"\U00010000", L"\U0010FFFD", L"\U0010FFFF",
  L"e\u0301", L"\u00E9", L"\u212B", L"\u0130", L"\u00DF", L"\u0661", L"%20", L"%s", L"\\n", L"a,b", L"0"};

// What is there before the text is put in its place: in the slots after the root. The attribute's slot is its node.
enum TextSlot
{
  instruction = 2,
  text,
  comment,
  value,
  attribute
};

using Put = void (*)(Sequence& sequence, wchar_t const* text);

Put const ways[] = {
  [](Sequence& made, wchar_t const* given)
  {
    made.add_node({Action::create_text, given});
    made.add_edit(Action::append, root, made.last(), none);
  },
  [](Sequence& made, wchar_t const* given)
  {
    made.add_node({Action::create_comment, given});
    made.add_edit(Action::append, root, made.last(), none);
  },
  [](Sequence& made, wchar_t const* given) { made.add_attribute(L"l", given); },
  [](Sequence& made, wchar_t const* given) { made.add_attribute(L"k", given); },
  [](Sequence& made, wchar_t const* given)
  {
    made.add_edit(Action::append, root, text, none);
    made.add_text(text, given);
  },
  [](Sequence& made, wchar_t const* given)
  {
    made.add_edit(Action::append, root, comment, none);
    made.add_text(comment, given);
  },
  [](Sequence& made, wchar_t const* given) { made.add_text(root, given); },
  [](Sequence& made, wchar_t const* given) { made.add_text(attribute, given); },
  [](Sequence& made, wchar_t const* given) { made.add_text(instruction, given); },
  [](Sequence& made, wchar_t const* given) { made.add_text(document, given); },
};

Steps sequence_of_text(int number, Put put, wchar_t const* given)
{
  Sequence made(number);
  made.add_node({Action::first, L""});
  made.add_node({Action::create_text, L"x"});
  made.add_node({Action::create_comment, L"x"});
  made.add_attribute(L"k", L"x");
  made.add_attribute(L"k", L"", Action::attribute_node);
  put(made, given);
  made.add_all_copies();
  return made.steps;
}
}

std::vector<Steps> axm_model_texts()
{
  int const number = number_with_instruction();
  std::vector<Steps> found;
  for (Put const put : ways)
    for (wchar_t const* const given : texts)
      found.push_back(sequence_of_text(number, put, given));
  return found;
}
