#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

// Makes small documents, one after the other, the same ones for the same seed: most are XML or nearly so, with all that
// the cursors treat in a way of their own, and many are damaged.
class DocumentMaker
{
public:
  explicit DocumentMaker(std::uint32_t seed) : random(seed) {}

  std::string next()
  {
    text.clear();
    declaration();
    prolog();
    element(static_cast<int>(below(5)) + 1);
    if (!one_in(6))
      text += "\n";
    if (one_in(12))
      element(2);
    if (one_in(40))
      lengthen();
    if (one_in(2))
      damage();
    return text;
  }

  std::size_t below(std::size_t n) { return static_cast<std::size_t>(random()) % n; }

  bool one_in(std::size_t n) { return below(n) == 0; }

  template <std::size_t N>
  char const* pick(char const* const (&choices)[N])
  {
    return choices[below(N)];
  }

  std::string element_name()
  {
    return pick({"a", "a", "ab", "abc", "b", "b", "item", "items", "Invalid", "Invalidated", "x:y", "?p", ""});
  }

  // A document like those that are in use: elements with many children of few names and with many attributes, over many
  // blocks. Most are not damaged.
  std::string next_wide()
  {
    text = "<?xml version=\"1.0\"?>\n<root>";
    std::size_t const kinds = below(9) + 1;
    for (std::size_t i = below(60) + 1; i-- > 0;)
      wide_element(3, kinds);
    text += "</root>\n";
    if (one_in(4))
      damage_once();
    return text;
  }

  // One of the first `kinds` names, if there are so many.
  std::string wide_name(std::size_t kinds = 100)
  {
    char const* const names[] = {
      "one", "two", "three", "o", "onetwo", "abcdefgh", "abcdefghi", "a_name_of_twenty_chars", "th", "line"};
    return names[below(kinds < 10 ? kinds : 10)];
  }

  std::string wide_attribute()
  {
    return pick({"x", "id", "number", "a_name_of_16_char", "a_name_of_16_chars", "another_long_attribute", "n"}) +
           (one_in(3) ? std::to_string(below(12)) : std::string());
  }

  std::string attribute_name() { return pick({"id", "id", "i", "name", "n", "x", "absent", ""}); }

private:
  void declaration()
  {
    text += pick({"<?xml version=\"1.0\"?>", "<?xml version=\"1.0\"?>", "<?xml version='1.0' encoding='utf-8'?>",
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>", "<?xml version=\"1.0\" standalone='no' ?>",
      "<?xml\tversion=\"1.1\"\nencoding=\"\"?>", "<?xml version=x1.0x encoding=-UTF16-?>",
      "<?xml version='1.0' encoding='Utf-16'?>", "<?xml version = '1.0'?>", "<?xml version=\"1.0\" enc=\"a\"?>", "<a>",
      ""});
  }

  void prolog()
  {
    while (one_in(2))
      text += pick({"\n", "\n", " ", "<!-- c -->", "<!--<a>-->", "<!DOCTYPE a>", "<?p i?>", "\t\r\n", "stray"});
  }

  void attributes()
  {
    while (one_in(2))
    {
      text += pick({" ", " ", " ", "  ", "\n ", "\t", ""});
      text += attribute_name();
      text += pick({"=", "=", "=", "=", " =", "= "});
      char const* const quote = pick({"\"", "\"", "\"", "'", "'", "|", ">"});
      text += quote;
      text += pick({"", "1", "value", "a b", "a>b", "/", "<b>", "x/>", "&lt;", "'", "=", "42.5128977"});
      text += quote;
    }
  }

  void element(int depth)
  {
    std::string const name = element_name();
    text += "<" + name;
    if (one_in(12))
      text += pick({"\t", "\n", "/", " /"});
    attributes();
    if (one_in(4))
    {
      text += pick({"/>", "/>", " />", "/ >"});
      return;
    }
    text += pick({">", ">", ">", " >"});
    while (!one_in(3))
      content(depth);
    text += "</" + (one_in(40) ? element_name() : name) + pick({">", ">", ">", " >", "\n>", " x>"});
  }

  void wide_element(int depth, std::size_t kinds)
  {
    std::string const name = wide_name(kinds);
    text += (one_in(3) ? "\n  <" : "<") + name;
    for (std::size_t i = one_in(20) ? 90 : below(5); i-- > 0;)
      text += " " + wide_attribute() + "=\"" + std::string(below(one_in(10) ? 60 : 12), 'v') + "\"";
    if (one_in(4))
    {
      text += "/>";
      return;
    }
    text += ">";
    if (depth == 0 || one_in(3))
      text += std::string(below(one_in(30) ? 3000 : 20), 't');
    else
      for (std::size_t i = one_in(10) ? 40 : below(6); i-- > 0;)
        wide_element(depth - 1, kinds);
    if (one_in(40))
      text += pick({"<!--comment-->", "<![CDATA[text]]>", "<![CDATA[<one>]]>", "\n", "text"});
    text += "</" + name + ">";
  }

  void content(int depth)
  {
    switch (below(10))
    {
    case 0:
    case 1:
    case 2:
    case 3:
      if (depth > 0)
        element(depth - 1);
      break;
    case 4:
      text += pick({" ", "\n", "\t", "\r\n  "});
      break;
    case 5:
      text += pick({"text", "a text of some length, to be passed", "t", ">", "]]>", "--", "a > b", "x=\"1\""});
      break;
    case 6:
      text += pick({"<!--c-->", "<!---->", "<!-- - -->", "<!---a-->", "<!--<b>-->", "<!--a--b-->", "<!--a--->",
        "<!-->-->", "<!-- ' -->"});
      break;
    case 7:
      text += pick({"<![CDATA[x]]>", "<![CDATA[]]>", "<![CDATA[ ]]]>", "<![CDATA[<b>]]>", "<![CDATA[</b>]]>",
        "<![CDATA[<b></b>]]>", "<![CDATA[a]b]c]]>", "<![CDATA[]x]]>", "<![CDATA[a]]b]]>", "<![CDATA[<!--]]>"});
      break;
    case 8:
      text += pick({"<?p i?>", "<!x>", "<!ELEMENT a>", "<![x]]>", "<>", "< a>", "</>", "<!-x>"});
      if (one_in(4))
        text += "</?p>";
      break;
    default:
      text += "\n";
    }
  }

  // Puts a long run between two characters, so that tags fall on all sides of the borders of blocks.
  void lengthen()
  {
    std::size_t const at = text.find('>', below(text.size()));
    if (at != std::string::npos)
      text.insert(at + 1, pick({"", "<!--", "<b k='", "<![CDATA["}) + std::string(below(2200), "x \n"[below(3)]) +
                            pick({"", "-->", "'/>", "]]>"}));
  }

  void damage()
  {
    for (std::size_t i = below(3); i-- > 0 && !text.empty();)
      damage_once();
    if (one_in(4))
      text.resize(below(text.size() + 1));
  }

  void damage_once()
  {
    std::size_t const at = below(text.size());
    std::size_t const length = below(6) + 1;
    switch (below(6))
    {
    case 0:
      text.erase(at, length);
      break;
    case 1:
      text.insert(at, text.substr(at, length));
      break;
    case 2:
      text[at] = "<>/!-[]=\"' \t\n&?a"[below(16)];
      break;
    case 3:
      text.insert(at, 1, "<>/!-[]=\"' \t\n&?a"[below(16)]);
      break;
    case 4:
      if (one_in(4))
        text[at] = '\0';
      break;
    default:
      text.insert(at, text.substr(below(text.size()), length * 4));
    }
  }

  std::mt19937 random;
  std::string text;
};
