#pragma once

#include <axsDtd.h>
#include <axsName.h>
#include <axsNameTable.h>
#include <axsParseHandler.h>
#include <axsStartTag.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// Events as text, one a line, to be compared: "(a", "@name value", ")", "-text", "[section", "!comment", "?target data".
/// CDATA sections that follow each other are one, and what is bound anyway is not said: some parsers do not tell of that.
class EventText
{
public:
  using Attribute = std::pair<std::string, std::string>;

  void start(std::string_view name, std::vector<Attribute> attributes)
  {
    line("(", name);
    std::sort(attributes.begin(), attributes.end());
    for (auto const& [attribute, value] : attributes)
      if (attribute != "xmlns:xml")
        line("@", attribute + ' ' + value);
  }
  void end() { line(")", ""); }
  void text(std::string_view text) { line("-", text); }
  void cdata(std::string_view text)
  {
    bool const follows = is_cdata;
    if (follows)
      lines.pop_back();
    line(follows ? "" : "[", text);
    is_cdata = true;
  }
  void comment(std::string_view data) { line("!", data); }
  void instruction(std::string_view target, std::string_view data)
  {
    line("?", std::string(target) + ' ' + std::string(data));
  }

  std::string const& all() const noexcept { return lines; }

private:
  void line(char const* mark, std::string_view text)
  {
    lines += mark;
    is_cdata = false;
    for (char const c : text)
      lines += c == '\n' ? std::string("\\n") : std::string(1, c);
    lines += '\n';
  }

  std::string lines;
  bool is_cdata = false;
};

/// Takes down what our parser tells.
class EventTaker final : public axsParseHandler
{
public:
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override
  {
    std::vector<EventText::Attribute> attributes;
    for (axsTagAttribute const& attribute : *tag.attributes)
      attributes.emplace_back(attribute.name->utf8(), attribute.value);
    taken.start(tag.name->utf8(), std::move(attributes));
  }
  void end_element() override { taken.end(); }
  void text(std::string_view text, bool is_cdata) override { is_cdata ? taken.cdata(text) : taken.text(text); }
  void comment(std::string_view data) override { taken.comment(data); }
  void processing_instruction(std::string_view target, std::string_view data) override
  {
    taken.instruction(target, data);
  }

  std::string const& all() const noexcept { return taken.all(); }

private:
  axsNameTable names;
  EventText taken;
};
