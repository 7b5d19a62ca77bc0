#include "axmModelSource.h"

#include "axmModelRandom.h"
#include "axmModelText.h"

#include <apString.h>

#include <cwchar>
#include <utility>
#include <vector>

namespace
{
using Kind = axmModelKind;

wchar_t const* const names[] = {
  L"a", L"b", L"c", L"A", L"long-name_1.x", L"\u00E4", L"\u0444", L"b", L"a", L"a", L"b", L"n:a"};
wchar_t const* const attribute_names[] = {L"k", L"K", L"id", L"a", L"\u0444", L"xml:lang", L"n:k"};
wchar_t const* const values[] = {L"", L" ", L"v", L"&<>\"'", L"a\tb\nc\rd", L"\u0444\u20AC", L"\U00010437", L"  x  ",
  L"0", L"]]>", L"'", L"\"", L"\u00A0"};
wchar_t const* const texts[] = {L"x", L" ", L" x ", L"\n x\n", L"one & two", L"<", L"]]>", L"\u00A0", L"\u2003",
  L"\U00010437x", L"a\rb", L"\u0444", L"\t.", L"0", L"&lt;&amp;&#65;", L"\u3000", L"\u0085"};
wchar_t const* const targets[] = {L"target", L"Target", L"x-y.1", L"\u0444", L"xml-stylesheet"};
wchar_t const* const contents[] = {
  L"", L"content=\"1\" <&", L"x", L"k=\"v\" ", L"? >", L"a\nb\t", L"\u0444\U00010437", L"]]>", L"--"};
wchar_t const* const comments[] = {L"", L" ", L"remark", L" & < > ]]> ", L"a - b", L"\u0444\n", L"?>"};

class Maker
{
public:
  Maker(axmModel& given_model, axmModelRandom& given_random) : model(given_model), random(given_random) {}

  int document()
  {
    int const made = model.create_bare_document();
    add_others(made, made);
    has_prefix = random.once_in(3);
    int const root = element(made);
    if (has_prefix)
      model.set_attribute(root, L"xmlns:n", L"urn:n");
    model.insert(made, root, axmModel::none);
    add_others(made, made);
    fill(made, root);
    return made;
  }

private:
  void add_others(int document, int to)
  {
    while (random.once_in(6))
      model.insert(to, other(document), axmModel::none);
  }

  int other(int document)
  {
    if (random.once_in(3))
      return model.create_instruction(document, random.one_of(targets), random.one_of(contents));
    return model.create_comment(document, random.one_of(comments));
  }

  int element(int document)
  {
    int const made = model.create_element(document, name_of(names));
    while (random.once_in(2))
      model.set_attribute(made, name_of(attribute_names), random.one_of(values));
    return made;
  }

  // With a prefix only where the root declares it.
  template <class Names>
  std::wstring name_of(Names const& list)
  {
    std::wstring const name = random.one_of(list);
    return has_prefix || name.substr(0, 2) != L"n:" ? name : name.substr(2);
  }

  void fill(int document, int root)
  {
    std::vector<int> waiting = {root};
    int left = random.below(12);
    while (!waiting.empty() && left > 0)
    {
      int const parent = waiting.back();
      waiting.pop_back();
      for (int count = random.below(5); count > 0 && left > 0; --count, --left)
        add_child(document, parent, waiting);
    }
  }

  void add_child(int document, int parent, std::vector<int>& waiting)
  {
    bool const after_text =
      !model.node(parent).children.empty() && model.node(model.node(parent).children.back()).kind == Kind::text;
    int const chosen = random.below(10);
    if (chosen < 4 && !after_text)
      model.insert(parent, model.create_text(document, random.one_of(texts)), axmModel::none);
    else if (chosen < 8)
    {
      waiting.push_back(element(document));
      model.insert(parent, waiting.back(), axmModel::none);
    }
    else
      model.insert(parent, other(document), axmModel::none);
  }

  axmModel& model;
  axmModelRandom& random;
  // Whether the root declares the prefix n.
  bool has_prefix = false;
};

class Writer
{
public:
  Writer(axmModel const& given_model, int number) : model(given_model), random(static_cast<std::uint64_t>(number)) {}

  std::wstring written(int document)
  {
    if (random.once_in(2))
      out += random.once_in(2) ? L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>" : L"<?xml version='1.0'?>\n";
    // What is to be written next: a node, or the end of an element that is open.
    std::vector<std::pair<int, bool>> waiting;
    push_children(document, waiting);
    while (!waiting.empty())
    {
      auto const [number, is_end] = waiting.back();
      waiting.pop_back();
      if (is_end)
        end(number);
      else
        begin(number, waiting);
    }
    if (random.once_in(3))
      out += L"\n";
    return out;
  }

private:
  void push_children(int number, std::vector<std::pair<int, bool>>& waiting) const
  {
    std::vector<int> const& children = model.node(number).children;
    for (auto child = children.rbegin(); child != children.rend(); ++child)
      waiting.emplace_back(*child, false);
  }

  void begin(int number, std::vector<std::pair<int, bool>>& waiting)
  {
    axmModelNode const& node = model.node(number);
    if (node.kind == Kind::text)
    {
      escape(node.value, 0);
      return;
    }
    white(number);
    if (node.kind == Kind::comment)
      out += L"<!--" + node.value + L"-->";
    else if (node.kind == Kind::instruction)
      out += L"<?" + node.name + (node.value.empty() ? L"" : L" " + node.value) + L"?>";
    else
      begin_element(number, waiting);
  }

  void begin_element(int number, std::vector<std::pair<int, bool>>& waiting)
  {
    axmModelNode const& node = model.node(number);
    out += L"<" + node.name;
    for (int const attribute : node.attributes)
    {
      wchar_t const quote = random.once_in(2) ? L'"' : L'\'';
      out += random.once_in(4) ? L"\n " : L" ";
      out += model.node(attribute).name + (random.once_in(5) ? L" = " : L"=") + quote;
      escape(model.node(attribute).value, quote);
      out += quote;
    }
    if (random.once_in(4))
      out += L' ';
    if (node.children.empty() && !random.once_in(3))
    {
      out += L"/>";
      return;
    }
    out += L'>';
    waiting.emplace_back(number, true);
    push_children(number, waiting);
  }

  void end(int number)
  {
    std::vector<int> const& children = model.node(number).children;
    if (!children.empty() && model.node(children.back()).kind != Kind::text)
      add_white();
    out += L"</" + model.node(number).name + (random.once_in(6) ? L" >" : L">");
  }

  // White space that is dropped, where no text stands beside it.
  void white(int number)
  {
    int const before = model.previous(number);
    if (before == axmModel::none || model.node(before).kind != Kind::text)
      add_white();
  }

  void add_white()
  {
    wchar_t const* const whites[] = {L"", L"", L"\n", L"  ", L"\r\n  ", L"\t", L" \n "};
    out += random.one_of(whites);
  }

  void escape(std::wstring const& text, wchar_t quote)
  {
    for (std::size_t at = 0; at < text.size();)
    {
      std::size_t const start = at;
      char32_t const c = axmModelText::next_character(text, at);
      bool const is_line_end = c == U'\r' || ((c == U'\n' || c == U'\t') && quote != 0);
      bool const must = is_line_end || c == U'&' || c == U'<' || c == U'>' || c == static_cast<char32_t>(quote);
      if (must || random.once_in(12))
        reference(c);
      else
        out += text.substr(start, at - start);
    }
  }

  void reference(char32_t c)
  {
    std::pair<char32_t, wchar_t const*> const named[] = {
      {U'&', L"&amp;"}, {U'<', L"&lt;"}, {U'>', L"&gt;"}, {U'"', L"&quot;"}, {U'\'', L"&apos;"}};
    for (auto const& [character, entity] : named)
      if (character == c && !random.once_in(4))
      {
        out += entity;
        return;
      }
    wchar_t text[20];
    std::swprintf(text, 20, random.once_in(2) ? L"&#x%X;" : L"&#%u;", static_cast<unsigned>(c));
    out += text;
  }

  axmModel const& model;
  axmModelRandom random;
  std::wstring out;
};
}

axmModelSource axm_model_source(axmModel& model, int number)
{
  axmModelRandom random(static_cast<std::uint64_t>(number));
  int const document = Maker(model, random).document();
  std::string const text = axm_model_text(model, document, number);
  // Two texts beside each other, and white space among them, come as a load makes them.
  return {text, model.reload(document)};
}

std::string axm_model_text(axmModel const& model, int document, int number)
{
  std::wstring const wide = Writer(model, number).written(document);
  utString const text = apString(std::wstring_view(wide)).to_utf8();
  return std::string(text.c_str(), static_cast<std::size_t>(text.length()));
}
