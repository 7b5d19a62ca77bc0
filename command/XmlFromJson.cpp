#include "XmlFromJson.h"

#include "MemoryStream.h"

#include <apString.h>
#include <axsJsonText.h>

#include <nlohmann/json.hpp>

#include <vector>

namespace
{
using Json = nlohmann::json;

void append_escaped(std::string& xml, std::string_view text, bool is_attribute)
{
  for (char const c : text)
    if (c == '&')
      xml += "&amp;";
    else if (c == '<')
      xml += "&lt;";
    else if (c == '>')
      xml += "&gt;";
    else if (c == '\r' || (is_attribute && (c == '\t' || c == '\n' || c == '"')))
      xml += "&#" + std::to_string(static_cast<int>(c)) + ";";
    else
      xml += c;
}

// Writes XML as the parser of JSON goes along, and notes what it met, so that two texts can be compared by what they say.
class Converter final : public nlohmann::json_sax<Json>
{
public:
  bool null() override;
  bool boolean(bool) override { return fail("is a boolean, and not a text"); }
  bool number_integer(std::int64_t) override { return fail("is a number, and not a text"); }
  bool number_unsigned(std::uint64_t) override { return fail("is a number, and not a text"); }
  bool number_float(double, std::string const&) override { return fail("is a number, and not a text"); }
  bool string(std::string& value) override;
  bool binary(Json::binary_t&) override { return false; }
  bool start_object(std::size_t) override;
  bool key(std::string& name) override;
  bool end_object() override;
  bool start_array(std::size_t) override;
  bool end_array() override;
  bool parse_error(std::size_t position, std::string const&, nlohmann::detail::exception const&) override
  {
    wrong = "is no JSON, at byte " + std::to_string(position);
    return false;
  }

  std::string xml;
  std::string said;
  std::string wrong;

private:
  enum class Kind
  {
    document,
    element,
    group,   // an array of elements with one name
    content, // "#content"
    item     // an object in that
  };

  struct Frame
  {
    Kind kind;
    std::string name; // of the element, or of those of the group
    bool is_tag_open = false;
    std::size_t members = 0;
  };

  bool fail(std::string const& why);
  bool is_name() const { return !member.empty() && member[0] != '@' && member[0] != '#'; }
  bool is_member_of(Kind kind) const { return frames.back().kind == kind; }
  bool has_members() const { return !is_member_of(Kind::group) && !is_member_of(Kind::content); }
  std::string const& element_name() const { return is_member_of(Kind::group) ? frames.back().name : member; }
  void close_tag();
  bool leaf(std::string_view text);
  bool text_of_item(std::string const& value);
  void say(char mark, std::string_view text = {});

  std::vector<Frame> frames;
  std::string member;
};

bool Converter::fail(std::string const& why)
{
  std::size_t const most = 20;
  std::string path;
  for (std::size_t i = frames.size() > most ? frames.size() - most : 0; i < frames.size(); ++i)
    if (frames[i].kind == Kind::element)
      path += "/" + frames[i].name;
  wrong = path + (member.empty() ? "" : "/" + member) + ": " + why;
  return false;
}

void Converter::say(char mark, std::string_view text)
{
  said += mark;
  said += std::to_string(text.size());
  said += ' ';
  said += text;
}

// Whatever is in the element comes after its tag.
void Converter::close_tag()
{
  if (frames.back().is_tag_open)
    xml += '>';
  frames.back().is_tag_open = false;
}

bool Converter::leaf(std::string_view text)
{
  std::string const& name = element_name();
  close_tag();
  xml += "<" + name;
  if (text.empty())
    xml += "/>";
  else
  {
    xml += '>';
    append_escaped(xml, text, false);
    xml += "</" + name + ">";
  }
  return true;
}

bool Converter::null()
{
  say('n');
  if (frames.empty() || is_member_of(Kind::content) || (has_members() && !is_name()))
    return fail("is null, and no text or object");
  return leaf({});
}

bool Converter::string(std::string& value)
{
  say('s', value);
  if (frames.empty())
    return fail("the document has to be an object");
  if (is_member_of(Kind::content))
  {
    append_escaped(xml, value, false);
    return true;
  }
  if (has_members() && !is_name())
    return text_of_item(value);
  return value.empty() ? fail("is an empty text; null stands for an element with nothing in it") : leaf(value);
}

// Of a member whose name begins with a sign.
bool Converter::text_of_item(std::string const& value)
{
  if (is_member_of(Kind::element) && member[0] == '@')
  {
    if (!frames.back().is_tag_open)
      return fail("has to come before what is in the element");
    xml += " " + member.substr(1) + "=\"";
    append_escaped(xml, value, true);
    xml += '"';
    return true;
  }
  if (is_member_of(Kind::element) && member == "#text")
  {
    close_tag();
    append_escaped(xml, value, false);
    return true;
  }
  bool const is_item = is_member_of(Kind::item);
  if (is_item && member == "#comment")
    xml += "<!--" + value + "-->";
  else if (is_item && member == "#instruction")
    xml += "<?" + value + "?>";
  else if (is_item && member == "#doctype")
    xml += value;
  else
    return fail("cannot be there");
  return true;
}

bool Converter::start_object(std::size_t)
{
  say('{');
  if (frames.empty())
    frames.push_back({Kind::document, {}});
  else if (is_member_of(Kind::content))
    frames.push_back({Kind::item, {}});
  else if (has_members() && !is_name())
    return fail("is an object, and not a text");
  else
  {
    std::string const name = element_name();
    close_tag();
    xml += "<" + name;
    frames.push_back({Kind::element, name, true});
  }
  member.clear();
  return true;
}

bool Converter::key(std::string& name)
{
  say('k', name);
  member = name;
  bool const is_second = ++frames.back().members > 1;
  if (name.empty())
    return fail("a member has no name");
  return is_second && !is_member_of(Kind::element) ? fail("is the second member of an object that has one") : true;
}

bool Converter::end_object()
{
  say('}');
  Frame const& ended = frames.back();
  if (ended.kind == Kind::element)
    xml += ended.is_tag_open ? "/>" : "</" + ended.name + ">";
  frames.pop_back();
  member.clear();
  return true;
}

bool Converter::start_array(std::size_t)
{
  say('[');
  if (frames.empty() || !has_members())
    return fail("is an array in an array");
  close_tag();
  if (member == "#content" && !is_member_of(Kind::item))
    frames.push_back({Kind::content, {}});
  else if (is_name() && is_member_of(Kind::element))
    frames.push_back({Kind::group, member});
  else
    return fail("is an array, which cannot be there");
  return true;
}

bool Converter::end_array()
{
  say(']');
  frames.pop_back();
  return true;
}
}

std::string XmlFromJson::convert(std::string_view json, std::string& xml)
{
  Converter made;
  if (!Json::sax_parse(json.begin(), json.end(), &made))
    return made.wrong;
  std::string again;
  MemoryStream stream(made.xml);
  axmParseError error;
  auto const take = [&](std::string_view piece)
  {
    again += piece;
    return true;
  };
  if (!axsJsonText::convert(stream, 0, error, take))
    return "would not be well-formed XML: " + std::string(error.message().to_utf8().view());
  Converter read;
  bool const is_json = Json::sax_parse(again, &read);
  if (!is_json || read.said != made.said)
    return "would not be the same JSON when it is read back from XML";
  xml += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + made.xml + "\n";
  return std::string();
}
